#include "office/card/MendPlan.h"

#include "model/CEmployee.h"
#include "model/remedy/RemedyText.h"
#include "store/CJetDB.h"

#include <algorithm>
#include <set>
#include <utility>

namespace ptk {

namespace {

constexpr std::int64_t kShiftHour = 60; // minutes

bool Shares(const Remedy& one, const Remedy& other)
{
    return std::any_of(one.changes.begin(), one.changes.end(), [&](const RecordChange& change) {
        return change.record && std::any_of(other.changes.begin(), other.changes.end(),
                                            [&](const RecordChange& second) { return second.record == change.record; });
    });
}

} // namespace

MendPlan::MendPlan(const std::shared_ptr<CJetDB>& database, const CheckTerms& terms, std::vector<std::shared_ptr<CEmployee>> people,
                   std::optional<std::int64_t> autoShiftEnd, const std::function<bool()>& goOn)
    : m_terms(terms)
{
    const CJetDB::Hold hold(database);
    CardChecker checker(database, terms);
    for (std::size_t i = 0; i < people.size(); ++i) {
        if (i % PunchReader::kAtOnce == 0) {
            checker.ReadAhead(NextEmployeeIDs(people, i));
        }
        std::shared_ptr<CEmployee>& employee = people[i];
        const CardCheck check = checker.Check(*employee);
        const auto remedies = checker.Remedies(*employee, check, autoShiftEnd);
        Add({std::move(employee), checker.Rows(), check}, remedies);
        if (goOn && !goOn()) {
            return;
        }
    }
}

void MendPlan::Add(Card card, const std::vector<std::vector<Remedy>>& remedies)
{
    for (std::size_t i = 0; i < remedies.size(); ++i) {
        const auto& offered = remedies[i];
        m_lines.push_back({m_cards.size(), card.check.findings[i], offered.empty() ? std::nullopt : std::optional(offered.front()), false});
        MendLine& line = m_lines.back();
        line.ticked = line.remedy && IsHarmless(*line.remedy) && std::none_of(m_lines.begin(), m_lines.end(), [&](const MendLine& earlier) {
                          return earlier.ticked && Shares(*earlier.remedy, *line.remedy);
                      });
    }
    m_cards.push_back(std::move(card));
}

// Whether it neither deletes a record nor leaves a shift that is too long. A part of a split shift can be too long.
bool MendPlan::IsHarmless(const Remedy& remedy) const
{
    return std::none_of(remedy.changes.begin(), remedy.changes.end(), [&](const RecordChange& change) {
        return change.deletes || MinutesBetween(change.start, change.end) > m_terms.limits.longShiftHours * kShiftHour;
    });
}

void MendPlan::Tick(std::size_t line, bool ticked)
{
    MendLine& changed = m_lines.at(line);
    if (!changed.remedy) {
        return;
    }
    for (MendLine& other : m_lines) {
        if (ticked && other.ticked && Shares(*other.remedy, *changed.remedy)) {
            other.ticked = false;
        }
    }
    changed.ticked = ticked;
}

bool MendPlan::HasEnd(std::size_t line) const
{
    const auto& remedy = m_lines.at(line).remedy;
    return remedy && remedy->changes.size() == 1 && !remedy->Deletes();
}

void MendPlan::EndAt(std::size_t line, DateTime timeOfDay)
{
    Remedy& remedy = m_lines.at(line).remedy.value();
    RecordChange& change = remedy.changes.front();
    const std::int64_t second = timeOfDay.SecondOfDay();
    const DateTime sameDay = DateTime::FromSeconds(change.start.DayNumber() * DateTime::kSecondsPerDay + second);
    change.end = sameDay > change.start ? sameDay : sameDay.AddDays(1);
    Punch shift;
    shift.start = change.start;
    remedy.what = EndAtText(shift, change.end);
    Tick(line, true);
}

std::size_t MendPlan::Ticked() const
{
    return static_cast<std::size_t>(std::count_if(m_lines.begin(), m_lines.end(), [](const MendLine& line) { return line.ticked; }));
}

std::size_t MendPlan::PeopleTicked() const
{
    std::set<std::size_t> cards;
    for (const MendLine& line : m_lines) {
        if (line.ticked) {
            cards.insert(line.card);
        }
    }
    return cards.size();
}

std::vector<RecordChange> MendPlan::TickedOf(std::size_t card) const
{
    std::vector<RecordChange> changes;
    for (const MendLine& line : m_lines) {
        if (line.card == card && line.ticked) {
            changes.insert(changes.end(), line.remedy->changes.begin(), line.remedy->changes.end());
        }
    }
    return changes;
}

std::optional<std::string> MendPlan::HoursOf(const Card& card, const std::vector<RecordChange>& changes) const
{
    const CheckedCard checked{*card.employee, m_terms.period.from, m_terms.period.to};
    return HoursWith({checked, card.rows, card.check, m_terms.limits}, changes);
}

std::optional<std::string> MendPlan::HoursBefore(const MendLine& line) const
{
    return HoursOf(m_cards.at(line.card), {});
}

std::optional<std::string> MendPlan::HoursAfter(const MendLine& line) const
{
    return HoursOf(m_cards.at(line.card), TickedOf(line.card));
}

bool MendPlan::Store(CJetDB& database) const
{
    std::vector<Mending> mendings;
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        mendings.push_back({m_cards[i].employee->EmployeeID(), &m_cards[i].rows, TickedOf(i)});
    }
    return Mend(database, mendings);
}

} // namespace ptk
