#include "ui/timecards/CurrentCard.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "office/card/CardTexts.h"
#include "office/card/CheckedTimecard.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Clock.h"
#include "startup/CController.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardDisplay.h"
#include "ui/widgets/HintLabel.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

using namespace timecardnotice;

namespace {

constexpr auto kWasChanged = " was changed";
constexpr auto kRecordsChanged = "'s records were changed";
constexpr auto kHasProblems = "'s card has problems: F9";
constexpr auto kNoEdits = "Who changed the records of the card could not be read: ";

} // namespace

CurrentCard::CurrentCard(PageHost& host, const Place& place, QObject* parent)
    : QObject(parent), m_host(host), m_choice(place.choice), m_mark(place.mark), m_display(place.display), m_line(place.line)
{
    connect(&m_choice, &CardChoice::Changed, this, &CurrentCard::Mark);
    connect(&m_display, &CardDisplay::RowChosen, this, [this] { m_host.EventSource(eventsource::TimeRecordGrid); });
}

void CurrentCard::Mark()
{
    const CardName chosen = m_choice.Chosen();
    const bool shown = m_display.ShowsCard();
    const std::string strange = m_card == nullptr ? std::string() : StrangeCardText(CardNameOf(*m_card), shown, chosen);
    m_mark.setVisible(!strange.empty()); // without a text its room is for the rows
    m_mark.Say(QString::fromStdString(strange));
    m_display.SetStrange(shown && !strange.empty());
    m_display.SetHint(QString::fromStdString(NextStepText(chosen)));
}

// After a run-time failure nothing is shown, because the rows would be those of a card that is no longer the current one.
bool CurrentCard::RefreshTimeCard()
{
    m_line.Clear();
    const auto refresh = [this] {
        if (m_choice.EmployeeText().empty()) {
            Tell(m_host.Desktop(), kNoEmployeeChosen);
        } else if (Regenerate()) {
            m_line.Say(QString::fromStdString(GeneratedText(*m_card)));
        }
    };
    if (Succeeds(refresh)) {
        return true;
    }
    ClearTimeCardDisplay();
    return false;
}

std::shared_ptr<CEmployee> CurrentCard::EmployeeToShow() const
{
    const auto list = m_host.Employees();
    const bool preferred = m_preferred && m_preferred == m_choice.EmployeeID();
    return preferred ? list->GetEmployeeByID(*m_preferred) : list->GetEmployeeByName(m_choice.EmployeeText());
}

bool CurrentCard::GenerateTimeCard()
{
    m_card = nullptr;
    m_checked = nullptr;
    const auto controller = Required(m_host.Controller());
    const auto employee = EmployeeToShow();
    const auto card = std::make_shared<CTimeCard>(Required(controller->TimeRecordFactory()));
    m_card = card;
    card->PTKDatabase(controller->PTKDatabase());
    const bool generated = Load(*card, employee, m_choice.Period());
    if (!generated) {
        ReportCardError(card->ErrorNumber());
        Complain(UnreadText(*card));
    }
    return generated;
}

// Loads and checks the card. The busy pointer has ended before the caller tells of a failure.
bool CurrentCard::Load(CTimeCard& card, const std::shared_ptr<CEmployee>& employee, const PayPeriod& period)
{
    const BusyPointer busy(m_host.Desktop());
    const auto controller = Required(m_host.Controller());
    const auto database = controller->PTKDatabase();
    const auto options = m_host.Options();
    if (employee != nullptr) {
        m_host.SharedRecords().AboutToRead(Watched::CardRecords, employee->EmployeeID());
    }
    const CJetDB::Hold hold(database);
    m_checked =
        std::make_shared<CheckedTimecard>(GenerateChecked(card, database, employee, period, m_host.Clock().Now(), std::nullopt,
                                                          AutoShiftEnd(options->AutoShiftStartTime(), options->AutoShiftEndTime())));
    m_edits.clear();
    if (m_checked->generated) {
        ReadEdits(card);
    }
    return m_checked->generated;
}

// Reads who changed the records. Where that fails the card is shown all the same.
void CurrentCard::ReadEdits(const CTimeCard& card)
{
    Succeeds([&] { m_edits = ReadRecordEdits(Required(m_host.Controller())->PTKDatabase(), card); },
             [this](const Failure& reason) { m_host.Log(reason.Number(), kNoEdits + reason.Description()); });
}

void CurrentCard::ReportCardError(std::int32_t errorNumber)
{
    for (const auto& error : kCardErrors) {
        if (error.number == errorNumber) {
            return Tell(m_host.Desktop(), error.notice);
        }
    }
}

bool CurrentCard::Regenerate()
{
    const bool generated = GenerateTimeCard();
    if (generated) {
        ShowTimeCard();
    } else {
        ClearTimeCardDisplay();
        ShowFindings();
    }
    return generated;
}

// The record is saved by then, so a card that cannot be shown again is told in a box of its own.
void CurrentCard::RegenerateAfterSave()
{
    if (!Succeeds([this] { Regenerate(); })) {
        ClearTimeCardDisplay();
        Tell(m_host.Desktop(), kNotGenerated);
    }
}

