#include "ui/timecards/CardMending.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/payday/PaidText.h"
#include "office/card/CardOffers.h"
#include "office/card/CardRecords.h"
#include "office/card/CheckedTimecard.h"
#include "office/card/Mending.h"
#include "office/card/TimeCardNotices.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "ui/page/Workplace.h"
#include "ui/timecards/CardReasons.h"
#include "ui/timecards/CardStoring.h"
#include "ui/timecards/CurrentCard.h"
#include "ui/widgets/NoticeLine.h"

#include <algorithm>
#include <array>

namespace ptk {

namespace {

using namespace timecardnotice;

constexpr auto kPaidTitle = "Change a Paid Period?";
constexpr auto kPaidEnd = ". Change it all the same?";
constexpr auto kNotMended = "Not mended";
constexpr auto kNotMendedNow = "This cannot be mended now";

// The record that the remedy changes; nullptr where it is not among the rows.
std::shared_ptr<CTimeRecord> ChangedRecord(const Remedy& remedy, const Punches& rows, std::int32_t employeeID)
{
    const auto& record = remedy.changes.front().record;
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Punch& punch) { return record == punch.id; });
    return found == rows.end() ? nullptr : RecordToEdit(*found, employeeID);
}

} // namespace

CardMending::CardMending(Workplace& host, CurrentCard& card, CardStoring& storing, NoticeLine& line, QObject* parent)
    : QObject(parent), m_host(host), m_card(card), m_storing(storing), m_line(line)
{
}

void CardMending::Do(const CardOffer& offer)
{
    const auto act = [&] {
        switch (offer.kind) {
        case OfferKind::Mend:
            return Mend(offer.remedy);
        case OfferKind::Rate:
            return emit RateWanted(EmployeeID());
        case OfferKind::Changes:
            return emit ChangesWanted();
        }
    };
    if (!Succeeds(act)) {
        m_line.Say(kNotMendedNow);
    }
}

std::int32_t CardMending::EmployeeID() const
{
    const auto card = Required(m_card.Card());
    return Required(card->Employee())->EmployeeID();
}

std::optional<std::string> CardMending::Permission(const Remedy& remedy)
{
    if (!remedy.Deletes() && !m_card.IsPaid()) {
        return std::string();
    }
    ReasonLine why = ReasonFor(m_host, m_card);
    const auto& deletion = kDeleteQuestion;
    const Answer answer = remedy.Deletes()
                              ? m_host.Desktop().AskWithReason(deletion.text, deletion.title, deletion.icon, Buttons::YesNo, why)
                              : m_host.Desktop().AskWithReason(PaidText(*m_card.Checked()->paid) + ". " + remedy.text + kPaidEnd,
                                                               kPaidTitle, Icon::Question, Buttons::OkCancel, why);
    return answer == Answer::Yes || answer == Answer::Ok ? std::optional(why.reason) : std::nullopt;
}

// Mends the rows as they were checked, so that nothing that somebody else has changed since is overwritten.
void CardMending::Mend(const Remedy& remedy)
{
    const auto why = Permission(remedy);
    if (!why) {
        return;
    }
    const auto checked = Required(m_card.Checked());
    const std::int32_t employeeID = EmployeeID();
    const auto database = m_host.Database();
    const auto mend = [&](CTimeCard&, CTimeRecordFactory&) {
        return ptk::Mend(*database, std::array{Mending{employeeID, &checked->punches, remedy.changes}});
    };
    const auto& failed = remedy.Deletes() ? kNotDeleted : kNotStored;
    const std::string done = m_card.Employee() + ": " + remedy.what;
    const auto record = ChangedRecord(remedy, checked->punches, employeeID);
    if (m_storing.Store({mend, failed, kNotMended, done, record, *why, true}) && !m_card.ChosenFinding()) {
        GoOn(checked->period);
    }
}

// Goes on to the next card. The line says what was done beside what is said of the next card.
void CardMending::GoOn(const PayPeriod& period)
{
    const QString done = m_line.Text();
    emit NextCardWanted(period);
    const QString next = m_line.Text();
    if (next == done || next.isEmpty()) {
        return m_line.Remark(done);
    }
    if (m_line.IsOffering()) {
        m_line.SayBefore(done);
    } else {
        m_line.Say(done + "; " + next);
    }
}

} // namespace ptk
