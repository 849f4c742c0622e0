#include "ui/frame/OptionsPage.h"

#include "office/card/CardTexts.h"
#include "office/records/ConflictNotice.h"
#include "office/records/LeftBehind.h"
#include "platform/Failure.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "platform/system/Desktop.h"
#include "startup/CController.h"
#include "startup/Notices.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/FieldWidth.h"
#include "ui/page/SharedRecords.h"
#include "ui/page/Workplace.h"
#include "ui_OptionsPage.h"

#include <algorithm>
#include <QFileDialog>

namespace ptk {

namespace {

constexpr auto kUpdateText = "An error occurred while updating the system options in the database.";
constexpr auto kRestoreTitle = "Restore Options Error";
constexpr auto kRestoreText = "An error occurred while restoring system options from the database.";

constexpr auto kApplied = "Options applied";
constexpr auto kRestored = "Options restored";

constexpr auto kOptionsUnstored = "The options could not be stored: ";
constexpr auto kOptionsUnread = "The options could not be read: ";
constexpr auto kLeft = "What was typed was not applied";
constexpr auto kLimitsUnread = "The limits of the check could not be read: ";

constexpr auto kFolderTitle = "Folder for a Second Copy of Backups";

constexpr auto kTimeFormat = "hh:mm:ss AM/PM";

constexpr int kDaysPerWeek = 7;
const DateTime kSunday(CalendarDate{1899, 12, 31});

} // namespace

OptionsPage::OptionsPage(Workplace& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::OptionsPage>())
{
    m_ui->setupUi(this);
    LimitWidth(*this, fieldwidth::Page);
    for (int day = 0; day < kDaysPerWeek; ++day) {
        m_ui->cboFirstWeekday->addItem(QString::fromStdString(WeekdayName(kSunday.AddDays(day))));
    }
    ChooseOnlyDeliberately(*m_ui->cboFirstWeekday);
    m_ui->fraCheck->setEnabled(false);
    AlignFrames();
    m_ui->dttbAutoShiftStartTime->SetDisplayFormat(kTimeFormat);
    m_ui->dttbAutoShiftEndTime->SetDisplayFormat(kTimeFormat);
    connect(m_ui->txtPeriodLength, &QLineEdit::textChanged, this, &OptionsPage::ShowExample);
    connect(m_ui->cmdBackupFolder, &QPushButton::clicked, this, &OptionsPage::BrowseForFolder);
    connect(m_ui->cmdApplyOptions, &QPushButton::clicked, this, &OptionsPage::Apply);
    connect(m_ui->cmdCancelOptions, &QPushButton::clicked, this, &OptionsPage::Cancel);
}

OptionsPage::~OptionsPage() = default;

// Aligns the boxes of all frames below each other.
void OptionsPage::AlignFrames()
{
    const int label = std::max(m_ui->lblPeriodLength->sizeHint().width(), m_ui->lblLongShift->sizeHint().width());
    for (QWidget* first : {m_ui->lblPeriodLength, m_ui->lblAutoShiftStartTime, m_ui->lblLongShift, m_ui->lblBackupFolder}) {
        first->setMinimumWidth(label);
    }
    const int box = m_ui->dttbAutoShiftStartTime->sizeHint().width();
    for (QWidget* second : {static_cast<QWidget*>(m_ui->txtPeriodLength), static_cast<QWidget*>(m_ui->txtLongShift),
                            static_cast<QWidget*>(m_ui->cboFirstWeekday)}) {
        second->setMinimumWidth(box);
    }
}

// Shows an example of a period, since a period of 14 days deliberately has 15: the user sees it before a payday depends on it.
void OptionsPage::ShowExample()
{
    const std::string length = m_ui->txtPeriodLength->text().toStdString();
    m_ui->lblPeriodExample->setText(QString::fromStdString(PeriodExample(length, m_host.Clock().Today())));
}

bool OptionsPage::DisplaySystemOptions(const std::shared_ptr<CSystemOptions>& options)
{
    if (options == nullptr) {
        return false;
    }
    ShowTexts(ShowOptions(*options));
    m_shown = Texts();
    ShowBackupFolder();
    return true;
}

void OptionsPage::ShowTexts(const OptionTexts& texts)
{
    m_ui->txtPeriodLength->setText(QString::fromStdString(texts.periodLength));
    m_ui->dttbAutoShiftStartTime->SetText(QString::fromStdString(texts.autoShiftStart));
    m_ui->dttbAutoShiftEndTime->SetText(QString::fromStdString(texts.autoShiftEnd));
}

OptionTexts OptionsPage::Texts() const
{
    return {m_ui->txtPeriodLength->text().toStdString(), m_ui->dttbAutoShiftStartTime->Text().toStdString(),
            m_ui->dttbAutoShiftEndTime->Text().toStdString()};
}

void OptionsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_limits) {
        LoadLimits();
    }
}

