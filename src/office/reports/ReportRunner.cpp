#include "office/reports/ReportRunner.h"

#include "model/CEmployeeList.h"
#include "office/reports/ReportChoice.h"
#include "office/reports/ReportRun.h"
#include "reports/Report.h"

namespace ptk {

namespace {

void RunEach(const ReportOrder& order, CEmployeeList& employees, ReportClient& client)
{
    ReportRun run{employees.Count()};
    while (run.done < run.wanted && client.GoOn(run.done)) {
        const auto report = client.NewReport(order.report);
        const bool complete = report->Generate({order.database, employees.Item(++run.done), nullptr, order.from, order.to});
        if (report->ErrorNumber() != 0) {
            NoteFailure(run, report->Missing());
        }
        client.Made(*report, complete, DescribeReport(report->ErrorNumber(), report->Missing(), run));
    }
    client.Say(DescribeRun(run));
}

void RunTogether(const ReportOrder& order, const std::shared_ptr<CEmployeeList>& employees, ReportClient& client)
{
    ReportRun people{static_cast<std::int32_t>(order.names.size())};
    const auto report = client.NewReport(order.report);
    report->Progress([&](std::int32_t done, std::int32_t) {
        people.done = done;
        return client.GoOn(done);
    });
    const bool complete = report->Generate({order.database, nullptr, employees, order.from, order.to});
    report->Progress(nullptr);
    const std::string outcome = DescribeReport(report->ErrorNumber(), report->Missing(), people);
    client.Say(outcome);
    client.Made(*report, complete, outcome);
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
