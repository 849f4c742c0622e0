#include "ui/safety/FImport.h"

#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "ui/work/WorkProgress.h"
#include "ui_FImport.h"

#include <QFileDialog>

namespace ptk {

namespace {

constexpr auto kFileTitle = "Older Database";
constexpr auto kFilter = "Databases (*.mdb);;All Files (*)";
constexpr auto kProgressTitle = "Import Older Database";
constexpr auto kProgressText = "Reading the older database...";

constexpr auto kRead = "This is what can be brought along. Nothing has been written yet.";
constexpr auto kDamaged = "The file shows signs of damage; they stand at the end. Nothing has been written yet.";
constexpr auto kRefused = "Nothing was changed: %1.";
constexpr auto kImported = "Imported. The account is kept as %1.";
constexpr auto kImportedBut = "Imported, but %1.";

constexpr auto kNameFirst = "Choose the older database first.";
constexpr auto kReadFirst = "Choose the older database and read it first.";
constexpr auto kAcceptFirst = "Tick that what can still be read is to be taken.";
constexpr auto kClose = "&Close";

constexpr QSize kFirstSize(640, 480);
constexpr QSize kSmallestSize(420, 300);
constexpr int kImportHintLines = 2;

QString TextOf(const ImportAccount& account)
{
    QStringList lines;
    for (const std::string& line : AccountLines(account)) {
        lines.append(QString::fromStdString(line));
    }
    return lines.join('\n');
}

} // namespace

FImport::FImport(QWidget* parent, Importer importer)
    : QDialog(parent), m_ui(std::make_unique<Ui::FImport>()), m_importer(std::move(importer))
{
    m_ui->setupUi(this);
    setMinimumSize(kSmallestSize);
    resize(kFirstSize);
    m_ui->lblHint->KeepRoom(kImportHintLines);
    m_ui->chkAccept->hide();
    connect(m_ui->txtFile, &QLineEdit::textChanged, this, &FImport::Forget);
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &FImport::Browse);
    connect(m_ui->cmdRead, &QPushButton::clicked, this, &FImport::Read);
    connect(m_ui->cmdImport, &QPushButton::clicked, this, &FImport::Import);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FImport::reject);
    connect(m_ui->chkAccept, &QCheckBox::toggled, this, &FImport::EnableImport);
    Forget();
}

FImport::~FImport() = default;

void FImport::Browse()
{
    const QString file = QFileDialog::getOpenFileName(this, kFileTitle, m_ui->txtFile->text(), kFilter);
    if (!file.isEmpty()) {
        m_ui->txtFile->setText(file);
        Read();
    }
}

// What was read of another file.
void FImport::Forget()
{
    m_read = false;
    m_damaged = false;
    m_ui->txtAccount->clear();
    m_ui->chkAccept->setChecked(false);
    m_ui->chkAccept->hide();
    m_ui->lblHint->Say(QString());
    const bool isNamed = !m_ui->txtFile->text().isEmpty();
    m_ui->cmdRead->setEnabled(isNamed);
    m_ui->cmdRead->setToolTip(isNamed ? QString() : kNameFirst);
    m_ui->cmdRead->setDefault(true);
    EnableImport();
}

void FImport::Read()
{
    ImportOutcome outcome;
    if (Run(true, outcome)) {
        ShowRead(outcome);
    }
}

void FImport::Import()
{
    ImportOutcome outcome;
    if (Run(false, outcome)) {
        ShowImported(outcome);
    }
}

// False where it was refused, which is then told.
bool FImport::Run(bool trial, ImportOutcome& outcome)
{
    ImportOrder order;
    order.file = m_ui->txtFile->text().toStdString();
    order.trial = trial;
    order.acceptDamaged = m_ui->chkAccept->isChecked();
    m_ui->lblHint->Say(QString());
    const auto run = [&] {
        WorkProgress progress(this, {kProgressTitle, kProgressText});
        outcome = m_importer(order, [&progress](std::int64_t) { return progress.GoOn(0, 0); });
    };
    return Succeeds(
        run, [this](const Failure& reason) { m_ui->lblHint->Say(QString(kRefused).arg(QString::fromStdString(reason.Description()))); });
}

void FImport::ShowRead(const ImportOutcome& outcome)
{
    m_read = true;
    m_damaged = !outcome.account.signs.empty();
    m_ui->txtAccount->setPlainText(TextOf(outcome.account));
    m_ui->chkAccept->setVisible(m_damaged);
    m_ui->lblHint->Say(m_damaged ? kDamaged : kRead);
    EnableImport();
    if (m_ui->cmdImport->isEnabled()) {
        m_ui->cmdImport->setDefault(true);
        m_ui->cmdImport->setFocus();
    }
}

void FImport::ShowImported(const ImportOutcome& outcome)
{
    m_ui->txtAccount->setPlainText(TextOf(outcome.account));
    if (!outcome.refusal.empty()) { // the file has changed since it was read
        m_ui->lblHint->Say(QString(kRefused).arg(QString::fromStdString(outcome.refusal)));
        return;
    }
    m_imported = true;
    const bool whole = outcome.problem.empty();
    m_ui->lblHint->Say(
        QString(whole ? kImported : kImportedBut).arg(QString::fromStdString(whole ? outcome.accountFile : outcome.problem)));
    for (QWidget* done : {static_cast<QWidget*>(m_ui->cmdImport), static_cast<QWidget*>(m_ui->cmdRead),
                          static_cast<QWidget*>(m_ui->fraFile), static_cast<QWidget*>(m_ui->chkAccept)}) {
        done->hide();
    }
    m_ui->cmdCancel->setText(kClose);
    m_ui->cmdCancel->setDefault(true);
    m_ui->cmdCancel->setFocus();
}

void FImport::EnableImport()
{
    const bool accepted = !m_damaged || m_ui->chkAccept->isChecked();
    m_ui->cmdImport->setEnabled(m_read && accepted);
    m_ui->cmdImport->setToolTip(!m_read ? kReadFirst : (accepted ? QString() : kAcceptFirst));
}

} // namespace ptk
