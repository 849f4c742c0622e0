#include "ui/timecards/TimeCardPage.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "office/card/CardFindings.h"
#include "office/card/CardRecords.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"
#include "ui/page/PageHost.h"
#include "ui/reports/OpenReports.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardStoring.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/timecards/FAutoFill.h"
#include "ui/timecards/FTimeEditor.h"
#include "ui/timecards/HistoryActions.h"
#include "ui/widgets/EmployeeModels.h"
#include "ui_TimeCardPage.h"

#include <QScopedValueRollback>

namespace ptk {

namespace {

using namespace timecardnotice;

constexpr auto kStatusName = "Timecards";
constexpr auto kNothingToFill = "Generate a time card first.";

constexpr auto kTryAgain = "Try again";
constexpr auto kRecordNotSaved = "Record not saved";
constexpr auto kRecordNotDeleted = "Record not deleted";
constexpr auto kRecordsNotFilled = "Records not filled in";
constexpr auto kNothingFilled = "No records were filled in";
constexpr auto kNoEditor = "The record cannot be edited now";
constexpr auto kNotToDelete = "The record cannot be deleted now";
constexpr auto kNoAutoFill = "Auto Fill needs an employee of the list and two dates";
constexpr auto kOpenElsewhere = "Open Record";
constexpr auto kNoHistory = "Choose an employee and two dates to see what was changed";
constexpr auto kNotPrinted = "The card was not printed";

QString Line(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

// The choice is made first, so that Tab comes to it first.
TimeCardPage::TimeCardPage(PageHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::TimeCardPage>()), m_choice(new CardChoice(host, this))
{
    m_ui->setupUi(this);
    m_ui->layout->insertWidget(0, m_choice);
    m_card = new CurrentCard(host, {*m_choice, *m_ui->lblTCStrange, *m_ui->display, *m_ui->notice}, this);
    m_storing = std::make_unique<CardStoring>(host, *m_card, *m_ui->notice);
    ConnectChoice();
    ConnectActions();
    ConnectHistory();
    m_card->ClearTimeCardDisplay();
}

TimeCardPage::~TimeCardPage() = default;

void TimeCardPage::ConnectChoice()
{
    connect(m_choice, &CardChoice::PeriodTyped, this, &TimeCardPage::ShowStatus);
    connect(m_choice, &CardChoice::Stepped, this, &TimeCardPage::TurnToChosenEmployee);
    connect(m_choice, &CardChoice::EmployeeChosen, this, &TimeCardPage::ChooseEmployee);
    connect(m_choice, &CardChoice::GenerateAsked, this, &TimeCardPage::Generate);
    connect(m_card, &CurrentCard::Rebuilt, this, &TimeCardPage::EnableFill);
    connect(&m_host.EmployeeModels(), &EmployeeModels::Saved, m_card, &CurrentCard::RenewFor);
}

void TimeCardPage::ConnectActions()
{
    connect(m_ui->cmdTCNew, &QPushButton::clicked, this, &TimeCardPage::NewRecord);
    connect(m_ui->cmdTCEdit, &QPushButton::clicked, this, &TimeCardPage::EditRecord);
    connect(m_ui->display, &CardDisplay::EditAsked, this, &TimeCardPage::EditRecord);
    connect(m_ui->cmdTCDelete, &QPushButton::clicked, this, &TimeCardPage::DeleteRecord);
    connect(m_ui->display, &CardDisplay::DeleteAsked, this, &TimeCardPage::DeleteRecord);
    connect(m_ui->display, &CardDisplay::Elsewhere, this, &TimeCardPage::OfferElsewhere);
    connect(m_ui->display, &CardDisplay::EditElsewhereAsked, this, &TimeCardPage::EditElsewhere);
    connect(m_ui->display, &CardDisplay::DeleteElsewhereAsked, this, &TimeCardPage::DeleteElsewhere);
    connect(m_ui->cmdFill, &QPushButton::clicked, this, [this] { AutoFill({}); });
    connect(m_ui->cmdTCPrint, &QPushButton::clicked, this, &TimeCardPage::Print);
}

void TimeCardPage::ConnectHistory()
{
    m_history = new HistoryActions(*m_choice, *m_card, *m_ui->display, this);
    connect(m_history, &HistoryActions::Wanted, this, &TimeCardPage::HistoryWanted);
    connect(m_history, &HistoryActions::NothingChosen, this, [this] { m_ui->notice->Say(kNoHistory); });
}

void TimeCardPage::AskForHistory()
{
    m_history->Ask();
}

// Another page may have taken the marker over in the meantime; a row that cannot be edited must not look chosen.
void TimeCardPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_host.EventSource() != eventsource::TimeRecordGrid) {
        m_card->ForgetChosenRecord();
    }
    if (!std::exchange(m_seen, true)) {
        m_choice->FocusEmployee();
    }
}

bool TimeCardPage::InitializePayPeriod()
{
    return m_choice->InitializePayPeriod();
}

bool TimeCardPage::ClearTimeCardDisplay()
{
    return m_card->ClearTimeCardDisplay();
}

void TimeCardPage::GiveUpCard()
{
    m_card->GiveUp();
}

void TimeCardPage::EnableFill()
{
    const bool hasCard = m_card->Card() != nullptr;
    m_ui->cmdFill->setEnabled(hasCard);
    m_ui->cmdFill->setToolTip(hasCard ? QString() : kNothingToFill);
}

void TimeCardPage::SelectFirstEmployee()
{
    m_choice->SelectFirstEmployee();
}

void TimeCardPage::ChooseEmployee()
{
    m_host.EventSource(eventsource::Name);
    m_card->Mean({});
    if (!m_choice->EmployeeText().empty()) {
        m_employeeName = m_choice->EmployeeText();
        ShowStatus();
    }
    m_card->ForgetChosenRecord();
    m_ui->notice->Clear();
}

void TimeCardPage::TurnToChosenEmployee()
{
    if (m_choice->EmployeeText().empty()) {
        return;
    }
    ShowChoice();
    m_card->ClearTimeCardDisplay();
    m_ui->notice->Clear();
}

void TimeCardPage::ShowChoice()
{
    m_employeeName = m_choice->EmployeeText();
    ShowStatus();
}

void TimeCardPage::ShowStatus()
{
    m_host.SetStatusText(kStatusName, m_employeeName + " : " + m_choice->PeriodText());
}

void TimeCardPage::EnablePrint()
{
    m_ui->cmdTCPrint->setEnabled(true);
}

PeriodTexts TimeCardPage::Period() const
{
    return m_choice->PeriodTexts();
}

std::optional<PayPeriod> TimeCardPage::ChosenPeriod() const
{
    std::optional<PayPeriod> period;
    Succeeds([&] { period = m_choice->Period(); });
    return period;
}

std::optional<std::int32_t> TimeCardPage::ChosenEmployee() const
{
    return m_choice->EmployeeID();
}

void TimeCardPage::ShowCard(std::int32_t employeeID, const PayPeriod& period)
{
    m_ui->display->OpenFindings();
    m_choice->Period(period);
    m_choice->Employee(employeeID);
    ChooseEmployee();
    m_card->Mean(employeeID);
    Generate();
    m_ui->display->setFocus();
}

void TimeCardPage::CheckAgain()
{
    m_card->CheckAgain();
}

void TimeCardPage::ReadAgain(std::optional<std::int64_t> row)
{
    m_card->Renew();
    if (row) {
        m_ui->display->ChooseRowOf(*row);
    }
    m_ui->notice->Remark({});
}

void TimeCardPage::TellChanges()
{
    m_card->TellChanges();
}

void TimeCardPage::ShowHours(bool shown)
{
    m_ui->display->ShowHours(shown);
}

bool TimeCardPage::HoursShown() const
{
    return m_ui->display->HoursShown();
}

void TimeCardPage::Generate()
{
    Succeeds([this] { m_choice->KeepAsLastUsed(); }); // of what is no period the generation says so
    if (!m_card->RefreshTimeCard()) {
        Tell(m_host.Desktop(), kNotGenerated);
    }
}

void TimeCardPage::NewRecord()
{
    if (m_card->Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCardForNew);
    }
    OpenEditor({std::make_shared<CTimeRecord>(), true, {}});
}

