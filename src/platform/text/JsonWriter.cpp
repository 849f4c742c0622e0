#include "platform/text/JsonWriter.h"

#include "platform/text/DataText.h"
#include "platform/text/DayText.h"

namespace ptk {

JsonObject& JsonObject::Text(std::string_view name, std::string_view text)
{
    return Json(name, JsonText(text));
}

JsonObject& JsonObject::TextOrNull(std::string_view name, std::string_view text)
{
    return Json(name, text.empty() ? "null" : JsonText(text));
}

JsonObject& JsonObject::TextOrNull(std::string_view name, const std::optional<std::string>& text)
{
    return Json(name, text ? JsonText(*text) : "null");
}

JsonObject& JsonObject::Number(std::string_view name, std::int64_t number)
{
    return Json(name, std::to_string(number));
}

JsonObject& JsonObject::NumberOrNull(std::string_view name, const std::optional<std::int64_t>& number)
{
    return Json(name, number ? std::to_string(*number) : "null");
}

JsonObject& JsonObject::Truth(std::string_view name, bool isTrue)
{
    return Json(name, isTrue ? "true" : "false");
}

JsonObject& JsonObject::Day(std::string_view name, DateTime day)
{
    return Text(name, IsoDay(day));
}

JsonObject& JsonObject::Moment(std::string_view name, const std::optional<DateTime>& moment)
{
    return Json(name, moment ? JsonText(IsoMoment(*moment)) : "null");
}

JsonObject& JsonObject::Json(std::string_view name, std::string_view json)
{
    m_members += m_members.size() == 1 ? "" : ",";
    m_members += JsonText(name);
    m_members += ':';
    m_members += json;
    return *this;
}

} // namespace ptk