bool CurrentCard::ReadAgain()
{
    static_cast<void>(Required(m_card));
    return m_display.ShowsCard() || m_display.ShowsFindings() ? LoadAgain() : true;
}

// Loads the card again for its own employee and period, whatever the boxes say by now.
bool CurrentCard::LoadAgain()
{
    const auto card = Required(m_card);
    if (Load(*card, card->Employee(), {card->StartDate(), card->EndDate().AddDays(-1)})) {
        ShowTimeCard();
        return true;
    }
    const bool noneLeft = UnreadText(*card).empty();
    if (noneLeft) {
        ClearTimeCardDisplay();
    }
    if (!m_display.ShowsCard()) {
        ShowFindings();
    }
    return noneLeft;
}

void CurrentCard::CheckAgain()
{
    Succeeds([this] { return ReadAgain(); });
}

void CurrentCard::RenewFor(std::int32_t savedEmployee)
{
    if (m_card != nullptr && m_card->Employee() != nullptr && m_card->Employee()->EmployeeID() == savedEmployee) {
        Renew();
    }
}

// Whether the card is shown or is what the boxes name; the latter covers a card that had no records left.
bool CurrentCard::IsWanted() const
{
    return m_display.ShowsCard() || m_display.ShowsFindings() || CardNameOf(*m_card) == m_choice.Chosen();
}

void CurrentCard::Renew()
{
    const auto card = m_card;
    if (card == nullptr || card->Employee() == nullptr) {
        return;
    }
    const auto renew = [&] {
        const std::int32_t id = card->Employee()->EmployeeID();
        const auto list = m_host.Employees();
        m_host.SharedRecords().AboutToRead(Watched::CardEmployee, id);
        const bool wanted = IsWanted();
        card->Employee(Required(list->GetEmployeeByID(id)));
        return !wanted || LoadAgain();
    };
    if (Succeeds(renew)) {
        Mark();
    } else {
        ClearTimeCardDisplay();
    }
}

void CurrentCard::TellChanges()
{
    if (m_card == nullptr || m_card->Employee() == nullptr || !m_display.ShowsCard()) {
        return;
    }
    SharedRecords& records = m_host.SharedRecords();
    const std::int32_t id = m_card->Employee()->EmployeeID();
    if (records.IsChanged(Watched::CardEmployee, id)) {
        records.OfferLoad(m_line, Employee() + kWasChanged);
    } else if (records.IsChanged(Watched::CardRecords, id)) {
        records.OfferLoad(m_line, Employee() + kRecordsChanged);
    }
}

void CurrentCard::TellProblems()
{
    if (m_checked != nullptr && m_checked->check && m_checked->check->problems > 0) {
        m_line.SayBefore(QString::fromStdString(Employee() + kHasProblems));
    }
}

bool CurrentCard::ShowTimeCard()
{
    SetupTimeRecordGrid();
    m_display.DisplayTimeCard(*Required(m_card));
    m_display.ShowEdits(m_edits);
    ShowFindings();
    Mark();
    return false;
}

// Shows the check, also of a card that could not be made: what prevents it, what crosses the ends of its period, and that it is paid.
void CurrentCard::ShowFindings()
{
    const bool tells = m_checked != nullptr && m_checked->check && (!m_checked->check->findings.empty() || m_checked->paid);
    if (m_display.ShowsCard() || tells) {
        m_display.ShowCheck(m_checked);
    }
}

bool CurrentCard::SetupTimeRecordGrid()
{
    m_display.SetupTimeRecordGrid();
    ForgetChosenRecord();
    emit Rebuilt();
    return true;
}

bool CurrentCard::ClearTimeCardDisplay()
{
    m_display.ClearFigures();
    SetupTimeRecordGrid();
    Mark();
    return true;
}

void CurrentCard::ForgetChosenRecord()
{
    m_display.ForgetChoice();
    m_host.EventSource(eventsource::None);
}

bool CurrentCard::IsPaid() const
{
    return m_checked != nullptr && m_checked->paid;
}

std::optional<Finding> CurrentCard::ChosenFinding() const
{
    return m_display.ChosenFinding();
}

bool CurrentCard::ChooseNextFinding(const std::optional<Finding>& done)
{
    return m_display.ChooseNextFinding(done);
}

std::int32_t CurrentCard::LongShiftHours() const
{
    return (m_checked == nullptr ? CheckLimits() : m_checked->limits).longShiftHours;
}

void CurrentCard::TakeKeyboard(std::int64_t record, int place)
{
    m_display.TakeKeyboard(record, place);
}

int CurrentCard::KeyboardPlace() const
{
    return m_display.KeyboardPlace();
}

std::shared_ptr<CTimeRecord> CurrentCard::ChosenRecord() const
{
    return m_host.EventSource() == eventsource::TimeRecordGrid ? m_display.ChosenRecord() : nullptr;
}

void CurrentCard::Complain(const std::string& line)
{
    if (!line.empty()) {
        m_line.Say(QString::fromStdString(line));
        m_host.Log(m_card == nullptr ? 0 : m_card->LastFailure().Number(), line);
    }
}

std::string CurrentCard::Employee() const
{
    return m_card == nullptr ? std::string() : CardNameOf(*m_card).employee;
}

} // namespace ptk
