#include "store/CSystemOptions.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/StoreFixture.h"

namespace ptk {

namespace {

class CSystemOptionsTest : public StoreTest
{
protected:
    CSystemOptionsTest()
    {
        m_database->DatabaseName(Path());
        m_options.PTKDatabase(m_database);
        m_options.PTKDatabase(nullptr); // keeps the one it has
    }

    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
    CSystemOptions m_options;
};

} // namespace

TEST_F(CSystemOptionsTest, LoadsTheRowAndLeavesTheDatabaseOpen)
{
    m_database->OpenDB();
    ASSERT_TRUE(m_options.Load());
    EXPECT_EQ(m_options.ProgramName(), "PTK - Administrator");
    EXPECT_EQ(m_options.ProgramVersion(), "1.0");
    EXPECT_EQ(m_options.PeriodLength(), 14);
    EXPECT_EQ(m_options.AutoShiftStartTime(), DateTime({}, TimeOfDay{8, 0, 0}));
    EXPECT_EQ(m_options.AutoShiftEndTime(), DateTime({}, TimeOfDay{17, 0, 0}));
    EXPECT_TRUE(m_database->DatabaseOpen());
    EXPECT_EQ(m_database->SQL(), "SELECT [_System].program, [_System].version, [_System].period_length, [_System].auto_shift_start_time, "
                                 "[_System].auto_shift_end_time FROM _System;");
}

TEST_F(CSystemOptionsTest, NeedsAnOpenDatabase)
{
    EXPECT_FALSE(m_options.Load());
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::NoDatabase);
    EXPECT_EQ(FailureOf([] { CSystemOptions().Load(); }), failure::ObjectNotSet);
}

TEST_F(CSystemOptionsTest, RaisesWhatReadingTheRowRaises)
{
    struct Case
    {
        const char* change;
        std::int32_t number;
    };
    for (const Case& c :
         {Case{"UPDATE _System SET period_length = 32768", failure::Overflow},
          Case{"UPDATE _System SET period_length = 'two weeks'", failure::TypeMismatch},
          Case{"UPDATE _System SET auto_shift_end_time = 'evening', period_length = 7", failure::TypeMismatch},
          Case{"UPDATE _System SET auto_shift_end_time = NULL", failure::InvalidUseOfNull},
          Case{"UPDATE _System SET auto_shift_start_time = NULL", failure::InvalidUseOfNull},
          Case{"UPDATE _System SET period_length = NULL", failure::InvalidUseOfNull},
          Case{"UPDATE _System SET version = NULL", failure::InvalidUseOfNull},
          Case{"UPDATE _System SET program = NULL", failure::InvalidUseOfNull}, Case{"DELETE FROM _System", failure::NoCurrentRecord}}) {
        Run(c.change);
        m_database->OpenDB();
        EXPECT_EQ(FailureOf([&] { m_options.Load(); }), c.number) << c.change; // and lets the next change at the open file
    }
}

TEST_F(CSystemOptionsTest, UpdatesPeriodAndTimesButNeverNameAndVersion)
{
    m_options.ProgramName("Other");
    m_options.ProgramVersion("2.0");
    m_options.PeriodLength(7);
    m_options.AutoShiftStartTime(DateTime({}, TimeOfDay{6, 30, 0}));
    m_options.AutoShiftEndTime(DateTime(CalendarDate{2003, 3, 5}, TimeOfDay{15, 0, 0}));
    EXPECT_TRUE(m_options.Update());
    EXPECT_FALSE(m_database->DatabaseOpen());
    EXPECT_EQ(m_database->SQL(), "UPDATE _System SET _System.period_length = 7, _System.auto_shift_start_time = #6:30:00 AM#, "
                                 "_System.auto_shift_end_time = #3/5/2003 3:00:00 PM#;");
    EXPECT_EQ(Rows("SELECT * FROM _System"), "PTK - Administrator|1.0|7|1899-12-30 06:30:00|2003-03-05 15:00:00|");
}

TEST_F(CSystemOptionsTest, AFailedUpdateAnswersFalse)
{
    Run("DROP TABLE _System");
    EXPECT_FALSE(m_options.Update());
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::StatementFailed);
}

} // namespace ptk
