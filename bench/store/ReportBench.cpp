// Reports over many cards: the program's reports beside the raw engine fetching the same cards and writing the same bytes.
#include "model/PayPeriod.h"
#include "reports/CReportYTDTotals.h"
#include "store/BenchData.h"
#include "store/RawStore.h"
#include "store/ReportOffice.h"

#include <benchmark/benchmark.h>
#include <stdexcept>

namespace bench {

namespace {

constexpr Size kFile{"1m", 1'000, 1'000'000};
constexpr std::int32_t kEmployees = 1'000;

std::string WriteTotals(Office& office)
{
    const auto report = std::make_shared<ptk::CReportYTDTotals>(office.Context());
    if (!report->GenerateReport(office.database, Office::Employee(kFirstEmployee), office.from, office.to)) {
        throw std::runtime_error("no totals");
    }
    return report->ReportPath();
}

// Each card over a hold of its own.
void RawFileReport(const Office& office, std::int32_t employees, const std::string& bytes)
{
    const std::string from = StoredText(office.from);
    const std::string to = StoredText(office.to.AddDays(1));
    RawReport(office, employees, bytes,
              [&](std::int32_t employee) { benchmark::DoNotOptimize(RawCard(DataFile(kFile), employee, from, to)); });
}

void RawReview(benchmark::State& state)
{
    Office office(DataFile(kFile), kLastDay.AddDays(1 - kPeriodDays));
    const std::string bytes = Bytes(WriteReview(office, Everyone(kEmployees)), office);
    for (auto unused : state) {
        RawFileReport(office, kEmployees, bytes);
    }
}

void ProgramReview(benchmark::State& state)
{
    Office office(DataFile(kFile), kLastDay.AddDays(1 - kPeriodDays));
    const auto list = Everyone(kEmployees);
    for (auto unused : state) {
        WriteReview(office, list);
    }
}

void RawTotals(benchmark::State& state)
{
    Office office(DataFile(kFile), ptk::YearToDate(kLastDay).from);
    const std::string bytes = Bytes(WriteTotals(office), office);
    for (auto unused : state) {
        RawFileReport(office, 1, bytes);
    }
}

void ProgramTotals(benchmark::State& state)
{
    Office office(DataFile(kFile), ptk::YearToDate(kLastDay).from);
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
