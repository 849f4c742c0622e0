#include "ui/work/ImportWindow.h"

#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "ui/widgets/HintLabel.h"
#include "ui/work/WorkProgress.h"

#include <algorithm>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace ptk {

namespace {

constexpr auto kClose = "&Close";
constexpr int kHintLines = 2;

} // namespace

void ImportWindow::Begin(const Parts& parts, QSize first, QSize smallest)
{
    m_parts = parts;
    setMinimumSize(smallest);
    resize(first);
    parts.hint->KeepRoom(kHintLines);
    connect(parts.name, &QLineEdit::textChanged, this, &ImportWindow::Forget);
    connect(parts.browse, &QPushButton::clicked, this, &ImportWindow::Browse);
    connect(parts.read, &QPushButton::clicked, this, [this] { Try(true); });
    connect(parts.import, &QPushButton::clicked, this, [this] { Try(false); });
    connect(parts.cancel, &QPushButton::clicked, this, &ImportWindow::reject);
}

void ImportWindow::Browse()
{
    const QString file = QFileDialog::getOpenFileName(this, m_words.fileTitle, m_parts->name->text(), m_words.filter);
    if (!file.isEmpty()) {
        m_parts->name->setText(file);
        Try(true);
    }
}

void ImportWindow::Forget()
{
    m_parts->account->clear();
    m_parts->hint->Say(QString());
    const bool isNamed = !m_parts->name->text().isEmpty();
    m_parts->read->setEnabled(isNamed);
    m_parts->read->setToolTip(isNamed ? QString() : m_words.nameFirst);
    m_parts->read->setDefault(true);
    ForgetRead();
}

void ImportWindow::Try(bool trial)
{
    m_parts->hint->Say(QString());
    const auto work = [&] {
        WorkProgress progress(this, {m_words.progressTitle, m_words.progressText});
        Work(trial, [&progress] { return progress.GoOn(0, 0); });
    };
    if (Succeeds(work, [this](const Failure& reason) { TellRefused(reason.Description()); })) {
        ShowOutcome(trial);
    }
}

void ImportWindow::TellRefused(const std::string& reason)
{
    m_parts->hint->Say(QString(m_words.refused).arg(QString::fromStdString(reason)));
}

void ImportWindow::ShowAccount(const std::vector<std::string>& lines, std::size_t most)
{
    QStringList shown;
    for (std::size_t i = 0; i < std::min(lines.size(), most); ++i) {
        shown.append(QString::fromStdString(lines[i]));
    }
    m_parts->account->setPlainText(shown.join('\n') + (lines.size() > most ? "\n..." : ""));
}

void ImportWindow::OfferImport()
{
    if (m_parts->import->isEnabled()) {
        m_parts->import->setDefault(true);
        m_parts->import->setFocus();
    }
}

void ImportWindow::HideAllDone(const std::vector<QWidget*>& others)
{
    for (QWidget* done : std::initializer_list<QWidget*>{m_parts->import, m_parts->read, m_parts->file}) {
        done->hide();
    }
    for (QWidget* done : others) {
        done->hide();
    }
    m_parts->cancel->setText(kClose);
    m_parts->cancel->setDefault(true);
    m_parts->cancel->setFocus();
}

} // namespace ptk
