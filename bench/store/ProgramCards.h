// The program's own classes on a database, as its windows use them.
#pragma once

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "store/BenchData.h"
#include "store/CJetDB.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace bench {

struct Period
{
    ptk::DateTime from;
    ptk::DateTime to; // the midnight after the last day
};

inline Period Newest()
{
    return {kLastDay.AddDays(1 - kPeriodDays), kLastDay.AddDays(1)};
}

class Program
{
public:
    explicit Program(const std::string& databaseName)
    {
        m_database->DatabaseName(databaseName);
        m_factory->PTKDatabase(m_database);
    }

    static std::shared_ptr<ptk::CEmployee> Employee(std::int32_t id)
    {
        ptk::EmployeeRow row;
        row.EmployeeID = id;
        row.LastName = "Bench";
        row.PayRate = 10;
        row.OvertimePayRate = 15;
        return std::make_shared<ptk::CEmployee>(row);
    }

    float Card(const std::shared_ptr<ptk::CEmployee>& employee, const Period& period) const
    {
        ptk::CTimeCard card(m_factory);
        card.PTKDatabase(m_database);
        if (!card.GenerateTimecard(employee, period.from, period.to)) {
            throw std::runtime_error("no card");
        }
        return card.RegularHoursWorked();
    }

    const std::shared_ptr<ptk::CJetDB>& Database() const { return m_database; }
    ptk::CTimeRecordFactory& Factory() const { return *m_factory; }

private:
    std::shared_ptr<ptk::CJetDB> m_database = std::make_shared<ptk::CJetDB>(".");
    std::shared_ptr<ptk::CTimeRecordFactory> m_factory = std::make_shared<ptk::CTimeRecordFactory>();
};

// Two benchmarks that are compared.
inline void Pair(const std::string& name, const std::function<void(benchmark::State&)>& raw,
                 const std::function<void(benchmark::State&)>& program)
{
    benchmark::RegisterBenchmark((name + "/raw").c_str(), raw);
    benchmark::RegisterBenchmark((name + "/program").c_str(), program);
}

} // namespace bench
