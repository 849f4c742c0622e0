#include "console/Arguments.h"
#include "console/Commands.h"
#include "console/Console.h"
#include "console/ErrorText.h"
#include "console/SampleBusiness.h"
#include "console/Session.h"
#include "platform/Clock.h"
#include "platform/ProgramFolder.h"
#include "shell/CDatabaseLocator.h"
#include "store/BulkWriter.h"
#include "store/DatabaseCreator.h"

namespace ptk {

namespace {

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

void Create(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    try {
        CreateDatabase(path, fill);
    } catch (const Failure& failure) {
        throw FileFailure(failure, path);
    }
}

} // namespace

int CreateDatabaseCommand(const CreateDatabaseArguments& arguments, Console& console)
{
    const std::string path = NativePath(LocateDatabase(console.programFolder)->DatabasePath()).string();
    if (arguments.sample) {
        const DateTime today = arguments.today.value_or(console.clock.Today());
        Create(path, [today](BulkWriter& writer) { AddSampleBusiness(writer, today); });
    } else {
        Create(path, nullptr);
    }
    console.out << "created: " << TerminalText(path) << '\n';
    return status::Done;
}

} // namespace ptk