void TimeCardPage::EditRecord()
{
    if (m_card->Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    const auto record = m_card->ChosenRecord();
    if (record == nullptr) {
        return Tell(m_host.Desktop(), kNoneToEdit);
    }
    OpenEditor({record, false, {}});
}

void TimeCardPage::OfferElsewhere(const FindingPlace& place)
{
    if (place.elsewhere.empty()) {
        return m_ui->notice->Clear();
    }
    m_ui->notice->Offer(Line(place.text), kOpenElsewhere, [this, punch = *place.elsewhere.front()] { EditElsewhere(punch); });
}

std::shared_ptr<CTimeRecord> TimeCardPage::RecordElsewhere(const Punch& punch, const char* refused)
{
    const auto card = m_card->Card();
    const auto employee = card == nullptr ? nullptr : card->Employee();
    auto record = employee == nullptr ? nullptr : RecordToEdit(punch, employee->EmployeeID());
    if (record == nullptr) {
        m_ui->notice->Say(refused);
    }
    return record;
}

void TimeCardPage::EditElsewhere(const Punch& punch)
{
    if (const auto record = RecordElsewhere(punch, kNoEditor)) {
        OpenEditor({record, false, {}});
    }
}

void TimeCardPage::DeleteElsewhere(const Punch& punch)
{
    if (const auto record = RecordElsewhere(punch, kNotToDelete)) {
        Delete(record);
    }
}

// A record that could not be stored is again what it was, so that nobody stores it unasked later on; what was typed is offered again.
void TimeCardPage::OpenEditor(const Editing& editing)
{
    const auto edit = [&] {
        FTimeEditor editor(m_host.Desktop(), m_host.Clock(), this);
        const QScopedValueRollback<const FTimeEditor*> open(m_editor, &editor);
        const CTimeRecord before = *editing.record;
        Prepare(editor, editing);
        m_editingNew = editing.isNew;
        m_refused = false;
        editor.exec();
        if (m_refused) {
            *editing.record = before;
            EditAgain(editing, editor.Texts());
        }
        return true;
    };
    if (!Succeeds(edit)) {
        m_ui->notice->Say(kNoEditor);
    }
}

// What somebody else changed meanwhile is edited as it is now; what was removed, as a new record.
void TimeCardPage::EditAgain(const Editing& editing, const RecordTexts& typed)
{
    Editing again{editing.record, editing.isNew, typed};
    if (const auto& conflict = m_storing->Conflict()) {
        again.isNew = conflict->Removed();
        again.record = RecordToTryAgain(*editing.record, *conflict);
    }
    if (again.record != nullptr) {
        OfferAgain([this, again] { OpenEditor(again); });
    }
}

void TimeCardPage::Prepare(FTimeEditor& editor, const Editing& editing)
{
    const auto options = Required(Controller()->SystemOptions());
    editor.TimeRecord(editing.record);
    editor.ParentWindow(this);
    editor.SetAutoShiftTimes(options->AutoShiftStartTime(), options->AutoShiftEndTime());
    editor.Owner(RecordOwnerText(m_card->Employee(), m_choice->Chosen().employee));
    if (editing.typed) {
        editor.Texts(*editing.typed);
    }
    editor.WarnAbove(m_card->LongShiftHours());
    if (editing.isNew) {
        editor.WarnAsNew(ChosenPeriod());
    }
}

bool TimeCardPage::ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    const auto store = [&](CTimeCard& card, CTimeRecordFactory& factory) { return StoreRecord(card, factory, thetimerecord); };
    const std::string saved = m_editor == nullptr ? "Record saved for " + m_card->Employee() : m_editor->SavedText(m_card->Employee());
    m_refused = !m_storing->Store({store, kNotStored, kRecordNotSaved, saved, thetimerecord});
    return true;
}

