#include "office/profile/ProfileText.h"

#include "platform/Failure.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kRegularCode = "regular code";
constexpr auto kOvertimeCode = "overtime code";
constexpr auto kColumn = "column";
constexpr auto kText = "text";
constexpr char kBeforeHeading = '\t';

constexpr auto kUnknownLine = "its line \"{}\" is not known to this version";

std::string CellLine(const ProfileCell& cell)
{
    const bool isColumn = !cell.column.empty();
    return fmt::format("{}={}{}{}\n", isColumn ? kColumn : kText, isColumn ? cell.column : cell.text, kBeforeHeading, cell.heading);
}

ProfileCell ReadCell(bool isColumn, std::string_view value)
{
    const std::size_t end = std::min(value.find(kBeforeHeading), value.size());
    const std::string what(value.substr(0, end));
    const std::string heading(value.substr(std::min(end + 1, value.size())));
    return isColumn ? ProfileCell{what, "", heading} : ProfileCell{"", what, heading};
}

bool TakeOption(Profile& profile, std::string_view word, std::string_view value)
{
    for (const ProfileOption& option : ProfileOptions()) {
        for (std::size_t i = 0; option.word == word && i < option.choices.size(); ++i) {
            if (option.choices[i].word == value) {
                option.set(profile, i);
                return true;
            }
        }
    }
    return false;
}

bool TakeLine(Profile& profile, std::string_view line)
{
    const std::size_t end = line.find('=');
    if (end == std::string_view::npos) {
        return false;
    }
    const std::string_view word = line.substr(0, end);
    const std::string_view value = line.substr(end + 1);
    if (word == kColumn || word == kText) {
        profile.cells.push_back(ReadCell(word == kColumn, value));
    } else if (word == kRegularCode) {
        profile.regularCode = value;
    } else if (word == kOvertimeCode) {
        profile.overtimeCode = value;
    } else {
        return TakeOption(profile, word, value);
    }
    return true;
}

} // namespace

std::string ProfileText(const Profile& profile)
{
    std::string text;
    for (const ProfileOption& option : ProfileOptions()) {
        text += fmt::format("{}={}\n", option.word, option.choices[option.get(profile)].word);
    }
    text += fmt::format("{}={}\n{}={}\n", kRegularCode, profile.regularCode, kOvertimeCode, profile.overtimeCode);
    for (const ProfileCell& cell : profile.cells) {
        text += CellLine(cell);
    }
    return text;
}

Profile ReadProfile(const std::string& name, std::string_view text)
{
    Profile profile;
    profile.name = name;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!line.empty() && !TakeLine(profile, line)) {
            throw Failure(0, "PTK", fmt::format(kUnknownLine, line));
        }
    }
    if (std::string fault = FaultOf(profile); !fault.empty()) {
        fault.pop_back(); // the full stop
        throw Failure(0, "PTK", fault);
    }
    return profile;
}

} // namespace ptk