void OptionsPage::LoadLimits()
{
    const auto controller = m_host.Controller();
    if (controller == nullptr || controller->PTKDatabase() == nullptr) {
        return;
    }
    const auto load = [&] {
        const BusyPointer busy(m_host.Desktop());
        m_limits = LoadCheckLimits(controller->PTKDatabase());
    };
    Succeeds(load, [this](const Failure& reason) { Complain(kLimitsUnread, reason); });
    ShowStoredLimits();
}

// Limits that could not be read cannot be changed here either.
void OptionsPage::ShowStoredLimits()
{
    m_ui->fraCheck->setEnabled(m_limits.has_value());
    ShowLimitTexts(m_limits ? ShowLimits(*m_limits) : LimitTexts());
}

void OptionsPage::ShowLimitTexts(const LimitTexts& texts)
{
    m_ui->txtLongShift->setText(QString::fromStdString(texts.longShiftHours));
    m_ui->cboFirstWeekday->setCurrentIndex(texts.firstWeekday);
    m_ui->chkShowNotices->setChecked(texts.showNotices);
}

LimitTexts OptionsPage::Limits() const
{
    return {m_ui->txtLongShift->text().toStdString(), m_ui->cboFirstWeekday->currentIndex(), m_ui->chkShowNotices->isChecked()};
}

bool OptionsPage::StoreLimits()
{
    const LimitTexts texts = Limits();
    if (!m_limits || texts == ShowLimits(*m_limits)) {
        return true;
    }
    const auto limits = ReadLimits(texts);
    const auto database = m_host.Database();
    if (!limits || !SaveCheckLimits(database, *limits, *m_limits)) {
        return false;
    }
    m_limits = limits;
    emit LimitsStored();
    return true;
}

bool OptionsPage::SaveOptions()
{
    const auto controller = m_host.Controller();
    const auto options = controller == nullptr ? nullptr : controller->SystemOptions();
    if (options == nullptr) {
        return false;
    }
    return StoreOptions(*options, Texts());
}

bool OptionsPage::SaveSystemOptions()
{
    m_conflict.reset();
    return Succeeds([this] { return Refusal().empty() && SaveToDatabase() && StoreBackupFolder(); },
                    [this](const Failure& reason) { m_host.Log(reason.Number(), kOptionsUnstored + reason.Description()); });
}

// Saves options and limits in one step of the edit trail. The hold also makes the database forget an earlier conflict.
bool OptionsPage::SaveToDatabase()
{
    const auto database = Required(m_host.Controller())->PTKDatabase();
    const CJetDB::Hold hold(database);
    const CJetDB::Step step(database);
    const bool saved = SaveOptions() && StoreLimits();
    if (saved) {
        m_shown = Texts();
    } else {
        TakeRefusal(*Required(database));
    }
    m_host.SharedRecords().Remember();
    return saved;
}

