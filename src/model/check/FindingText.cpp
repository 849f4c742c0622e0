#include "model/check/FindingText.h"

#include "model/check/CardCheck.h"
#include "model/payday/Closing.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::size_t kMostShown = 40; // bytes of a value that cannot be read

std::string Span(const Punch& punch)
{
    return fmt::format("from {} to {}", MomentText(*punch.start), MomentText(*punch.end));
}

bool ContinuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool IsControl(char byte)
{
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

std::string What(const char* name, const std::string& shown)
{
    return shown.empty() ? fmt::format("no {}", name) : fmt::format("the {} {}", name, shown);
}

} // namespace

// A value that another tool stored may be long: its beginning says enough.
std::string QuotedValue(std::string_view text)
{
    std::size_t length = std::min(text.size(), kMostShown);
    while (length > 0 && length < text.size() && ContinuesCharacter(text[length])) {
        --length;
    }
    std::string shown(text.substr(0, length));
    std::replace_if(shown.begin(), shown.end(), IsControl, '?');
    return '"' + shown + (length < text.size() ? "...\"" : "\"");
}

// Where one of the two times can be read, it says where to look for the record.
std::string UnreadableText(const Punch& punch)
{
    if (!IsSet(punch.start) && !punch.end) {
        return fmt::format("Record {} cannot be read: it has {} and {}.", punch.id, What("start", punch.startText),
                           What("end", punch.endText));
    }
    if (!punch.end) {
        return fmt::format("Record {}, which begins on {}, cannot be read: it has {}.", punch.id, MomentText(*punch.start),
                           What("end", punch.endText));
    }
    const std::string where = IsSet(punch.end) ? fmt::format(", which ends on {},", MomentText(*punch.end)) : "";
    return fmt::format("Record {}{} cannot be read: it has {}.", punch.id, where, What("start", punch.startText));
}

std::string ShiftText(FindingKind kind, const Punch& punch, std::int32_t longShiftHours)
{
    const std::string start = MomentText(*punch.start);
    switch (kind) {
    case FindingKind::Open:
        return fmt::format("The shift that began on {} has no end and counts nothing.", start);
    case FindingKind::ClockedIn:
        return fmt::format("Still clocked in since {}; the running shift counts nothing yet.", start);
    case FindingKind::OpenLater:
        return fmt::format("The shift that began on {} has no end and belongs to a later period.", start);
    case FindingKind::Backward:
        return fmt::format("The shift that began on {} ends before that, on {}, and counts nothing.", start, MomentText(*punch.end));
    case FindingKind::Empty:
        return fmt::format("The shift of {} ends in the minute in which it starts and counts nothing.", start);
    case FindingKind::Long:
        return fmt::format("The shift {} is {} hours long, more than {}.", Span(punch), HoursAndMinutes(punch.Minutes()), longShiftHours);
    case FindingKind::Future:
        return fmt::format("The shift of {} starts in the future.", start);
    case FindingKind::CrossesEnd:
        return fmt::format("The shift {} ({} hours) goes on after the period: neither this card nor the next has it.", Span(punch),
                           HoursAndMinutes(punch.Minutes()));
    case FindingKind::CrossesStart:
        return fmt::format("The shift {} ({} hours) began before the period: neither this card nor the one before has it.", Span(punch),
                           HoursAndMinutes(punch.Minutes()));
    default:
        return {};
    }
}

std::string NotEmployedText(const Punch& punch, DateTime hired, DateTime released)
{
    if (!hired.IsZero() && DaysBetween(*punch.start, hired) > 0) {
        return fmt::format("The shift of {} starts before the hire date {}.", MomentText(*punch.start), DayText(hired));
    }
    return fmt::format("The shift of {} starts after the release date {}.", MomentText(*punch.start), DayText(released));
}

std::string FindingSummary(const CardCheck& check)
{
    std::string summary;
    const auto add = [&summary](std::int32_t count, const char* what) {
        if (count > 0) {
            summary += fmt::format("{}{} {}{}", summary.empty() ? "" : ", ", count, what, count == 1 ? "" : "s");
        }
    };
    add(check.problems, SeverityName(Severity::Problem).data());
    add(check.notices, SeverityName(Severity::Notice).data());
    return summary.empty() ? "No problems or notices" : summary;
}

std::string OverlapText(const Finding& group)
{
    return fmt::format("{} shifts between {} and {} overlap: {} hours lie in more than one of them.", group.records.size(),
                       MomentText(*group.from), MomentText(*group.to), HoursAndMinutes(group.minutes));
}

std::string SameStartText(const Finding& group)
{
    return fmt::format("{} records start at {}, and not each of them has an end after it.", group.records.size(), MomentText(*group.from));
}

std::string DeductionText(const WorkDay& day, std::int64_t deducted)
{
    return fmt::format("On {} the automatic deduction takes {} hours off {} hours worked.", DayText(day.day), HoursAndMinutes(deducted),
                       HoursAndMinutes(day.minutes));
}

std::string LongDayText(const WorkDay& day)
{
    return fmt::format("The shifts of {} come to {} hours, more than a day has.", DayText(day.day), HoursAndMinutes(day.minutes));
}

std::string NoRateText(std::int64_t regularWithout, std::int64_t overtimeWithout)
{
    if (overtimeWithout == 0) {
        return fmt::format("{} regular hours have no pay rate.", HoursAndMinutes(regularWithout));
    }
    if (regularWithout == 0) {
        return fmt::format("{} overtime hours have no overtime rate.", HoursAndMinutes(overtimeWithout));
    }
    return fmt::format("{} regular and {} overtime hours have no rate.", HoursAndMinutes(regularWithout), HoursAndMinutes(overtimeWithout));
}

std::string WeekText(const WorkWeek& week)
{
    return fmt::format("The week from {} has {} hours, {} above 40; the daily rule pays {} of them as overtime.", DayText(week.from),
                       HoursAndMinutes(week.minutes), HoursAndMinutes(week.Above40()), HoursAndMinutes(week.paidAsOvertime));
}

std::string PaidChangedText(const Closing& paid, const std::optional<CardFigures>& now, const std::optional<std::string>& owed)
{
    if (!now) {
        return "This period was paid, and its card cannot be computed any more.";
    }
    if (!owed) {
        return "This period was paid, but the figures that were paid cannot be read.";
    }
    const std::string hours = CardFigures{TwoDecimals(ToSingle(paid.regular)), TwoDecimals(ToSingle(paid.overtime)), {}}.Hours();
    const std::string what = owed->starts_with('-') ? owed->substr(1) + " paid too much" : *owed + " owed";
    return fmt::format("Paid {} hours, now {}: {}.", hours, now->Hours(), what);
}

std::string TwiceText(const WorkDay& day)
{
    return fmt::format("On {} are {} hours that lie in another closed period, too.", DayText(day.day), HoursAndMinutes(day.minutes));
}

std::string BetweenText(const Finding& shifts)
{
    return fmt::format("{} with {} hours from {} on lie{} between the last closed period and this one: no card has them.",
                       shifts.records.size() == 1 ? "1 shift" : std::to_string(shifts.records.size()) + " shifts",
                       HoursAndMinutes(shifts.minutes), MomentText(*shifts.from), shifts.records.size() == 1 ? "s" : "");
}

std::string ClockChangeText(const Punch& punch, std::int64_t lasted)
{
    return fmt::format("The shift {} counts {} hours and lasted {}: the clock was changed in it.", Span(punch),
                       HoursAndMinutes(punch.Minutes()), HoursAndMinutes(lasted));
}

std::string NoShiftText()
{
    return "No shift in this period; there was one in the period before.";
}

} // namespace ptk
