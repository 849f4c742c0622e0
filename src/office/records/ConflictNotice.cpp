#include "office/records/ConflictNotice.h"

#include "office/card/CardTexts.h"
#include "office/history/ColumnWords.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cctype>
#include <fmt/format.h>

namespace ptk {

namespace {

using Shape = ColumnShape;

constexpr auto kParagraph = "\r\n\r\n";
constexpr auto kLine = "\r\n";
constexpr auto kAskToLoad = "Load what is stored now? What was typed can be brought back afterwards.";
constexpr auto kAskToRead = "Read the list again? What was typed can be brought back afterwards, as a new record.";
constexpr auto kRecordShown = "Nothing was stored. The card now shows what is stored.";

const DateTime kSunday(CalendarDate{1899, 12, 31});

bool IsTimeRecord(const RowConflict& conflict)
{
    return conflict.table == "TimeRecord";
}

std::string Subject(const RowConflict& conflict, const std::string& name)
{
    if (conflict.table == "_System") {
        return "The options were";
    }
    if (conflict.table == "_CheckLimits") {
        return "The limits of the check were";
    }
    return fmt::format("The {} {} was", IsTimeRecord(conflict) ? "time record" : "record of", name);
}

std::string NameOrNumber(const std::string& value, const NameOfEmployee& nameOf)
{
    const std::string name = nameOf ? nameOf(ToInt32(value)) : std::string();
    return name.empty() ? value : name;
}

// A conflict holds each value as a text in the form of its type.
std::string ValueText(const std::string& value, Shape shape, const NameOfEmployee& nameOf)
{
    const auto moment = shape == Shape::Moment || shape == Shape::Day ? ParseDateTime(value) : std::nullopt;
    switch (shape) {
    case Shape::Moment:
    case Shape::Day:
        return moment ? MomentText(*moment, shape) : MomentText(DateTime(), shape);
    case Shape::Weekday:
        return WeekdayName(kSunday.AddDays(ToInt32(value)));
    case Shape::Flag:
        return ToBoolean(value) ? "yes" : "no";
    case Shape::Employee:
        return NameOrNumber(value, nameOf);
    default:
        return value.empty() ? "empty" : value;
    }
}

std::string Capital(std::string words)
{
    words.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(words.front())));
    return words;
}

std::string DifferenceText(const FieldDifference& field, const NameOfEmployee& nameOf)
{
    if (field.column == "Password") {
        return "Password: another one now";
    }
    const ColumnWords words = WordsOf(field.column);
    std::string text = fmt::format("{}: {} when read, {} now", Capital(words.words == nullptr ? field.column : words.words),
                                   ValueText(field.read, words.shape, nameOf), ValueText(field.present, words.shape, nameOf));
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return text;
}

std::string WhatNow(const RowConflict& conflict)
{
    if (IsTimeRecord(conflict)) {
        return kRecordShown;
    }
    return conflict.Removed() ? kAskToRead : kAskToLoad;
}

} // namespace

std::string ConflictText(const RowConflict& conflict, const std::string& name, const NameOfEmployee& nameOf)
{
    const std::string subject = Subject(conflict, name);
    std::string text = fmt::format("{} {} by somebody else since {} read.{}", subject, conflict.Removed() ? "removed" : "changed",
                                   subject.ends_with("were") ? "they were" : "it was", kParagraph);
    for (const FieldDifference& field : conflict.differences) {
        text += DifferenceText(field, nameOf) + kLine;
    }
    return text + (conflict.Removed() ? "" : kLine) + WhatNow(conflict);
}

bool AskToLoad(Desktop& desktop, const std::string& title, const RowConflict& conflict, const std::string& text)
{
    if (IsTimeRecord(conflict)) {
        desktop.Show(text, title, Icon::Exclamation);
        return true;
    }
    return desktop.MessageBox(text, title, Icon::Exclamation, Buttons::YesNo) == Answer::Yes;
}

std::string ConflictRemark(const RowConflict& conflict)
{
    return conflict.Removed() ? "somebody else has removed it" : "somebody else has changed it";
}

} // namespace ptk
