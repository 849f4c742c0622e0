#include "office/reports/ReportRunner.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/reports/ReportChoice.h"
#include "office/reports/ReportRun.h"
#include "platform/Succeeds.h"
#include "reports/Report.h"

#include <map>
#include <utility>

namespace ptk {

namespace {

// Remembers whose report each file of the run holds.
class FileOwners
{
public:
    // Notes the new owner of the report's file. Answers the display name of the former one; "" if nobody else had it.
    std::string Take(const Report& report, const CEmployee& employee)
    {
        const auto owner = m_owners.try_emplace(report.ReportPath(), employee).first;
        const Owner before = std::exchange(owner->second, Owner(employee));
        return before.id == owner->second.id ? "" : before.name;
    }

private:
    struct Owner
    {
        explicit Owner(const CEmployee& employee) : id(employee.EmployeeID()), name(employee.DisplayName()) {}

        std::int32_t id;
        std::string name;
    };

    std::map<std::string, Owner> m_owners; // by the file's path
};

// A report and its viewer hold each other until the client has them. If something fails before, this closes the viewer, so that both are
// freed, and the database with them.
class Unclaimed
{
public:
    explicit Unclaimed(Report& report) : m_report(&report) {}
    ~Unclaimed()
    {
        if (m_report != nullptr) {
            static_cast<void>(Succeeds([this] { m_report->UnloadReportWindow(); })); // the first failure is already being raised
        }
    }
    Unclaimed(const Unclaimed&) = delete;
    Unclaimed& operator=(const Unclaimed&) = delete;

    void Claim() { m_report = nullptr; }

private:
    Report* m_report;
};

void RunEach(const ReportOrder& order, CEmployeeList& employees, ReportClient& client)
{
    ReportRun run{employees.Count()};
    FileOwners owners;
    while (run.done < run.wanted && client.GoOn(run.done)) {
        const auto employee = employees.Item(++run.done);
        const auto report = client.NewReport(order.report);
        Unclaimed unclaimed(*report);
        const bool complete = report->Generate({order.database, employee, nullptr, order.from, order.to});
        if (report->ErrorNumber() != 0) {
            NoteFailure(run, report->Missing());
        }
        const std::string before = employee != nullptr && report->FileWritten() ? owners.Take(*report, *employee) : "";
        client.Made(*report, complete, DescribeReport(report->ErrorNumber(), report->Missing(), run));
        unclaimed.Claim();
        if (!before.empty()) {
            run.replaced.push_back(DescribeReplacement(employee->DisplayName(), before));
            client.Replaced(run.replaced.back());
        }
    }
    client.Say(DescribeRun(run));
}

void RunTogether(const ReportOrder& order, const std::shared_ptr<CEmployeeList>& employees, ReportClient& client)
{
    ReportRun people{static_cast<std::int32_t>(order.names.size())};
    const auto report = client.NewReport(order.report);
    Unclaimed unclaimed(*report);
    report->Progress([&](std::int32_t done, std::int32_t) {
        people.done = done;
        return client.GoOn(done);
    });
    const bool complete = report->Generate({order.database, nullptr, employees, order.from, order.to});
    report->Progress(nullptr);
    const std::string outcome = DescribeReport(report->ErrorNumber(), report->Missing(), people);
    client.Say(outcome);
    client.Made(*report, complete, outcome);
    unclaimed.Claim();
}

} // namespace

void RunReports(const ReportOrder& order, ReportClient& client)
{
    const auto employees = EmployeesFor(order.report.whom, *order.employees, order.names);
    if (order.report.whom == ReportWhom::Each) {
        RunEach(order, *employees, client);
    } else {
        RunTogether(order, employees, client);
    }
}

} // namespace ptk