void TimeCardPage::DeleteRecord()
{
    if (m_card->Card() == nullptr) {
        return Tell(m_host.Desktop(), kNoCard);
    }
    const auto record = m_card->ChosenRecord();
    if (record == nullptr) {
        return Tell(m_host.Desktop(), kNoneToDelete);
    }
    Delete(record);
}

void TimeCardPage::Delete(const std::shared_ptr<CTimeRecord>& record)
{
    if (m_host.Desktop().MessageBox(kDeleteQuestion.text, kDeleteQuestion.title, kDeleteQuestion.icon, Buttons::YesNo) != Answer::Yes) {
        return;
    }
    const auto remove = [&](CTimeCard& card, CTimeRecordFactory& factory) { return StoreDeletion(card, factory, record); };
    m_storing->Store({remove, kNotDeleted, kRecordNotDeleted, "Record of " + m_card->Employee() + " deleted", record});
}

// Without a card, or with a name that nobody has, there is nothing to fill.
void TimeCardPage::AutoFill(const std::optional<FillTexts>& typed)
{
    const auto fill = [&] {
        FAutoFill window(m_host.Desktop(), m_host.Clock(), this);
        HandOver(window);
        if (typed) {
            window.Times(*typed);
        }
        const std::int32_t before = Required(window.TimeRecordList())->Count();
        const bool saved = window.exec() == QDialog::Accepted;
        if (window.OKClick()) {
            TakeOver(window, window.TimeRecordList()->Count() - before);
        } else if (saved) {
            m_ui->notice->Say(kNothingFilled);
        }
        return true;
    };
    if (!Succeeds(fill)) {
        m_ui->notice->Say(kNoAutoFill);
    }
}

