#include "office/card/CardFindings.h"

#include "model/check/FindingText.h"
#include "office/card/CheckedTimecard.h"
#include "platform/text/DayText.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kNotChecked = "Not checked: ";
constexpr auto kNoticesHidden = " (notices are not shown)";

bool IsShown(const Finding& finding, bool showNotices)
{
    return showNotices || SeverityOf(finding.kind) == Severity::Problem;
}

// The day of the shift; both days if it ends on another one, as a shift that began years ago does.
std::string DaysOf(const Punch& punch)
{
    if (IsSet(punch.start) && IsSet(punch.end) && punch.start->DayNumber() != punch.end->DayNumber()) {
        return DayText(*punch.start) + " - " + DayText(*punch.end);
    }
    if (IsSet(punch.start)) {
        return DayText(*punch.start);
    }
    return IsSet(punch.end) ? DayText(*punch.end) : std::string();
}

// The days come first because the line that shows this text may be too short for all of it.
std::string WhereText(const FindingPlace& place, bool cardShown)
{
    if (place.elsewhere.empty()) {
        return {};
    }
    const std::size_t count = place.elsewhere.size();
    const char* which = count > 1 ? "The first" : place.onCard.empty() ? "It" : "One";
    const std::string days = DaysOf(*place.elsewhere.front());
    const std::string where =
        days.empty() ? fmt::format("{} has no day that can be read", which) : fmt::format("{} lies on {}", which, days);
    if (!cardShown || days.empty()) {
        return where + '.';
    }
    return count > 1 ? fmt::format("{}; {} are not on this card.", where, count) : where + ", not on this card.";
}

} // namespace

std::vector<Finding> ShownFindings(const CardCheck& check, bool showNotices)
{
    std::vector<Finding> shown;
    std::copy_if(check.findings.begin(), check.findings.end(), std::back_inserter(shown),
                 [&](const Finding& finding) { return IsShown(finding, showNotices); });
    return shown;
}

std::string SpokenText(const Finding& finding)
{
    return (SeverityOf(finding.kind) == Severity::Problem ? "Problem: " : "Notice: ") + finding.text;
}

RowMarks MarksOf(const CardCheck& check, bool showNotices)
{
    RowMarks marks;
    for (const Finding& finding : check.findings) {
        if (!IsShown(finding, showNotices)) {
            continue;
        }
        const std::string sentence = SpokenText(finding);
        for (const std::int64_t record : finding.records) {
            RowMark& mark = marks[record];
            mark.severity = std::min(mark.severity, SeverityOf(finding.kind));
            mark.text += (mark.text.empty() ? "" : "\n") + sentence;
        }
    }
    return marks;
}

std::string FindingLineText(const CheckedTimecard& checked)
{
    if (!checked.check) {
        return {};
    }
    const bool hidden = checked.check->notices > 0 && !checked.limits.showNotices;
    return FindingSummary(*checked.check) + (hidden ? kNoticesHidden : "");
}

std::string FindingDetailText(const CheckedTimecard& checked)
{
    if (!checked.check) {
        return checked.failure.Number() == 0 ? std::string() : kNotChecked + checked.failure.Description();
    }
    const auto spoils = [](const Punch& punch) { return punch.fetched && !punch.IsReadable(); };
    const auto spoiler = std::find_if(checked.punches.begin(), checked.punches.end(), spoils);
    return spoiler == checked.punches.end() ? std::string() : UnreadableText(*spoiler);
}

FindingPlace PlaceOf(const Finding& finding, const CheckedTimecard& checked)
{
    FindingPlace place;
    std::unordered_map<std::int64_t, const Punch*> punches;
    for (const Punch& punch : checked.punches) {
        punches.emplace(punch.id, &punch);
    }
    for (const std::int64_t record : finding.records) {
        const auto found = punches.find(record);
        if (found == punches.end()) {
            continue;
        }
        if (checked.generated && found->second->fetched) {
            place.onCard.push_back(record);
        } else {
            place.elsewhere.push_back(found->second);
        }
    }
    place.text = WhereText(place, checked.generated);
    return place;
}

} // namespace ptk
