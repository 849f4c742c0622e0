#include "office/card/CardChecker.h"

#include "model/CEmployee.h"
#include "model/check/PaidChanges.h"
#include "model/check/PunchPlace.h"
#include "platform/system/LocalOffset.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

// The days between the last closed period and this one, which lie in no period; nothing if there are none.
std::optional<PayPeriod> GapBefore(const PayPeriod& period, const ClosingsOfEmployee& closings)
{
    if (!closings.lastDayBefore || DaysBetween(*closings.lastDayBefore, period.from) < 2) {
        return std::nullopt;
    }
    return PayPeriod{closings.lastDayBefore->AddDays(1), period.from.AddDays(-1)};
}

// The first day of the preceding period, which has as many days as this one; the calendar's first day if that day lies before it.
DateTime FirstDayBefore(const PayPeriod& period)
{
    const std::int64_t days = std::min(DaysBetween(period.from, period.to) + 1, period.from.DayNumber() - DateTime::kFirstDay);
    return period.from.AddDays(-days);
}

} // namespace

std::vector<std::int32_t> NextEmployeeIDs(std::span<const std::shared_ptr<CEmployee>> people, std::size_t first)
{
    std::vector<std::int32_t> ids;
    for (const auto& employee : people.subspan(first, std::min(PunchReader::kAtOnce, people.size() - first))) {
        ids.push_back(employee->EmployeeID());
    }
    return ids;
}

CardChecker::CardChecker(std::shared_ptr<CJetDB> database, const CheckTerms& terms, std::unique_ptr<ClosingsQuestion> closings)
    : m_database(std::move(database)), m_terms(terms), m_reader(*m_database, terms.period, terms.limits.firstWeekday),
      m_closingsQuestion(closings ? std::move(closings) : std::make_unique<ClosingsQuestion>(*m_database, terms.period, std::nullopt)),
      m_clock(LocalOffset), m_usualEnds(m_database)
{
}

CardChecker::~CardChecker() = default;

const ClosingsOfEmployee* CardChecker::ClosingsOf(std::int32_t employeeID)
{
    if (!m_closings) {
        m_closings = m_closingsQuestion->Answer();
    }
    const auto found = m_closings->find(employeeID);
    return found == m_closings->end() ? nullptr : &found->second;
}

// The days between the last closing and the period are read too, for those who have such days. Everything that can be asked is sent off
// before the first answer is waited for.
void CardChecker::ReadAhead(std::span<const std::int32_t> employeeIDs)
{
    if (!m_reader.ReadsAhead()) {
        return;
    }
    m_reader.AskAhead(employeeIDs);
    if (employeeIDs.size() < PunchReader::kAtOnce) { // for many people the question costs more than a wait
        AskWhoWorkedBefore();
    }
    m_reader.ReadAhead(employeeIDs);
    std::map<DateTime, std::vector<std::int32_t>> people; // by the first day that lies in no period
    for (const std::int32_t id : employeeIDs) {
        const ClosingsOfEmployee* closings = ClosingsOf(id);
        if (const auto gap = closings == nullptr ? std::nullopt : GapBefore(m_terms.period, *closings)) {
            people[gap->from].push_back(id);
        }
    }
    for (const auto& [first, ids] : people) {
        GapReader({first, m_terms.period.from.AddDays(-1)}).AskAhead(ids);
    }
    for (const auto& [first, ids] : people) {
        m_gaps[first]->ReadAhead(ids);
    }
}

PunchReader& CardChecker::GapReader(const PayPeriod& gap)
{
    auto& reader = m_gaps[gap.from];
    if (reader == nullptr) {
        reader = std::make_unique<PunchReader>(*m_database, gap, m_terms.limits.firstWeekday);
    }
    return *reader;
}

CardCheck CardChecker::Check(const CEmployee& employee)
{
    const std::int32_t id = employee.EmployeeID();
    CardFacts facts{ClosingsOf(id), &m_clock, [&] { return WorkedBefore(id); }};
    m_rows = m_reader.Read(id);
    if (facts.closings != nullptr) {
        ReadGap(id, *facts.closings);
    }
    CardCheck check = CheckCard({employee, m_terms.period.from, m_terms.period.to}, m_rows, m_terms.now, m_terms.limits, facts);
    if (check.changed) {
        NameChanged(check, *facts.closings->Newest());
    }
    return check;
}

void CardChecker::NameChanged(CardCheck& check, const Closing& paid) const
{
    const auto changed = std::find_if(check.findings.begin(), check.findings.end(),
                                      [](const Finding& finding) { return finding.kind == FindingKind::PaidChanged; });
    if (changed != check.findings.end()) {
        changed->records = RecordsOf(ReadPaidChanges(m_database, paid.employee, paid.period, paid.entry));
    }
}

// The rows that this adds are never on the card: the card's own rows were read before.
void CardChecker::ReadGap(std::int32_t employeeID, const ClosingsOfEmployee& closings)
{
    const auto gap = GapBefore(m_terms.period, closings);
    if (!gap) {
        return;
    }
    const std::size_t known = m_rows.size();
    for (Punch& punch : GapReader(*gap).Read(employeeID)) {
        const auto end = m_rows.begin() + static_cast<std::ptrdiff_t>(known);
        if (std::none_of(m_rows.begin(), end, [&](const Punch& row) { return row.id == punch.id; })) {
            punch.fetched = false;
            m_rows.push_back(std::move(punch));
        }
    }
}

void CardChecker::AskWhoWorkedBefore()
{
    if (m_workedBeforeQuestion == nullptr) {
        m_workedBeforeQuestion = RequireSelect(*m_database, punchsql::WithShiftsIn(m_database->Words()));
        m_workedBeforeQuestion->Bind("first", FirstDayBefore(m_terms.period));
        m_workedBeforeQuestion->Bind("end", m_terms.period.from);
        m_workedBeforeQuestion->AskAhead();
    }
}

bool CardChecker::WorkedBefore(std::int32_t employeeID)
{
    if (!m_workedBefore) {
        AskWhoWorkedBefore();
        m_workedBefore.emplace();
        m_workedBeforeQuestion->ForEachRow([&] { m_workedBefore->insert(m_workedBeforeQuestion->Int64At(0)); });
    }
    return m_workedBefore->contains(employeeID);
}

std::int32_t CardChecker::RecordsOfPeriod() const
{
    return static_cast<std::int32_t>(
        std::count_if(m_rows.begin(), m_rows.end(), [&](const Punch& punch) { return LiesIn(m_terms.period, punch); }));
}

std::optional<Closing> CardChecker::Paid(std::int32_t employeeID)
{
    const ClosingsOfEmployee* closings = ClosingsOf(employeeID);
    return closings == nullptr || closings->Newest() == nullptr ? std::nullopt : std::optional(*closings->Newest());
}

std::vector<std::vector<Remedy>> CardChecker::Remedies(const CEmployee& employee, const CardCheck& check,
                                                       std::optional<std::int64_t> autoShiftEnd)
{
    const CheckedCard card{employee, m_terms.period.from, m_terms.period.to};
    const ShiftEnds ends{[&](DateTime start) { return m_usualEnds.At(employee.EmployeeID(), start); }, autoShiftEnd};
    std::vector<std::vector<Remedy>> remedies;
    remedies.reserve(check.findings.size());
    for (const Finding& finding : check.findings) {
        remedies.push_back(RemediesOf(finding, {card, m_rows, check, m_terms.limits}, ends));
    }
    return remedies;
}

} // namespace ptk
