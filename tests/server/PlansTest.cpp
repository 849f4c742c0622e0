// How a server answers the questions whose time must not grow with the history.
#include "store/CTimeRecSQLConverter.h"
#include "store/engine/Dialect.h"
#include "store/engine/RecordSet.h"
#include "store/postgres/PostgresEngine.h"
#include "store/PunchSQL.h"
#include "support/NewServerDatabase.h"

#include <gmock/gmock.h>

namespace ptk {

namespace {

using ::testing::HasSubstr;

class PlansTest : public ::testing::Test
{
protected:
    // Twenty people over a year and a half, one shift of a hundred unusual.
    PlansTest()
    {
        m_database.Run(
            "SET ptk.untold = '1'; INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 40 + n % 20, moment, moment + CASE WHEN "
            "n % 100 = 0 THEN interval '30 hours' ELSE interval '8 hours' END FROM (SELECT n, TIMESTAMP '2001-01-01' + n / 20 * interval "
            "'1 day' FROM generate_series(1, 10000) AS n) AS shifts (n, moment)");
        m_database.Run("VACUUM ANALYZE TimeRecord");
    }

    std::string PlanOf(const std::string& sql)
    {
        PostgresEngine engine(m_database.Address());
        const auto statement = engine.Prepare("EXPLAIN (COSTS OFF) " + sql);
        for (const auto& [name, value] : {std::pair("employee", "41"), {"first", "2002-01-01 00:00:00"}, {"last", "2002-01-14 00:00:00"}}) {
            if (sql.find(std::string(":") + name) != std::string::npos) {
                statement->Bind(name, std::string(value));
            }
        }
        std::string plan;
        for (const auto rows = statement->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
            plan += std::string(rows->TextAt(0)) + '\n';
        }
        return plan;
    }

    const NewServerDatabase m_database;
};

TEST_F(PlansTest, AnswersOfATimeCardComeFromIndexesAlone)
{
    const DateTime day({2002, 1, 1}, {});
    const EngineWords& words = kPostgresWords;
    for (const auto& [sql, index] : {std::pair(TranslateStatement(CTimeRecSQLConverter().BuildFetchSQL(41, day, day.AddDays(14))),
                                               "Index Only Scan using timerecordperiod"),
                                     {punchsql::Starting(punchsql::kOne), "Index Only Scan using timerecordperiod"},
                                     {punchsql::Unusual(punchsql::kOne, words), "Index Only Scan using timerecordunusual"}}) {
        EXPECT_THAT(PlanOf(sql), HasSubstr(index)) << sql;
    }
}

} // namespace

} // namespace ptk
