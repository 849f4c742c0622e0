#include "ui/timecards/TimeCardPage.h"

#include "model/check/Punch.h"
#include "model/CTimeCard.h"
#include "office/card/CardFindings.h"
#include "office/card/TimeCardNotices.h"
#include "office/history/HistoryScope.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/page/PageHost.h"
#include "ui/reports/OpenReports.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardFilling.h"
#include "ui/timecards/CardMending.h"
#include "ui/timecards/CardStoring.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/timecards/HistoryActions.h"
#include "ui/timecards/RecordEditing.h"
#include "ui_TimeCardPage.h"

#include <utility>

namespace ptk {

namespace {

using namespace timecardnotice;

constexpr auto kStatusName = "Timecards";
constexpr auto kNothingToFill = "Generate a time card first.";

constexpr auto kNoHistory = "Choose an employee and two dates to see what was changed";
constexpr auto kNotPrinted = "The card was not printed";

} // namespace

// The choice is created first, so that the Tab key comes to it first.
TimeCardPage::TimeCardPage(PageHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::TimeCardPage>()), m_choice(new CardChoice(host, this))
{
    m_ui->setupUi(this);
    m_ui->layout->insertWidget(0, m_choice);
    m_card = new CurrentCard(host, {*m_choice, *m_ui->lblTCStrange, *m_ui->display, *m_ui->notice}, this);
    m_storing = std::make_unique<CardStoring>(host, *m_card, *m_ui->notice);
    m_records = std::make_unique<RecordEditing>(host, RecordEditing::Place{*this, *m_choice, *m_card, *m_storing, *m_ui->notice});
    m_filling = std::make_unique<CardFilling>(host, CardFilling::Place{*this, *m_choice, *m_card, *m_storing, *m_ui->notice},
                                              [this] { ShowStatus(); });
    m_mending = new CardMending(host, *m_card, *m_storing, *m_ui->notice, this);
    ConnectChoice();
    ConnectActions();
    ConnectFindings();
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
    const auto onClick = [this](const QPushButton* button, auto action) { connect(button, &QPushButton::clicked, this, action); };
    onClick(m_ui->cmdTCNew, [this] { m_records->New(); });
    onClick(m_ui->cmdTCEdit, [this] { m_records->EditChosen(); });
    onClick(m_ui->cmdTCDelete, [this] { m_records->DeleteChosen(); });
    onClick(m_ui->cmdFill, [this] { m_filling->Fill(); });
    onClick(m_ui->cmdTCPrint, [this] { Print(); });
    connect(m_ui->display, &CardDisplay::EditAsked, this, [this] { m_records->EditChosen(); });
    connect(m_ui->display, &CardDisplay::DeleteAsked, this, [this] { m_records->DeleteChosen(); });
}

void TimeCardPage::ConnectFindings()
{
    const CardDisplay* display = m_ui->display;
    connect(display, &CardDisplay::Elsewhere, this, [this](const FindingPlace& place) { m_records->OfferElsewhere(place); });
    connect(display, &CardDisplay::EditElsewhereAsked, this, [this](const Punch& punch) { m_records->EditElsewhere(punch); });
    connect(display, &CardDisplay::DeleteElsewhereAsked, this, [this](const Punch& punch) { m_records->DeleteElsewhere(punch); });
    connect(display, &CardDisplay::RemedyWanted, m_mending, &CardMending::Do);
    connect(m_mending, &CardMending::NextCardWanted, this, &TimeCardPage::NextCardWanted);
    connect(m_mending, &CardMending::RateWanted, this, &TimeCardPage::RateWanted);
}

void TimeCardPage::ConnectHistory()
{
    m_history = new HistoryActions(*m_choice, *m_card, *m_ui->display, this);
    connect(m_history, &HistoryActions::Wanted, this, &TimeCardPage::HistoryWanted);
    connect(m_history, &HistoryActions::NothingChosen, this, [this] { m_ui->notice->Say(kNoHistory); });
    connect(m_mending, &CardMending::ChangesWanted, this, [this] {
        if (const auto since = SincePaid()) {
            emit HistoryWanted(*since);
        }
    });
}

std::optional<HistoryScope> TimeCardPage::SincePaid() const
{
    return m_history->SincePaid();
}

void TimeCardPage::AskForHistory()
{
    m_history->Ask();
}

// Another page may have taken over the marker of what was chosen in the meantime; a row that cannot be edited must not look chosen.
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
    m_card->Prefer({});
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
    return m_choice->PeriodIfDates();
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
    m_card->Prefer(employeeID);
    Generate();
    const QString generated = m_ui->notice->Text();
    if (m_card->ChooseNextFinding({})) {
        m_ui->notice->SayBefore(generated);
    } else {
        m_ui->display->setFocus();
    }
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
    Succeeds([this] { m_choice->KeepAsLastUsed(); }); // the generation complains of texts that are no period
    if (!m_card->RefreshTimeCard()) {
        Tell(m_host.Desktop(), kNotGenerated);
    }
}

bool TimeCardPage::ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord)
{
    return m_records->ReturnTimeRecord(thetimerecord);
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

} // namespace ptk
