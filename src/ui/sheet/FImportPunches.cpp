#include "ui/sheet/FImportPunches.h"

#include "platform/Failure.h"
#include "ui_FImportPunches.h"

namespace ptk {

namespace {

constexpr auto kAllNew = "%1 lines can be stored. Nothing has been stored yet.";
constexpr auto kSomeRefused = "%1 lines can be stored, %2 are refused for the reasons above. Nothing has been stored yet.";
constexpr auto kNoneNew = "Nothing is left to be stored.";
constexpr auto kStored = "%1 punches stored; Edit > Undo takes them back";

constexpr auto kReadFirst = "Choose the file and read it first.";
constexpr auto kNoneToStore = "Nothing of the file is left to be stored.";
constexpr auto kTickFirst = "Tick that the other lines are to be stored, or mend the file.";
constexpr auto kWordsWrong = "what the headings mean is told as File=Ours, for example Badge=Number,1=In,0=Out";

constexpr QSize kFirstSize(720, 480);
constexpr QSize kSmallestSize(440, 320);
constexpr std::size_t kMostShown = 10'000; // lines of the account: nobody reads more, and a text box is slow with them

} // namespace

FImportPunches::FImportPunches(QWidget* parent, Importer importer)
    : ImportWindow(parent, {.fileTitle = "Punches",
                            .filter = "CSV files (*.csv *.txt *.tsv);;All Files (*)",
                            .progressTitle = "Import Punches",
                            .progressText = "Reading the punches...",
                            .refused = "Nothing was stored: %1.",
                            .nameFirst = "Choose the file first."}),
      m_ui(std::make_unique<Ui::FImportPunches>()), m_importer(std::move(importer))
{
    m_ui->setupUi(this);
    Begin({m_ui->fraFile, m_ui->txtFile, m_ui->cmdBrowse, m_ui->txtAccount, m_ui->lblHint, m_ui->cmdRead, m_ui->cmdImport, m_ui->cmdCancel},
          kFirstSize, kSmallestSize);
    connect(m_ui->txtColumns, &QLineEdit::textChanged, this, [this] { Forget(); });
    connect(m_ui->chkPartly, &QCheckBox::toggled, this, &FImportPunches::EnableImport);
    Forget();
}

FImportPunches::~FImportPunches() = default;

void FImportPunches::ForgetRead()
{
    m_read = {};
    m_ui->chkPartly->setChecked(false);
    m_ui->chkPartly->hide();
    EnableImport();
}

void FImportPunches::Work(bool trial, const GoesOn& goesOn)
{
    const QString columns = m_ui->txtColumns->text().trimmed();
    const auto words = columns.isEmpty() ? SheetWords() : ReadSheetWords(columns.toStdString());
    if (!words) {
        throw Failure(0, "PTK", kWordsWrong);
    }
    m_read = m_importer({{m_ui->txtFile->text().toStdString(), std::nullopt, *words}, trial, m_ui->chkPartly->isChecked()}, goesOn);
}

// Where nothing was stored, because the file or the database has changed since it was read, the account is shown as that of a reading.
void FImportPunches::ShowOutcome(bool /*trial*/)
{
    ShowAccount(PunchAccountLines(m_read), kMostShown);
    m_read.isStored ? ShowStored() : ShowRead();
}

void FImportPunches::ShowRead()
{
    const bool refused = !m_read.refused.empty();
    m_ui->chkPartly->setVisible(refused && !m_read.punches.empty());
    const QString hint = m_read.punches.empty() ? kNoneNew : QString(refused ? kSomeRefused : kAllNew).arg(m_read.stored);
    m_ui->lblHint->Say(refused && !m_read.punches.empty() ? hint.arg(m_read.refused.size()) : hint);
    EnableImport();
    OfferImport();
}

void FImportPunches::ShowStored()
{
    m_stored = QString(kStored).arg(m_read.punches.size());
    m_ui->lblHint->Say(m_stored + '.');
    HideAllDone({m_ui->chkPartly});
}

void FImportPunches::EnableImport()
{
    const bool storable = !m_read.punches.empty() && !m_read.IsRefused(m_ui->chkPartly->isChecked());
    m_ui->cmdImport->setEnabled(storable);
    m_ui->cmdImport->setToolTip(storable ? QString()
                                         : (m_read.lines == 0 ? kReadFirst : (m_read.punches.empty() ? kNoneToStore : kTickFirst)));
}

} // namespace ptk
