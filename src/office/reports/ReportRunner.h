// Has chosen reports made, one after the other.
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
    std::shared_ptr<CEmployeeList> employees; // all, among whom the names are looked up
    std::vector<std::string> names;           // display names: those chosen, or all listed when the report is for everyone
    Value from{};                             // may be a text that is no date, which the report refuses
    Value to{};
};

// Who has them made: the Reports page, the console.
class ReportClient
{
public:
    virtual ~ReportClient() = default;
    virtual std::shared_ptr<Report> NewReport(const ReportEntry& entry) = 0;

    // Before each employee; false ends the run.
    virtual bool GoOn(std::int32_t done) = 0;

    // Once, what the run came to.
    virtual void Say(const std::string& outcome) = 0;

    // With what this one came to.
    virtual void Made(Report& report, bool complete, const std::string& outcome) = 0;

    // That its file took the place of another one of this run, right after Made; what the run came to tells it, too.
    virtual void Replaced(const std::string& /*sentence*/) {}
};

// For each employee a report of their own, or one for all, as its entry says. Of one report it is said what the run came to before its
// client has it; a report that fails stops no other. Raises what the client raises. REQUIRES: database and employees are not nullptr.
void RunReports(const ReportOrder& order, ReportClient& client);

} // namespace ptk
