// The edit trail's history and backups, beside the raw engine on the same files.
#include "office/history/History.h"
#include "office/history/HistoryReading.h"
#include "platform/text/Text.h"
#include "store/backup/Backups.h"
#include "store/BenchData.h"
#include "store/CJetDB.h"
#include "store/RawStore.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace bench {

namespace {

constexpr Size kMedium{"1m", 1'000, 1'000'000};
constexpr Size kChanges{"changes", 1'000, 1'000'000, true};

void RawBackups(benchmark::State& state)
{
    const std::string path = DataFile(kMedium);
    const std::string copy = DataFolder() + "/raw backup.mdb";
    for (auto unused : state) {
        RawBackup(path, copy);
        std::filesystem::remove(copy);
    }
}

void ProgramBackups(benchmark::State& state)
{
    const std::string path = DataFile(kMedium);
    for (auto unused : state) {
        std::filesystem::remove(ptk::BackUp(path, DataFolder() + "/backups", kLastDay));
    }
}

void RawHistories(benchmark::State& state)
{
    const std::string path = DataFile(kChanges);
    for (auto unused : state) {
        benchmark::DoNotOptimize(RawHistory(path, kFirstEmployee + 3));
    }
}

void ProgramHistories(benchmark::State& state)
{
    const auto database = std::make_shared<ptk::CJetDB>(".");
    database->DatabaseName(DataFile(kChanges));
    ptk::TrailQuery query;
    query.employee = kFirstEmployee + 3;
    for (auto unused : state) {
        benchmark::DoNotOptimize(ptk::HistoryIn(ptk::ReportForm::Text, database, query));
    }
}

// As the window opens on a card: whom there is, who changed anything, and the first page of what a period's total came of.
void ProgramHistoryPages(benchmark::State& state)
{
    const auto database = std::make_shared<ptk::CJetDB>(".");
    database->DatabaseName(DataFile(kChanges));
    ptk::TrailQuery query;
    query.employee = kFirstEmployee + 3;
    query.recordsIn = ptk::TrailDays{kLastDay.AddDays(-kPeriodDays), kLastDay};
    for (auto unused : state) {
        const ptk::CJetDB::Hold hold(database);
        const auto names = std::make_shared<ptk::EmployeeNames>(database);
        names->LearnGone(database);
        benchmark::DoNotOptimize(ptk::ReadTrailPersons(database));
        ptk::HistoryReading reading(database, query, names);
        reading.ReadOn();
        benchmark::DoNotOptimize(reading.Rows().data());
    }
}

} // namespace

void RegisterTrailBenchmarks()
{
    benchmark::RegisterBenchmark("backup of 1 million records/raw", RawBackups);
    benchmark::RegisterBenchmark("backup of 1 million records/program", ProgramBackups);
    benchmark::RegisterBenchmark("history of one employee, 1 million changes/raw", RawHistories);
    benchmark::RegisterBenchmark("history of one employee, 1 million changes/program", ProgramHistories);
    benchmark::RegisterBenchmark("history of one period, 1 million changes/raw", RawHistories);
    benchmark::RegisterBenchmark("history of one period, 1 million changes/program", ProgramHistoryPages);
}

} // namespace bench