void TimeCardPage::HandOver(FAutoFill& window)
{
    const auto controller = Controller();
    const auto options = Required(controller->SystemOptions());
    const PayPeriod period = m_choice->Period();
    window.StartDate(period.from);
    window.EndDate(period.to);
    window.AutoShiftStartTime(options->AutoShiftStartTime());
    window.AutoShiftEndTime(options->AutoShiftEndTime());
    const auto employee = Required(Required(controller->EmployeeList())->GetEmployeeByName(m_choice->EmployeeText()));
    window.EmployeeID(NarrowToInt16(employee->EmployeeID()));
    window.PeriodLength(options->PeriodLength());
    window.TimeRecordList(Required(m_card->Card())->TimeRecordList());
    const BusyPointer busy(m_host.Desktop());
    window.Announce("For " + employee->DisplayName(), DaysWithRecords(*Required(controller->PTKDatabase()), employee->EmployeeID()));
}

void TimeCardPage::TakeOver(const FAutoFill& window, std::int32_t records)
{
    m_choice->Period({window.StartDate(), window.EndDate()});
    ShowStatus();
    const FillTexts texts = window.Texts();
    const std::string done = CountText(records, "record") + " filled in for " + m_choice->EmployeeText();
    if (!m_storing->Store({StoreCard, kNotFilled, kRecordsNotFilled, done, nullptr})) {
        OfferAgain([this, texts] { AutoFill(texts); });
    }
}

// Beside what the line says already.
void TimeCardPage::OfferAgain(const std::function<void()>& action)
{
    m_ui->notice->Offer(m_ui->notice->Text(), kTryAgain, action);
}

void TimeCardPage::Print()
{
    const auto tell = [this](std::int32_t number) {
        m_host.Desktop().Show(std::to_string(number) + " : " + kPrintText, kPrintTitle, Icon::Information);
    };
    const auto print = [&] {
        if (!m_card->RefreshTimeCard()) {
            tell(Required(m_card->Card())->ErrorNumber());
        }
        std::int32_t errorNumber = 0;
        if (!m_host.Reports().PrintTimeCard(m_card->Card(), errorNumber)) {
            tell(errorNumber);
        }
    };
    if (!Succeeds(print)) {
        m_ui->notice->Say(kNotPrinted);
    } else {
        m_card->TellProblems();
    }
}

std::shared_ptr<CController> TimeCardPage::Controller() const
{
    return Required(m_host.Controller());
}

} // namespace ptk
