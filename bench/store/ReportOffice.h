// What a report needs around it, and the raw work that it is compared with.
#pragma once

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "platform/system/Clock.h"
#include "platform/system/Desktop.h"
#include "reports/Report.h"
#include "store/CJetDB.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace bench {

class NoViewers final : public ptk::ReportViewerFactory
{
public:
    std::shared_ptr<ptk::ReportViewer> CreateViewer(ptk::ReportKind kind) override;
};

class NoDesktop final : public ptk::Desktop
{
public:
    ptk::Answer MessageBox(const std::string&, const std::string&, ptk::Icon, ptk::Buttons) override { return ptk::Answer::Ok; }
    void SetPointer(ptk::Pointer) override {}
    std::int32_t Shell(const ptk::DesktopWindow&, ptk::ShellVerb, const std::string&) override { return ptk::ShellNoProgram; }
};

// A program folder in the data folder, a database, and the days of the reports: [from, to], of which the program takes one day more.
class Office
{
public:
    Office(const std::string& databaseName, ptk::DateTime firstDay);

    ptk::ReportContext Context() { return {folder.string(), m_desktop, m_clock, m_viewers, factory}; }

    static std::shared_ptr<ptk::CEmployee> Employee(std::int32_t id);

    std::shared_ptr<ptk::CJetDB> database = std::make_shared<ptk::CJetDB>(".");
    std::shared_ptr<ptk::CTimeRecordFactory> factory = std::make_shared<ptk::CTimeRecordFactory>();
    std::filesystem::path folder;
    ptk::DateTime from;
    ptk::DateTime to;

private:
    NoDesktop m_desktop;
    ptk::SystemClock m_clock;
    NoViewers m_viewers;
};

// As many employees, from kFirstEmployee on.
std::shared_ptr<ptk::CEmployeeList> Everyone(std::int32_t employees);

// Answers the report's path.
std::string WriteReview(Office& office, const std::shared_ptr<ptk::CEmployeeList>& list);

// Of the report at that path.
std::string Bytes(const std::string& reportPath, const Office& office);

// Fetches the card of so many employees by their IDs and writes their share of the bytes after each; the file is written aside, flushed and
// put in place, as a report has to be.
void RawReport(const Office& office, std::int32_t employees, const std::string& bytes, const std::function<void(std::int32_t)>& fetch);

} // namespace bench
