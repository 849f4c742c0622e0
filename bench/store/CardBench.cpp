// Time cards, the employee list and saving: the program's own classes beside the raw engine, on the same files.
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "store/BenchData.h"
#include "store/CJetDB.h"
#include "store/RawStore.h"

#include <benchmark/benchmark.h>
#include <stdexcept>

namespace bench {

namespace {

using ptk::CEmployee;
using ptk::CJetDB;
using ptk::CTimeCard;
using ptk::CTimeRecordFactory;
using ptk::DateTime;

constexpr Size kSmall{"10k", 10, 10'000};
constexpr Size kMedium{"1m", 1'000, 1'000'000};
constexpr Size kLarge{"10m", 1'000, 10'000'000};
constexpr Size kStaff{"staff", 10'000, 10'000};

struct Period
{
    DateTime from;
    DateTime to; // the midnight after the last day
};

Period Newest()
{
    return {kLastDay.AddDays(1 - kPeriodDays), kLastDay.AddDays(1)};
}
Period Oldest(const Size& size)
{
    return {FirstDay(size), FirstDay(size).AddDays(kPeriodDays)};
}

class Program
{
public:
    explicit Program(const std::string& path)
    {
        m_database->DatabaseName(path);
        m_factory->PTKDatabase(m_database);
    }

    static std::shared_ptr<CEmployee> Employee(std::int32_t id)
    {
        ptk::EmployeeRow row;
        row.EmployeeID = id;
        row.LastName = "Bench";
        row.PayRate = 10;
        row.OvertimePayRate = 15;
        return std::make_shared<CEmployee>(row);
    }

    float Card(const std::shared_ptr<CEmployee>& employee, const Period& period) const
    {
        CTimeCard card(m_factory);
        card.PTKDatabase(m_database);
        if (!card.GenerateTimecard(employee, period.from, period.to)) {
            throw std::runtime_error("no card");
        }
        return card.RegularHoursWorked();
    }

    const std::shared_ptr<CJetDB>& Database() const { return m_database; }

private:
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(".");
    std::shared_ptr<CTimeRecordFactory> m_factory = std::make_shared<CTimeRecordFactory>();
};

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
    CTimeRecordFactory factory;
    factory.PTKDatabase(program.Database());
    std::int32_t id = 0;
    for (auto unused : state) {
        ++id;
        const auto record = std::make_shared<ptk::CTimeRecord>();
        record->EmployeeID(kFirstEmployee);
        record->StartTime(kLastDay.AddDays(-1));
        record->EndTime(kLastDay);
        record->TimeRecordID(id % kSmall.records + 1);
        if (!factory.Save(record) || factory.ErrorNumber() != 0) {
            throw std::runtime_error("not saved");
        }
    }
}

void Pair(const std::string& name, const std::function<void(benchmark::State&)>& raw, const std::function<void(benchmark::State&)>& program)
{
    benchmark::RegisterBenchmark((name + "/raw").c_str(), raw);
    benchmark::RegisterBenchmark((name + "/program").c_str(), program);
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
