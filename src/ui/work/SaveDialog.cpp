#include "ui/work/SaveDialog.h"

#include "office/reports/SaveReport.h"
#include "ui/work/KeepSettings.h"

#include <algorithm>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace ptk {

namespace {

constexpr auto kTitle = "Save As";
constexpr auto kFolderKey = "save/folder";

QString TextOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString LastFolder()
{
    const QString folder = QSettings().value(kFolderKey).toString();
    return QFileInfo(folder).isDir() ? folder : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QStringList FiltersOf(std::span<const ReportForm> forms)
{
    QStringList filters;
    for (const ReportForm form : forms) {
        filters += TextOf(FilterOf(form));
    }
    return filters;
}

// A name that is typed later without an ending gets that of the form; a name that is already there changes its ending to it.
void TakeForm(QFileDialog& dialog, ReportForm form)
{
    const QString ending = TextOf(EndingOf(form));
    dialog.setDefaultSuffix(ending);
    const QFileInfo typed(dialog.selectedFiles().value(0));
    if (!typed.fileName().isEmpty() && !typed.isDir()) {
        dialog.selectFile(typed.completeBaseName() + ending);
    }
}

} // namespace

std::optional<SaveTarget> AskWhereToSave(QWidget& parent, const QString& name, std::span<const ReportForm> forms)
{
    QFileDialog dialog(&parent, kTitle, LastFolder());
    const QStringList filters = FiltersOf(forms);
    const auto chosen = [&] {
        return forms[static_cast<std::size_t>(std::max<qsizetype>(0, filters.indexOf(dialog.selectedNameFilter())))];
    };
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(TextOf(EndingOf(forms.front())));
    dialog.selectFile(name);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&] { TakeForm(dialog, chosen()); });
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const QString path = dialog.selectedFiles().value(0);
    KeepSettings({{kFolderKey, QFileInfo(path).absolutePath()}});
    const std::string encoded = QFile::encodeName(path).toStdString();
    return SaveTarget{encoded, FormOfName(encoded, chosen(), forms)};
}

} // namespace ptk
