// Makes the chosen reports, one after the other.
#pragma once

#include "platform/text/Value.h"
#include "reports/ReportCatalog.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CEmployeeList;
class CJetDB;
class Report;

struct ReportOrder
{
    const ReportEntry& report;
    std::shared_ptr<CJetDB> database;
    std::shared_ptr<CEmployeeList> employees; // all employees, among whom the names are looked up
    std::vector<std::string> names;           // display names: those chosen, or all listed when the report is for everyone
    Value from{};                             // may be a text that is no date, which the report refuses
    Value to{};
};

// Whoever has reports made: the Reports page or the console.
class ReportClient
{
public:
    virtual ~ReportClient() = default;
    virtual std::shared_ptr<Report> NewReport(const ReportEntry& entry) = 0;

    // Called before each employee; false ends the run.
    virtual bool GoOn(std::int32_t done) = 0;

    // Called once, with the result of the run.
    virtual void Say(const std::string& outcome) = 0;

    // Called with each report and its result.
    virtual void Made(Report& report, bool complete, const std::string& outcome) = 0;

    // Called right after Made if the report's file replaced another one of this run. The result of the run says that, too.
    virtual void Replaced(const std::string& /*sentence*/) {}
};

// Makes a report for each employee, or one for all, as the order's entry says. For one report the client gets the result (Say) before the
// report (Made). A report that fails stops no other. Raises what the client raises. REQUIRES: database and employees are not nullptr.
void RunReports(const ReportOrder& order, ReportClient& client);

} // namespace ptk
