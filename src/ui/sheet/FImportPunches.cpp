#include "ui/sheet/FImportPunches.h"

#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "ui/work/WorkProgress.h"
#include "ui_FImportPunches.h"

#include <QFileDialog>

namespace ptk {

namespace {

constexpr auto kFileTitle = "Punches";
constexpr auto kFilter = "CSV files (*.csv *.txt *.tsv);;All Files (*)";
constexpr auto kProgressTitle = "Import Punches";
constexpr auto kProgressText = "Reading the punches...";

constexpr auto kAllNew = "%1 lines can be stored. Nothing has been stored yet.";
constexpr auto kSomeRefused = "%1 lines can be stored, %2 are refused for the reasons above. Nothing has been stored yet.";
constexpr auto kNoneNew = "Nothing is left to be stored.";
constexpr auto kNotRead = "Nothing was stored: %1.";
constexpr auto kStored = "%1 punches stored; Edit > Undo takes them back";

constexpr auto kNameFirst = "Choose the file first.";
constexpr auto kReadFirst = "Choose the file and read it first.";
constexpr auto kNoneToStore = "Nothing of the file is left to be stored.";
constexpr auto kTickFirst = "Tick that the other lines are to be stored, or mend the file.";
constexpr auto kWordsWrong = "Nothing was stored: what the headings mean is told as File=Ours, for example Badge=Number,1=In,0=Out.";
constexpr auto kClose = "&Close";

constexpr QSize kFirstSize(720, 480);
constexpr QSize kSmallestSize(440, 320);
constexpr int kHintLines = 2;
constexpr std::size_t kMostShown = 10'000; // lines of the account; nobody reads more, and a text box takes its time for them

QString TextOf(const PunchAccount& account)
{
    QStringList lines;
    const std::vector<std::string> all = PunchAccountLines(account);
    for (std::size_t i = 0; i < std::min(all.size(), kMostShown); ++i) {
        lines.append(QString::fromStdString(all[i]));
    }
    return lines.join('\n') + (all.size() > kMostShown ? "\n..." : "");
}

} // namespace

FImportPunches::FImportPunches(QWidget* parent, Importer importer)
    : QDialog(parent), m_ui(std::make_unique<Ui::FImportPunches>()), m_importer(std::move(importer))
{
    m_ui->setupUi(this);
    setMinimumSize(kSmallestSize);
    resize(kFirstSize);
    m_ui->lblHint->KeepRoom(kHintLines);
    connect(m_ui->txtFile, &QLineEdit::textChanged, this, &FImportPunches::Forget);
    connect(m_ui->txtColumns, &QLineEdit::textChanged, this, &FImportPunches::Forget);
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &FImportPunches::Browse);
    connect(m_ui->cmdRead, &QPushButton::clicked, this, &FImportPunches::Read);
    connect(m_ui->cmdImport, &QPushButton::clicked, this, &FImportPunches::Import);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &FImportPunches::reject);
    connect(m_ui->chkPartly, &QCheckBox::toggled, this, &FImportPunches::EnableImport);
    Forget();
}

FImportPunches::~FImportPunches() = default;

void FImportPunches::Browse()
{
    const QString file = QFileDialog::getOpenFileName(this, kFileTitle, m_ui->txtFile->text(), kFilter);
    if (!file.isEmpty()) {
        m_ui->txtFile->setText(file);
        Read();
    }
}

// What was read of another file, or with other columns.
void FImportPunches::Forget()
{
    m_read = {};
    m_ui->txtAccount->clear();
    m_ui->chkPartly->setChecked(false);
    m_ui->chkPartly->hide();
    m_ui->lblHint->Say(QString());
    const bool isNamed = !m_ui->txtFile->text().isEmpty();
    m_ui->cmdRead->setEnabled(isNamed);
    m_ui->cmdRead->setToolTip(isNamed ? QString() : kNameFirst);
    m_ui->cmdRead->setDefault(true);
    EnableImport();
}

void FImportPunches::Read()
{
    PunchAccount account;
    if (Run(true, account)) {
        ShowRead(account);
    }
}

void FImportPunches::Import()
{
    PunchAccount account;
    if (Run(false, account)) {
        account.isStored ? ShowStored(account) : ShowRead(account); // the file, or the database, has changed since it was read
    }
}

// False where it was refused, which is then told.
bool FImportPunches::Run(bool trial, PunchAccount& account)
{
    const QString columns = m_ui->txtColumns->text().trimmed();
    const auto words = columns.isEmpty() ? SheetWords() : ReadSheetWords(columns.toStdString());
    if (!words) {
        m_ui->lblHint->Say(kWordsWrong);
        return false;
    }
    const PunchOrder order{{m_ui->txtFile->text().toStdString(), std::nullopt, *words}, trial, m_ui->chkPartly->isChecked()};
    m_ui->lblHint->Say(QString());
    const auto run = [&] {
        WorkProgress progress(this, {kProgressTitle, kProgressText});
        account = m_importer(order, [&progress] { return progress.GoOn(0, 0); });
    };
    return Succeeds(
        run, [this](const Failure& reason) { m_ui->lblHint->Say(QString(kNotRead).arg(QString::fromStdString(reason.Description()))); });
}

void FImportPunches::ShowRead(const PunchAccount& account)
{
    m_read = account;
    m_ui->txtAccount->setPlainText(TextOf(account));
    const bool refused = !account.refused.empty();
    m_ui->chkPartly->setVisible(refused && !account.punches.empty());
    const QString hint = account.punches.empty() ? kNoneNew : QString(refused ? kSomeRefused : kAllNew).arg(account.stored);
    m_ui->lblHint->Say(refused && !account.punches.empty() ? hint.arg(account.refused.size()) : hint);
    EnableImport();
    if (m_ui->cmdImport->isEnabled()) {
        m_ui->cmdImport->setDefault(true);
        m_ui->cmdImport->setFocus();
    }
}

void FImportPunches::ShowStored(const PunchAccount& account)
{
    m_ui->txtAccount->setPlainText(TextOf(account));
    m_stored = QString(kStored).arg(account.punches.size());
    m_ui->lblHint->Say(m_stored + '.');
    for (QWidget* done : {static_cast<QWidget*>(m_ui->cmdImport), static_cast<QWidget*>(m_ui->cmdRead),
                          static_cast<QWidget*>(m_ui->fraFile), static_cast<QWidget*>(m_ui->chkPartly)}) {
        done->hide();
    }
    m_ui->cmdCancel->setText(kClose);
    m_ui->cmdCancel->setDefault(true);
    m_ui->cmdCancel->setFocus();
}

void FImportPunches::EnableImport()
{
    const bool storable = !m_read.punches.empty() && !m_read.IsRefused(m_ui->chkPartly->isChecked());
    m_ui->cmdImport->setEnabled(storable);
    m_ui->cmdImport->setToolTip(storable ? QString()
                                         : (m_read.lines == 0 ? kReadFirst : (m_read.punches.empty() ? kNoneToStore : kTickFirst)));
}

} // namespace ptk
