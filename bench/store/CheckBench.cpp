// The check of a card beside the card alone, and the payday overview and its closing beside the raw engine fetching the same cards.
#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "office/card/CheckedTimecard.h"
#include "office/overview/Overview.h"
#include "office/payday/PaydayClosing.h"
#include "store/BenchData.h"
#include "store/CJetDB.h"
#include "store/RawStore.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <stdexcept>

namespace bench {

namespace {

constexpr Size kFile{"1m", 1'000, 1'000'000};
constexpr std::int32_t kEmployees = 1'000;

ptk::PayPeriod Newest()
{
    return {kLastDay.AddDays(1 - kPeriodDays), kLastDay};
}

ptk::PayPeriod Oldest()
{
    return {FirstDay(kFile), FirstDay(kFile).AddDays(kPeriodDays - 1)};
}

std::shared_ptr<ptk::CEmployee> Employee(std::int32_t id)
{
    ptk::EmployeeRow row;
    row.EmployeeID = id;
    row.LastName = "Bench";
    row.PayRate = 10;
    row.OvertimePayRate = 15;
    return std::make_shared<ptk::CEmployee>(row);
}

struct Office
{
    explicit Office(const std::string& path = DataFile(kFile))
    {
        database->DatabaseName(path);
        factory->PTKDatabase(database);
    }

    std::shared_ptr<ptk::CJetDB> database = std::make_shared<ptk::CJetDB>(".");
    std::shared_ptr<ptk::CTimeRecordFactory> factory = std::make_shared<ptk::CTimeRecordFactory>();
};

void CardAlone(benchmark::State& state, const ptk::PayPeriod& period)
{
    const Office office;
    const auto employee = Employee(kFirstEmployee + 3);
    for (auto unused : state) {
        ptk::CTimeCard card(office.factory);
        card.PTKDatabase(office.database);
        if (!card.GenerateTimecard(employee, period.from, period.to.AddDays(1))) {
            throw std::runtime_error("no card");
        }
    }
}

void CheckedCard(benchmark::State& state, const ptk::PayPeriod& period)
{
    const Office office;
    const auto employee = Employee(kFirstEmployee + 3);
    for (auto unused : state) {
        ptk::CTimeCard card(office.factory);
        card.PTKDatabase(office.database);
        const auto checked = GenerateChecked(card, office.database, employee, period, kLastDay.AddDays(1), ptk::CheckLimits());
        if (!checked.generated || !checked.check || checked.check->weeks.size() < 2) {
            throw std::runtime_error("no checked card");
        }
    }
}

void RawOverview(benchmark::State& state, const ptk::PayPeriod& period)
{
    const std::string path = DataFile(kFile);
    const std::string from = StoredText(period.from);
    const std::string to = StoredText(period.to.AddDays(1));
    for (auto unused : state) {
        benchmark::DoNotOptimize(RawCards(path, kFirstEmployee, kEmployees, from, to));
    }
}

void ProgramOverview(benchmark::State& state, const ptk::PayPeriod& period)
{
    const Office office;
    ptk::Employees employees;
    for (std::int32_t i = 0; i < kEmployees; ++i) {
        employees.push_back(Employee(kFirstEmployee + i));
    }
    for (auto unused : state) {
        ptk::Overview overview;
        overview.period = period;
        overview.made = kLastDay.AddDays(1);
        overview.withRemedies = true;
        ReadOverview(overview, office.database, employees);
        benchmark::DoNotOptimize(TotalsOf(overview.rows));
    }
}

// Until all of them are safe on the disk, as one step of the trail. Reopened again in between, which is not counted. In a copy, since it
// grows.
void ClosedPayday(benchmark::State& state, const ptk::PayPeriod& period)
{
    const std::string copy = DataFolder() + "/payday.mdb";
    std::filesystem::copy_file(DataFile(kFile), copy, std::filesystem::copy_options::overwrite_existing);
    const Office office(copy);
    ptk::PaydayOrder order{period, {}, kLastDay.AddDays(1)};
    for (std::int32_t i = 0; i < kEmployees; ++i) {
        order.employees.push_back(kFirstEmployee + i);
    }
    for (auto unused : state) {
        if (ClosePayday(office.database, order).front().deed != ptk::PaydayDeed::Closed) {
            throw std::runtime_error("not closed");
        }
        state.PauseTiming();
        static_cast<void>(ReopenPayday(office.database, order));
        state.ResumeTiming();
    }
    std::filesystem::remove(copy);
}

using Work = void (*)(benchmark::State& state, const ptk::PayPeriod& period);

void Pair(const std::string& name, const ptk::PayPeriod& period, Work raw, Work program)
{
    benchmark::RegisterBenchmark((name + "/raw").c_str(), raw, period);
    benchmark::RegisterBenchmark((name + "/program").c_str(), program, period);
}

} // namespace

void RegisterCheckBenchmarks()
{
    Pair("card with its check, newest period", Newest(), CardAlone, CheckedCard);
    Pair("card with its check, oldest period", Oldest(), CardAlone, CheckedCard);
    Pair("overview of 1,000 employees, newest period", Newest(), RawOverview, ProgramOverview);
    Pair("overview of 1,000 employees, oldest period", Oldest(), RawOverview, ProgramOverview);
    Pair("payday of 1,000 employees closed", Newest(), RawOverview, ClosedPayday);
}

} // namespace bench
