#include "office/business/SampleBusiness.h"

#include "store/whole/BulkWriter.h"

namespace ptk {

void AddSampleBusiness(BulkWriter& writer, DateTime today)
{
    std::vector<std::int32_t> companies;
    for (const CompanyRow& company : SampleCompanies()) {
        companies.push_back(writer.AddCompany(company));
    }
    for (SampleEmployee& employee : SampleEmployees(today)) {
        employee.row.CompanyID = companies.at(static_cast<std::size_t>(employee.row.CompanyID - 1));
        const std::int32_t employeeID = writer.AddEmployee(employee.row);
        std::vector<TimeRecordRow> shifts = SampleShifts(employee, employeeID, today);
        AddIrregularities(employee, shifts, today);
        for (const TimeRecordRow& shift : shifts) {
            writer.AddTimeRecord(shift);
        }
    }
}

} // namespace ptk
