// Reports over many cards: the program's reports beside the raw engine fetching the same cards and writing the same bytes.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "model/PayPeriod.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "reports/CReportReview.h"
#include "reports/CReportYTDTotals.h"
#include "store/BenchData.h"
#include "store/CJetDB.h"
#include "store/RawStore.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <unistd.h>

namespace bench {

namespace {

using ptk::DateTime;

constexpr Size kFile{"1m", 1'000, 1'000'000};
constexpr std::int32_t kEmployees = 1'000;

class NoViewers final : public ptk::ReportViewerFactory
{
public:
    std::shared_ptr<ptk::ReportViewer> CreateViewer(ptk::ReportKind) override { return std::make_shared<NoViewer>(); }

private:
    class NoViewer final : public ptk::ReportViewer
    {
    public:
        void Controller(std::shared_ptr<ptk::Report>) override {}
        void Caption(const std::string&) override {}
        bool WriteLine(const std::string&) override { return true; }
        void Show() override {}
        void Hide() override {}
        void Unload() override {}
    };
};

class NoDesktop final : public ptk::Desktop
{
public:
    ptk::Answer MessageBox(const std::string&, const std::string&, ptk::Icon, ptk::Buttons) override { return ptk::Answer::Ok; }
    void SetPointer(ptk::Pointer) override {}
    std::int32_t Shell(const ptk::DesktopWindow&, ptk::ShellVerb, const std::string&) override { return ptk::ShellNoProgram; }
};

// A program folder beside the data, and the days of the reports: [from, to], of which the program takes one day more.
class Office
{
public:
    explicit Office(DateTime firstDay) : from(firstDay)
    {
        database->DatabaseName(DataFile(kFile));
        factory->PTKDatabase(database);
        folder = std::filesystem::absolute(std::filesystem::path(DataFile(kFile)).parent_path());
        std::filesystem::create_directories(folder / "reports");
    }

    ptk::ReportContext Context() { return {folder.string(), m_desktop, m_clock, m_viewers, factory}; }

    static std::shared_ptr<ptk::CEmployee> Employee(std::int32_t id)
    {
        ptk::EmployeeRow row;
        row.EmployeeID = id;
        row.EmployeeNumber = id;
        row.FirstName = "Ann";
        row.LastName = "Bench";
        row.Address1 = "12 Oak Street";
        row.City = "Springfield";
        row.PayRate = 10;
        row.OvertimePayRate = 15;
        return std::make_shared<ptk::CEmployee>(row);
    }

    std::shared_ptr<ptk::CJetDB> database = std::make_shared<ptk::CJetDB>(".");
    std::shared_ptr<ptk::CTimeRecordFactory> factory = std::make_shared<ptk::CTimeRecordFactory>();
    std::filesystem::path folder;
    DateTime from;
    DateTime to = kLastDay;

private:
    NoDesktop m_desktop;
    ptk::SystemClock m_clock;
    NoViewers m_viewers;
};

std::string WriteReview(Office& office, const std::shared_ptr<ptk::CEmployeeList>& list)
{
    const auto report = std::make_shared<ptk::CReportReview>(office.Context());
    if (!report->GenerateReport(office.database, list, office.from, office.to)) {
        throw std::runtime_error("no review");
    }
    return report->ReportPath();
}

std::string WriteTotals(Office& office)
{
    const auto report = std::make_shared<ptk::CReportYTDTotals>(office.Context());
    if (!report->GenerateReport(office.database, Office::Employee(kFirstEmployee), office.from, office.to)) {
        throw std::runtime_error("no totals");
    }
    return report->ReportPath();
}

std::shared_ptr<ptk::CEmployeeList> Everyone()
{
    auto list = std::make_shared<ptk::CEmployeeList>();
    for (std::int32_t i = 0; i < kEmployees; ++i) {
        list->Insert(Office::Employee(kFirstEmployee + i), i + 1);
    }
    return list;
}

std::string Bytes(const std::string& reportPath, const Office& office)
{
    std::ifstream file(office.folder / "reports" / reportPath.substr(reportPath.rfind('\\') + 1), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Flush(const std::filesystem::path& path)
{
    const int handle = ::open(path.c_str(), O_RDONLY);
    if (::fsync(handle) != 0) {
        throw std::runtime_error("no flush");
    }
    ::close(handle);
}

// The cards of so many employees fetched raw, their share of the bytes written after each; the file is written aside, flushed and put in
// place, as a report has to be.
void RawReport(Office& office, std::int32_t employees, const std::string& bytes)
{
    const std::string from = StoredText(office.from);
    const std::string to = StoredText(office.to.AddDays(1));
    const std::size_t share = bytes.size() / static_cast<std::size_t>(employees);
    const std::filesystem::path reports = office.folder / "reports";
    std::ofstream file(reports / "raw.draft", std::ios::binary);
    for (std::int32_t i = 0; i < employees; ++i) {
        benchmark::DoNotOptimize(RawCard(DataFile(kFile), kFirstEmployee + i, from, to));
        file.write(bytes.data() + static_cast<std::size_t>(i) * share, static_cast<std::streamsize>(share)).flush();
    }
    Flush(reports / "raw.draft");
    std::filesystem::rename(reports / "raw.draft", reports / "raw.txt");
    Flush(reports);
}

void RawReview(benchmark::State& state)
{
    Office office(kLastDay.AddDays(1 - kPeriodDays));
    const std::string bytes = Bytes(WriteReview(office, Everyone()), office);
    for (auto unused : state) {
        RawReport(office, kEmployees, bytes);
    }
}

void ProgramReview(benchmark::State& state)
{
    Office office(kLastDay.AddDays(1 - kPeriodDays));
    const auto list = Everyone();
    for (auto unused : state) {
        WriteReview(office, list);
    }
}

void RawTotals(benchmark::State& state)
{
    Office office(ptk::YearToDate(kLastDay).from);
    const std::string bytes = Bytes(WriteTotals(office), office);
    for (auto unused : state) {
        RawReport(office, 1, bytes);
    }
}

void ProgramTotals(benchmark::State& state)
{
    Office office(ptk::YearToDate(kLastDay).from);
    for (auto unused : state) {
        WriteTotals(office);
    }
}

} // namespace

void RegisterReportBenchmarks()
{
    benchmark::RegisterBenchmark("review of 1,000 employees/raw", RawReview);
    benchmark::RegisterBenchmark("review of 1,000 employees/program", ProgramReview);
    benchmark::RegisterBenchmark("year-to-date card/raw", RawTotals);
    benchmark::RegisterBenchmark("year-to-date card/program", ProgramTotals);
}

} // namespace bench
