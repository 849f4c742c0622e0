// Writes JSON value by value, without blanks.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// A JSON object; its members stand in the order of the calls.
class JsonObject
{
public:
    JsonObject& Text(std::string_view name, std::string_view text);
    JsonObject& TextOrNull(std::string_view name, std::string_view text); // null for an empty one
    JsonObject& TextOrNull(std::string_view name, const std::optional<std::string>& text);
    JsonObject& TextOrNull(std::string_view name, const std::string& text) { return TextOrNull(name, std::string_view(text)); }
    JsonObject& TextOrNull(std::string_view name, const char* text) { return TextOrNull(name, std::string_view(text)); }
    JsonObject& Number(std::string_view name, std::int64_t number);
    JsonObject& NumberOrNull(std::string_view name, const std::optional<std::int64_t>& number);
    JsonObject& Truth(std::string_view name, bool isTrue);
    JsonObject& Day(std::string_view name, DateTime day);
    JsonObject& Moment(std::string_view name, const std::optional<DateTime>& moment); // null where there is none

    // Adds a value that is JSON already.
    JsonObject& Json(std::string_view name, std::string_view json);

    [[nodiscard]] std::string Done() const { return m_members + '}'; }

private:
    std::string m_members = "{";
};

// A JSON list, "[1,2]", of what `json` makes of each item.
template <typename Items, typename Write>
std::string JsonList(const Items& items, Write json)
{
    std::string list;
    for (const auto& item : items) {
        list += (list.empty() ? "" : ",") + json(item);
    }
    return '[' + list + ']';
}

// The inside of a JSON list, each value on a line of its own: without the brackets and the line end behind the last value.
template <typename Items, typename Write>
std::string JsonLines(const Items& items, Write json)
{
    std::string lines;
    for (const auto& item : items) {
        lines += (lines.empty() ? "\r\n" : ",\r\n") + json(item);
    }
    return lines;
}

} // namespace ptk
