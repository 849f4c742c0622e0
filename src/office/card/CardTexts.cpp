#include "office/card/CardTexts.h"

#include "model/CEmployee.h"
#include "model/CTimeCalculator.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordList.h"
#include "platform/Required.h"
#include "platform/text/DayText.h"

#include <array>
#include <cmath>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr int kMinutesPerHour = 60;
constexpr std::array<const char*, 7> kWeekdays{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

} // namespace

CardName CardNameOf(const CTimeCard& card)
{
    const auto employee = card.Employee();
    if (employee == nullptr) {
        return {};
    }
    const std::string from = DayText(card.StartDate());
    const std::string to = DayText(card.EndDate().AddDays(-1)); // the card's end is the midnight after its last day
    return {employee->DisplayName(), from + " - " + to};
}

std::string StrangeCardText(const CardName& card, bool shown, const CardName& chosen)
{
    if (card.employee.empty() || card == chosen) {
        return {};
    }
    const char* what = shown ? "This is" : "New Record still goes to";
    return fmt::format("{} {}'s card, {}. {}", what, card.employee, card.period, NextStepText(chosen));
}

std::string NextStepText(const CardName& chosen)
{
    return chosen.employee.empty() ? "Choose an employee and press Generate Timecard."
                                   : "Press Generate Timecard for " + chosen.employee + ".";
}

std::string RecordOwnerText(const std::string& cardEmployee, const std::string& chosenEmployee)
{
    if (cardEmployee.empty()) {
        return "This card is nobody's: a record cannot be saved in it.";
    }
    if (cardEmployee == chosenEmployee) {
        return "For " + cardEmployee;
    }
    return fmt::format("For {0}, whose card was generated last{1}", cardEmployee,
                       chosenEmployee.empty() ? std::string() : ", not for " + chosenEmployee);
}

std::string CountText(std::int64_t count, const std::string& thing)
{
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

std::string GeneratedText(const CTimeCard& card)
{
    return CardNameOf(card).employee + "'s card generated: " + CountText(Required(card.TimeRecordList())->Count(), "record");
}

std::string UnreadText(const CTimeCard& card)
{
    const std::string& reason = card.LastFailure().Description();
    return reason.empty() ? std::string() : CardNameOf(card).employee + "'s records could not be read: " + reason;
}

std::string RefusedText(const std::string& what, const CTimeCard& card)
{
    const std::string& reason = card.LastFailure().Description();
    return reason.empty() ? what : what + ": " + reason;
}

std::string BreakTimeText(const CTimeCard& card)
{
    CTimeCalculator calculator;
    if (!calculator.CalculateTimes(*Required(card.Employee()), *Required(card.TimeRecordList())) || calculator.TotalBreakTime() <= 0) {
        return {};
    }
    const auto minutes = std::lround(calculator.TotalBreakTime() * kMinutesPerHour);
    return fmt::format("after {}:{:02} break time{}", minutes / kMinutesPerHour, minutes % kMinutesPerHour,
                       card.RegularHoursWorked() < 0 ? "; hours below zero pay nothing" : "");
}

std::string WeekdayName(DateTime day)
{
    return kWeekdays.at(static_cast<std::size_t>(day.Weekday()));
}

} // namespace ptk
