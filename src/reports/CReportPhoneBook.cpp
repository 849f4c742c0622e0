#include "reports/CReportPhoneBook.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace ptk {

namespace {

constexpr std::size_t kLeftColumn = 40; // characters; a longer text is not cut and pushes the right column

std::string TwoColumns(const std::string& left, const std::string& right)
{
    const std::size_t length = CharacterCount(left);
    return left + std::string(length < kLeftColumn ? kLeftColumn - length : 0, ' ') + right;
}

std::string LastAndFirstName(const CEmployee& employee)
{
    return employee.FirstName().empty() ? employee.LastName() : employee.LastName() + ", " + employee.FirstName();
}

std::string Street(const CEmployee& employee)
{
    return employee.Address1();
}

std::string Town(const CEmployee& employee)
{
    return employee.City() + ", " + employee.State() + ". " + employee.ZipCode();
}

std::string Phone(const CEmployee& employee)
{
    return employee.Phone();
}

} // namespace

CReportPhoneBook::CReportPhoneBook(ReportContext context)
    : Report({ReportKind::PhoneBook, "Employee Phone Book", &ReportOwner::UnloadPhoneBookReport}, std::move(context), "phone_book.txt")
{
}

bool CReportPhoneBook::GenerateReport(const std::shared_ptr<CEmployeeList>& phonebooklist)
{
    return Generate([&] {
        if (phonebooklist == nullptr) {
            return Fail(report::NoPhoneBookList);
        }
        return Write([&] { return WriteEmployees(*phonebooklist); });
    });
}

bool CReportPhoneBook::WriteEmployees(CEmployeeList& phonebooklist)
{
    const std::int32_t count = phonebooklist.Count();
    for (std::int32_t i = 1; i <= count; i += 2) {
        const auto left = phonebooklist.Item(i);
        const auto right = phonebooklist.Item(i + 1);
        if (left == nullptr || (right == nullptr && i < count)) {
            throw Failure(failure::ObjectNotSet);
        }
        WritePair(*left, right.get());
    }
    return true;
}

void CReportPhoneBook::WritePair(const CEmployee& left, const CEmployee* right)
{
    for (const auto& text : {LastAndFirstName, Street, Town, Phone}) {
        WriteLine(TwoColumns(text(left), right == nullptr ? "" : text(*right)));
    }
    WriteLine("\r\n"); // with its own line end two empty lines
}

} // namespace ptk
