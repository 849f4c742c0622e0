#include "ui/timecards/CardFilling.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordList.h"
#include "office/card/CardRecords.h"
#include "office/card/CardTexts.h"
#include "office/card/CheckedTimecard.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "platform/system/Desktop.h"
#include "store/CSystemOptions.h"
#include "ui/editors/FAutoFill.h"
#include "ui/page/Workplace.h"
#include "ui/timecards/CardChoice.h"
#include "ui/timecards/CardReasons.h"
#include "ui/timecards/CardStoring.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

namespace {

constexpr auto kFillAgain = "Try again";
constexpr auto kRecordsNotFilled = "Records not filled in";
constexpr auto kNothingFilled = "No records were filled in";
constexpr auto kNoAutoFill = "Auto Fill needs an employee of the list and two dates";

} // namespace

void CardFilling::Open(const std::optional<Typed>& typed)
{
    const auto fill = [&] {
        FAutoFill window(m_host.Desktop(), m_host.Clock(), &m_place.page);
        HandOver(window);
        ReasonLine reason = ReasonFor(m_host, m_place.card);
        if (typed) {
            window.Times(typed->texts);
            reason.reason = typed->reason;
        }
        window.OfferReasons(reason);
        const std::int32_t before = Required(window.TimeRecordList())->Count();
        const bool saved = window.exec() == QDialog::Accepted;
        if (window.OKClick()) {
            TakeOver(window, window.TimeRecordList()->Count() - before);
        } else if (saved) {
            m_place.line.Say(kNothingFilled);
        }
        return true;
    };
    if (!Succeeds(fill)) {
        m_place.line.Say(kNoAutoFill);
    }
}

void CardFilling::HandOver(FAutoFill& window)
{
    const auto options = m_host.Options();
    const PayPeriod period = m_place.choice.Period();
    window.StartDate(period.from);
    window.EndDate(period.to);
    window.AutoShiftStartTime(options->AutoShiftStartTime());
    window.AutoShiftEndTime(options->AutoShiftEndTime());
    const auto employee = Required(m_host.Employees()->GetEmployeeByName(m_place.choice.EmployeeText()));
    window.EmployeeID(NarrowToInt16(employee->EmployeeID()));
    window.PeriodLength(options->PeriodLength());
    window.TimeRecordList(Required(m_place.card.Card())->TimeRecordList());
    const BusyPointer busy(m_host.Desktop());
    window.Announce("For " + employee->DisplayName(), DaysWithRecords(*m_host.Database(), employee->EmployeeID()));
    if (m_place.card.IsPaid()) {
        window.TellPaid(*m_place.card.Checked()->paid);
    }
}

void CardFilling::TakeOver(const FAutoFill& window, std::int32_t records)
{
    m_place.choice.Period({window.StartDate(), window.EndDate()});
    m_chosen();
    const Typed typed{window.Texts(), window.Reason()};
    const std::string done = CountText(records, "record") + " filled in for " + m_place.choice.EmployeeText();
    if (!m_place.storing.Store({StoreCard, timecardnotice::kNotFilled, kRecordsNotFilled, done, nullptr, typed.reason})) {
        m_place.line.Offer(m_place.line.Text(), kFillAgain, [this, typed] { Open(typed); });
    }
}

} // namespace ptk
