// Remedies as they are stored: one step, nothing but the records of their finding, and one Undo takes all of it back.
#include "office/card/MendPlan.h"

#include "model/CEmployeeList.h"
#include "office/records/UndoStack.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <map>
#include <random>

namespace ptk {

namespace {

const PayPeriod kTwoWeeks{ToDateTime("3/1/2026"), ToDateTime("3/14/2026")};

class MendingTest : public testing::Test
{
protected:
    MendingTest()
    {
        m_database->DatabaseName(m_either.Name());
        Run("INSERT INTO Employee (FirstName, LastName, Active, AutoDeduct, PayRate) VALUES ('Ann', 'Lee', {0}, {1}, 10), ('Bo', 'Ray', "
            "{0}, "
            "{1}, 10)");
        EXPECT_TRUE(m_people->LoadList(m_database));
    }

    void Run(const char* sql) const
    {
        const bool server = m_either.IsOnServer();
        Execute(*m_either.Open(), fmt::format(fmt::runtime(sql), server ? "true" : "1", server ? "false" : "0"));
    }
    void Add(std::int32_t employee, const std::string& start, const std::string& end) const
    {
        Run(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES ({}, '{}', '{}')", employee, start, end).c_str());
    }

    // By number.
    std::map<std::int64_t, std::string> Records() const
    {
        std::map<std::int64_t, std::string> records;
        const auto engine = m_either.Open();
        const auto rows =
            engine->Prepare("SELECT TimeRecordID, EmployeeID, CAST(StartTime AS TEXT), CAST(EndTime AS TEXT) FROM TimeRecord");
        rows->ForEachRow([&] { records[rows->Int64At(0)] = fmt::format("{} {} {}", rows->Int64At(1), rows->TextAt(2), rows->TextAt(3)); });
        return records;
    }

    MendPlan Plan() const
    {
        return {m_database,
                {kTwoWeeks, ToDateTime("3/20/2026"), {}},
                {m_people->GetEmployeeByID(40), m_people->GetEmployeeByID(41)},
                61200,
                {}};
    }

    // A plan whose every remedy is tried alone.
    void TryEach(const MendPlan& plan)
    {
        for (std::size_t line = 0; line < plan.Lines().size(); ++line) {
            MendPlan one = plan;
            for (std::size_t other = 0; other < one.Lines().size(); ++other) {
                one.Tick(other, false);
            }
            one.Tick(line, true);
            if (!one.Lines()[line].ticked) {
                continue;
            }
            const auto before = Records();
            const auto promised = one.HoursAfter(one.Lines()[line]);
            ASSERT_TRUE(one.Store(*m_database)) << m_database->LastFailure().Description();
            ASSERT_TRUE(m_undo.Remember());
            const auto& changed = one.Lines()[line].finding.records;
            const auto now = Records();
            for (const auto& [id, text] : before) {
                const auto found = now.find(id);
                const bool same = found != now.end() && found->second == text;
                EXPECT_TRUE(same || std::find(changed.begin(), changed.end(), id) != changed.end()) << text;
            }
            const MendPlan after = Plan();
            for (const MendLine& left : after.Lines()) {
                if (left.card == one.Lines()[line].card) {
                    EXPECT_EQ(after.HoursBefore(left), promised) << one.Lines()[line].remedy->text;
                    break;
                }
            }
            ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
            EXPECT_EQ(Records(), before);
        }
    }

    EitherDatabase m_either;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_either.Folder());
    std::shared_ptr<CEmployeeList> m_people = std::make_shared<CEmployeeList>();
    UndoStack m_undo{m_database};
};

TEST_F(MendingTest, ARemedyChangesNothingElseAndKeepsWhatItSays)
{
    std::mt19937 random(22); // the same on every run
    const auto moment = [&](int day, int minute) { return fmt::format("2026-03-{:02} {:02}:{:02}:00", day, minute / 60, minute % 60); };
    for (int i = 0; i < 40; ++i) {
        const int day = 1 + static_cast<int>(random() % 14);
        const int start = static_cast<int>(random() % 1440);
        const int kind = static_cast<int>(random() % 6);
        const int end = kind == 1 ? start : static_cast<int>(random() % 1440);
        Add(40 + static_cast<int>(random() % 2), moment(day, start),
            kind == 0 ? "1899-12-30 00:00:00" : moment(kind == 2 ? day + 1 : day, kind == 3 ? start / 2 : std::max(start, end)));
    }
    const MendPlan plan = Plan();
    EXPECT_GT(plan.Lines().size(), 10U);
    TryEach(plan);
}

TEST_F(MendingTest, MendsSeveralPeopleAsOneStep)
{
    Add(40, "2026-03-02 08:00:00", "1899-12-30 00:00:00");
    Add(40, "2026-03-03 08:00:00", "2026-03-03 08:00:00");
    Add(41, "2026-03-14 22:00:00", "2026-03-15 06:00:00");
    const auto before = Records();
    MendPlan plan = Plan();
    ASSERT_EQ(plan.Lines().size(), 3U);
    EXPECT_TRUE(plan.Lines()[0].ticked);
    EXPECT_FALSE(plan.Lines()[1].ticked) << "it deletes";
    EXPECT_EQ(plan.HoursBefore(plan.Lines()[0]), "0.00");
    EXPECT_EQ(plan.HoursAfter(plan.Lines()[0]), "9.00");
    ASSERT_TRUE(plan.HasEnd(0));
    EXPECT_FALSE(plan.HasEnd(2)) << "a split";
    plan.EndAt(0, ToDateTime("16:15"));
    EXPECT_EQ(plan.HoursAfter(plan.Lines()[0]), "8.25");
    ASSERT_TRUE(plan.Store(*m_database));
    ASSERT_TRUE(m_undo.Remember());
    EXPECT_EQ(Records(), (std::map<std::int64_t, std::string>{{1, "40 2026-03-02 08:00:00 2026-03-02 16:15:00"},
                                                              {2, "40 2026-03-03 08:00:00 2026-03-03 08:00:00"},
                                                              {3, "41 2026-03-14 22:00:00 2026-03-15 00:00:00"},
                                                              {4, "41 2026-03-15 00:00:00 2026-03-15 06:00:00"}}));
    EXPECT_FALSE(plan.Store(*m_database)) << "the records are not as they were read";
    EXPECT_TRUE(m_database->Conflict().has_value());
    ASSERT_TRUE(m_undo.Undo()) << m_undo.Refusal();
    EXPECT_EQ(Records(), before);
}

TEST_F(MendingTest, AddsAShiftForSeveralPeopleAsOneStep)
{
    const std::vector<std::int32_t> people{40, 41};
    ASSERT_TRUE(AddShift(*m_database, people, ToDateTime("3/2/2026 8:00"), ToDateTime("3/2/2026 17:00")));
    ASSERT_TRUE(m_undo.Remember());
    EXPECT_EQ(Records().size(), 2U);
    EXPECT_EQ(Records()[2], "41 2026-03-02 08:00:00 2026-03-02 17:00:00");
    ASSERT_TRUE(m_undo.Undo());
    EXPECT_TRUE(Records().empty());
}

} // namespace

} // namespace ptk
