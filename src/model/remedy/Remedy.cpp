#include "model/remedy/Remedy.h"

#include "model/check/CardCheck.h"
#include "model/check/PunchPlace.h"
#include "model/remedy/ChangedRows.h"
#include "model/remedy/RemedyText.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr std::int64_t kMinutesAnHour = 60;

// The same time on the next day; none beyond the calendar.
std::optional<DateTime> DayLater(DateTime moment)
{
    return moment.DayNumber() < DateTime::kLastDay ? std::optional(moment.AddDays(1)) : std::nullopt;
}

// The first moment after a shift's start at which the clock shows this second of the day; none beyond the calendar.
std::optional<DateTime> FirstAfter(DateTime start, std::int64_t secondOfDay)
{
    const DateTime sameDay = DateTime::FromSeconds(start.DayNumber() * DateTime::kSecondsPerDay + secondOfDay);
    return sameDay > start ? std::optional(sameDay) : DayLater(sameDay);
}

// Whether one shift lies within the other, compared by whole minutes.
bool Covers(const Punch& outer, const Punch& inner)
{
    return outer.start->MinuteNumber() <= inner.start->MinuteNumber() && inner.end->MinuteNumber() <= outer.end->MinuteNumber();
}

class Mender
{
public:
    Mender(const Finding& finding, const CheckedRows& rows, const ShiftEnds& ends)
        : m_finding(finding), m_rows(rows), m_ends(ends), m_readable(ReadablePunches(rows.punches))
    {
        for (const std::int64_t record : finding.records) {
            const auto found = std::find_if(m_readable.begin(), m_readable.end(), [&](const Punch* punch) { return punch->id == record; });
            if (found != m_readable.end()) {
                m_records.push_back(*found);
            }
        }
    }

    std::vector<Remedy> Run()
    {
        if (m_records.empty() || m_records.size() != m_finding.records.size()) {
            return {};
        }
        Offer(*m_records.front());
        return std::move(m_offered);
    }

private:
    void Offer(const Punch& first)
    {
        switch (m_finding.kind) {
        case FindingKind::Open:
            OfferEnds(first);
            return OfferDeletion(first, DeleteText());
        case FindingKind::Long:
            return OfferEnds(first);
        case FindingKind::Backward:
            OfferEnd(first, DayLater(*first.end));
            return OfferDeletion(first, DeleteText());
        case FindingKind::Empty:
            return OfferDeletion(first, DeleteText());
        case FindingKind::CrossesEnd:
        case FindingKind::CrossesStart:
            return OfferSplit(first);
        case FindingKind::Overlap:
            return m_records.size() == 2 ? MendOverlap(first, *m_records.back()) : void();
        case FindingKind::SameStart:
            return m_records.size() == 2 ? MendSameStart(first, *m_records.back()) : void();
        default:
            return;
        }
    }

    void OfferEnds(const Punch& shift)
    {
        const auto usual = m_ends.usual ? m_ends.usual(*shift.start) : std::nullopt;
        if (usual) {
            OfferEnd(shift, FirstAfter(*shift.start, *usual));
        }
        if (m_ends.automatic) {
            OfferEnd(shift, FirstAfter(*shift.start, *m_ends.automatic));
        }
    }

    void OfferEnd(const Punch& shift, const std::optional<DateTime>& end)
    {
        const auto same = [&](const Remedy& remedy) { return end && remedy.changes.front().end == *end; };
        if (IsPossible(shift, end) && std::none_of(m_offered.begin(), m_offered.end(), same)) {
            Add(EndAtText(shift, *end), {{shift.id, *shift.start, *end}});
        }
    }

    // A remedy must not make a new problem: no shift that is too long, and none that overlaps the next.
    bool IsPossible(const Punch& shift, const std::optional<DateTime>& end) const
    {
        if (!end || *end <= *shift.start || MinutesBetween(*shift.start, *end) > m_rows.limits.longShiftHours * kMinutesAnHour) {
            return false;
        }
        const auto next = std::next(std::find(m_readable.begin(), m_readable.end(), &shift));
        return next == m_readable.end() || *end <= *(*next)->start;
    }

    void OfferDeletion(const Punch& record, const std::string& text) { Add(text, {{record.id, {}, {}, true}}); }

    void OfferSplit(const Punch& shift)
    {
        std::vector<DateTime> midnights;
        for (const std::int64_t day : {m_rows.card.from.DayNumber(), m_rows.card.to.DayNumber() + 1}) {
            if (Crosses(shift, day)) {
                midnights.push_back(DateTime::FromDay(day));
            }
        }
        std::vector<RecordChange> parts{{shift.id, *shift.start, *shift.end}};
        for (const DateTime midnight : midnights) {
            parts.back().end = midnight;
            parts.push_back({std::nullopt, midnight, *shift.end});
        }
        Add(SplitText(midnights), std::move(parts));
    }

    void MendOverlap(const Punch& first, const Punch& second)
    {
        if (Covers(first, second)) {
            return OfferDeletion(second, DeleteShiftText(second));
        }
        if (Covers(second, first)) {
            return OfferDeletion(first, DeleteShiftText(first));
        }
        if (IsPossible(first, second.start)) {
            Add(EndFirstText(first, *second.start), {{first.id, *first.start, *second.start}});
        }
    }

    void MendSameStart(const Punch& first, const Punch& second)
    {
        const bool bothEmpty = first.Minutes() == 0 && second.Minutes() == 0;
        const bool alike = *first.end == *second.end;
        if (first.Minutes() == 0 && !(bothEmpty && alike)) {
            OfferDouble(first);
        }
        if (second.Minutes() == 0) {
            OfferDouble(second);
        }
    }

    void OfferDouble(const Punch& record)
    {
        if (!IsClockedIn(record)) {
            OfferDeletion(record, DeleteEndingText(record));
        }
    }

    bool IsClockedIn(const Punch& record) const
    {
        const auto& findings = m_rows.check.findings;
        return std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
            return finding.kind == FindingKind::ClockedIn && finding.records.front() == record.id;
        });
    }

    void Add(const std::string& what, std::vector<RecordChange> changes)
    {
        const auto hours = HoursWith(m_rows, changes);
        m_offered.push_back({WithHours(what, hours), hours, std::move(changes), what});
    }

    const Finding& m_finding;
    const CheckedRows& m_rows;
    const ShiftEnds& m_ends;
    std::vector<const Punch*> m_readable;
    std::vector<const Punch*> m_records; // of the finding
    std::vector<Remedy> m_offered;
};

} // namespace

bool Remedy::Deletes() const
{
    return std::any_of(changes.begin(), changes.end(), [](const RecordChange& change) { return change.deletes; });
}

std::optional<std::int64_t> AutoShiftEnd(DateTime autoShiftStart, DateTime autoShiftEnd)
{
    const std::int64_t end = autoShiftEnd.SecondOfDay();
    return autoShiftStart.SecondOfDay() == 0 || end == 0 ? std::nullopt : std::optional(end);
}

std::vector<Remedy> RemediesOf(const Finding& finding, const CheckedRows& rows, const ShiftEnds& ends)
{
    return Mender(finding, rows, ends).Run();
}

} // namespace ptk
