// Time cards, the employee list and saving: the program's own classes beside the raw engine, on the same files.
#include "model/CEmployeeList.h"
#include "model/CTimeRecord.h"
#include "store/ProgramCards.h"
#include "store/RawStore.h"

namespace bench {

namespace {

constexpr Size kSmall{"10k", 10, 10'000};
constexpr Size kMedium{"1m", 1'000, 1'000'000};
constexpr Size kLarge{"10m", 1'000, 10'000'000};
constexpr Size kStaff{"staff", 10'000, 10'000};

Period Oldest(const Size& size)
{
    return {FirstDay(size), FirstDay(size).AddDays(kPeriodDays)};
}

void RawCards(benchmark::State& state, const Size& size, const Period& period)
{
    const std::string path = DataFile(size);
    const std::string from = StoredText(period.from);
    const std::string to = StoredText(period.to);
    for (auto unused : state) {
        benchmark::DoNotOptimize(RawCard(path, kFirstEmployee + 3, from, to));
    }
}

void ProgramCards(benchmark::State& state, const Size& size, const Period& period)
{
    const Program program(DataFile(size));
    const auto employee = Program::Employee(kFirstEmployee + 3);
    for (auto unused : state) {
        benchmark::DoNotOptimize(program.Card(employee, period));
    }
}

void RawThousand(benchmark::State& state)
{
    const std::string path = DataFile(kMedium);
    const std::string from = StoredText(Newest().from);
    const std::string to = StoredText(Newest().to);
    for (auto unused : state) {
        for (std::int32_t i = 0; i < 1000; ++i) {
            benchmark::DoNotOptimize(RawCard(path, kFirstEmployee + i, from, to));
        }
    }
}

void ProgramThousand(benchmark::State& state)
{
    const Program program(DataFile(kMedium));
    for (auto unused : state) {
        for (std::int32_t i = 0; i < 1000; ++i) {
            benchmark::DoNotOptimize(program.Card(Program::Employee(kFirstEmployee + i), Newest()));
        }
    }
}

void RawList(benchmark::State& state)
{
    const std::string path = DataFile(kStaff);
    for (auto unused : state) {
        benchmark::DoNotOptimize(RawEmployees(path));
    }
}

void ProgramList(benchmark::State& state)
{
    const Program program(DataFile(kStaff));
    for (auto unused : state) {
        ptk::CEmployeeList list;
        if (!list.LoadList(program.Database())) {
            throw std::runtime_error("no list");
        }
    }
}

void RawSaves(benchmark::State& state)
{
    const std::string path = UntrailedCopy(kSmall);
    std::int32_t record = 0;
    for (auto unused : state) {
        ++record;
        RawSave(path, record % kSmall.records + 1, StoredText(kLastDay));
    }
}

void ProgramSaves(benchmark::State& state)
{
    const Program program(ScratchCopy(kSmall));
    std::int32_t id = 0;
    for (auto unused : state) {
        ++id;
        const auto record = std::make_shared<ptk::CTimeRecord>();
        record->EmployeeID(kFirstEmployee);
        record->StartTime(kLastDay.AddDays(-1));
        record->EndTime(kLastDay);
        record->TimeRecordID(id % kSmall.records + 1);
        if (!program.Factory().Save(record) || program.Factory().ErrorNumber() != 0) {
            throw std::runtime_error("not saved");
        }
    }
}

void PairOfCards(const std::string& name, const Size& size, const Period& period)
{
    Pair(
        name, [size, period](benchmark::State& state) { RawCards(state, size, period); },
        [size, period](benchmark::State& state) { ProgramCards(state, size, period); });
}

} // namespace

void RegisterStoreBenchmarks(bool large)
{
    PairOfCards("card, newest period, 10 thousand records", kSmall, Newest());
    PairOfCards("card, newest period, 1 million records", kMedium, Newest());
    if (large) {
        PairOfCards("card, newest period, 10 million records", kLarge, Newest());
    }
    PairOfCards("card, oldest period, 1 million records", kMedium, Oldest(kMedium));
    Pair("1,000 cards of 1,000 employees", RawThousand, ProgramThousand);
    Pair("list of 10,000 employees", RawList, ProgramList);
    Pair("one record saved", RawSaves, ProgramSaves);
}

} // namespace bench
