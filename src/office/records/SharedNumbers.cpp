#include "office/records/SharedNumbers.h"

#include "model/CEmployeeList.h"
#include "office/records/EmployeeTexts.h"
#include "office/records/ListEdit.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"

#include <optional>

namespace ptk {

namespace {

std::optional<std::int32_t> Number(const std::string& text)
{
    std::int32_t number = 0;
    const bool isNumber = Succeeds([&] { number = ToInt32(text); });
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string Bare(std::string ssn)
{
    std::erase_if(ssn, [](char c) { return c == ' ' || c == '-'; });
    return ssn;
}

template <typename Predicate>
std::string OwnerNotice(CEmployeeList& list, const std::string& ownID, const char* what, Predicate has)
{
    const auto isOther = [&](const CEmployee& employee) { return std::to_string(employee.EmployeeID()) != ownID && has(employee); };
    const std::int32_t position = PositionWhere(list, isOther);
    return position == 0 ? std::string() : what + list.Item(position)->DisplayName() + "'s too";
}

} // namespace

std::string SharedNumbersNotice(CEmployeeList& list, const EmployeeTexts& texts)
{
    const auto number = Number(texts.number);
    const std::string ssn = Bare(texts.ssn);
    const auto hasNumber = [&](const CEmployee& employee) { return number && employee.EmployeeNumber() == *number; };
    const auto hasSSN = [&](const CEmployee& employee) { return !ssn.empty() && Bare(employee.SSN()) == ssn; };
    const std::string numbers = OwnerNotice(list, texts.id, "The employee number is ", hasNumber);
    const std::string ssns = OwnerNotice(list, texts.id, "The SS number is ", hasSSN);
    return numbers + (numbers.empty() || ssns.empty() ? "" : ". ") + ssns;
}

} // namespace ptk
