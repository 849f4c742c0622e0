#include "reports/CReportPhoneBook.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/text/Text.h"

namespace ptk {

namespace {

constexpr ReportColumn kPhoneColumns[] = {
    {"Last Name", CellType::Text}, {"First Name", CellType::Text}, {"Address", CellType::Text}, {"City", CellType::Text},
    {"State", CellType::Text},     {"ZIP Code", CellType::Text},   {"Phone", CellType::Text},
};

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

ReportRow PhoneRow(const CEmployee& employee)
{
    return {employee.LastName(), employee.FirstName(), employee.Address1(), employee.City(),
            employee.State(),    employee.ZipCode(),   employee.Phone()};
}

// Without a right employee the right column stays empty.
void AddPair(ReportDocument& document, const CEmployee& left, const CEmployee* right)
{
    document.BeginGroup();
    for (const auto& text : {LastAndFirstName, Street, Town, Phone}) {
        document.Add(TwoColumns(text(left), right == nullptr ? "" : text(*right)));
    }
    document.Add("\r\n"); // two empty lines, together with the line's own end
    document.table.rows.push_back(PhoneRow(left));
    if (right != nullptr) {
        document.table.rows.push_back(PhoneRow(*right));
    }
}

void AddEmployees(ReportDocument& document, CEmployeeList& list)
{
    const std::int32_t count = list.Count();
    for (std::int32_t i = 1; i <= count; i += 2) {
        const auto left = list.Item(i);
        const auto right = list.Item(i + 1);
        if (left == nullptr || (right == nullptr && i < count)) {
            return document.CutShort(report::NotGenerated);
        }
        AddPair(document, *left, right.get());
    }
}

} // namespace

bool CReportPhoneBook::GenerateReport(const std::shared_ptr<CEmployeeList>& phonebooklist)
{
    return AtEdge([&] {
        if (phonebooklist == nullptr) {
            return Refuse(report::NoPhoneBookList);
        }
        if (!Open("", std::string(Entry().fileName))) {
            return false;
        }
        Body().table.columns = kPhoneColumns;
        AddEmployees(Body(), *phonebooklist);
        return Publish();
    });
}

} // namespace ptk