// Keeps and logs why the database refused. It has no reason to give where a typed text was refused before it was asked.
void OptionsPage::TakeRefusal(const CJetDB& database)
{
    m_conflict = database.Conflict();
    const Failure& reason = database.LastFailure();
    if (reason.Number() != 0) {
        m_host.Log(reason.Number(), kOptionsUnstored + reason.Description());
    }
}

void OptionsPage::ForgetLimits()
{
    m_limits.reset();
    if (isVisible()) {
        LoadLimits();
    }
}

bool OptionsPage::StoreBackupFolder()
{
    return Required(m_host.Controller())->SecondBackupFolder(BackupFolder());
}

std::string OptionsPage::BackupFolder() const
{
    return m_ui->txtBackupFolder->text().toStdString();
}

void OptionsPage::ShowBackupFolder()
{
    Succeeds([this] { m_ui->txtBackupFolder->setText(QString::fromStdString(Required(m_host.Controller())->SecondBackupFolder())); });
}

void OptionsPage::BrowseForFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, kFolderTitle, m_ui->txtBackupFolder->text());
    if (!folder.isEmpty()) {
        m_ui->txtBackupFolder->setText(folder);
    }
}

bool OptionsPage::RestoreSystemOptions()
{
    const auto controller = m_host.Controller();
    return controller != nullptr && DisplaySystemOptions(controller->SystemOptions());
}

void OptionsPage::Apply()
{
    m_ui->notice->Clear();
    const bool saved = [this] {
        const BusyPointer busy(m_host.Desktop());
        return SaveSystemOptions();
    }();
    if (saved) {
        m_ui->notice->Say(kApplied);
    } else if (m_conflict) {
        AskForPresent();
    } else {
        m_host.Desktop().Show(kUpdateText, notice::OptionsUnsaved.title, Icon::Exclamation);
        m_ui->notice->Say(QString::fromStdString(Refusal()));
    }
}

void OptionsPage::AskForPresent()
{
    if (AskToLoad(m_host.Desktop(), notice::OptionsUnsaved.title, *m_conflict, ConflictText(*m_conflict, {}))) {
        Succeeds([this] { LoadPresent(); }, [this](const Failure& reason) { Complain(kOptionsUnread, reason); });
    }
}

void OptionsPage::LoadPresent()
{
    const LeftBehind<OptionTexts> left{m_shown, Texts()};
    const LeftBehind<LimitTexts> leftLimits{m_limits ? ShowLimits(*m_limits) : LimitTexts(), Limits()};
    const auto controller = Required(m_host.Controller());
    {
        const CJetDB::Hold hold(controller->PTKDatabase());
        RequireOpen(*m_host.Database());
        m_host.Options()->Load();
        m_limits = LoadCheckLimits(controller->PTKDatabase());
    }
    DisplaySystemOptions(controller->SystemOptions());
    ShowStoredLimits();
    m_ui->notice->Offer(kLeft, kBringBack, [this, left, leftLimits] {
        ShowTexts(TypedOver(left, Texts()));
        ShowLimitTexts(TypedOver(leftLimits, Limits()));
    });
}

void OptionsPage::Complain(const char* what, const Failure& reason)
{
    m_ui->notice->Say(QString::fromStdString(what + reason.Description()));
    m_host.Log(reason.Number(), what + reason.Description());
}

// Why the typed limits or the typed folder cannot be stored; empty where they can, and the failure lies elsewhere.
std::string OptionsPage::Refusal() const
{
    const std::string limits = m_limits ? LimitRefusal(Limits()) : std::string();
    return limits.empty() ? Required(m_host.Controller())->SecondFolderRefusal(BackupFolder()) : limits;
}

void OptionsPage::Cancel()
{
    m_ui->notice->Clear();
    ShowStoredLimits();
    if (RestoreSystemOptions()) {
        m_ui->notice->Say(kRestored);
    } else {
        m_host.Desktop().Show(kRestoreText, kRestoreTitle, Icon::Exclamation);
    }
}

} // namespace ptk
