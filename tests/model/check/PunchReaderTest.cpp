// Which rows are read for the card of the week from Monday 3/2 to Sunday 3/8/2026, whose work weeks go from Sunday 3/1 to Saturday 3/14.
#include "model/check/PunchReader.h"

#include "model/check/FindingText.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/BulkWriter.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

struct Row
{
    const char* start; // SQL
    const char* end;
    const char* read; // "taken" by the card's fetch, "near" it, or ""
};

constexpr Row kRows[] = {
    {"'2026-03-02 08:00:00'", "'2026-03-02 16:00:00'", "taken"},
    {"'2026-03-08 22:00:00'", "'2026-03-09 00:00:00'", "taken"},
    {"'2026-03-09 00:00:00'", "'2026-03-09 00:00:00'", "taken"}, // without length, at the card's last moment
    {"'2026-03-08 22:00:00'", "'2026-03-09 00:00:01'", "near"},
    {"'2026-03-01 08:00:00'", "'2026-03-01 16:00:00'", "near"}, // in the first week
    {"'2026-02-28 22:00:00'", "'2026-03-01 06:00:00'", "near"}, // reaches into it
    {"'2026-02-27 22:00:00'", "'2026-02-28 06:00:00'", ""},
    {"'2019-01-01 08:00:00'", "'2026-03-04 16:00:00'", "near"}, // years long
    {"'2026-03-14 22:00:00'", "'2026-03-15 06:00:00'", "near"}, // in the last week
    {"'2026-03-15 08:00:00'", "'2026-03-15 16:00:00'", ""},
    {"'2030-03-15 08:00:00'", "'1899-12-30 00:00:00'", "taken"}, // open, years later
    {"'2030-03-15 08:00:00'", "'2026-03-04 16:00:00'", "taken"}, // backward, years later
    {"'2026-03-04 08:00:00'", "NULL", "near"},
    {"'2026-03-04 08:00:00'", "'2026-03-04T16:00:00'", "taken"}, // as texts compare
    {"'2026-03-04 08:00:00'", "'soon'", "near"},
    {"'2030-03-04 08:00:00'", "0", "taken"},         // a number is before every text
    {"X'6E6F77'", "'2026-03-04 16:00:00'", "taken"}, // bytes are behind
    {"NULL", "NULL", "near"},
    {"'now'", "'2026-03-04 16:00:00'", "taken"},
    {"'1899-12-30 00:00:00'", "NULL", "near"},
};

class PunchReaderTest : public testing::Test
{
protected:
    PunchReaderTest()
    {
        CreateDatabase(Path());
        m_database->DatabaseName(Path());
        for (const Row& row : kRows) {
            Run(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, {}, {})", row.start, row.end));
        }
        Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (41, '2026-03-02 08:00:00', NULL)");
    }

    std::string Path() const { return m_folder.Path() + "/system/ptk_11.mdb"; }
    void Run(const std::string& sql) const { ExecuteIn(Path(), sql); }

    Punches Read(std::int32_t employeeID = 40) const
    {
        const CJetDB::Hold hold(m_database);
        return PunchReader(*m_database, {ToDateTime("3/2/2026"), ToDateTime("3/8/2026")}, 0).Read(employeeID);
    }

    TemporaryFolder m_folder;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
};

TEST_F(PunchReaderTest, ReadsEveryRowThatTheCheckNeedsOnce)
{
    for (const char* change : {"UPDATE TimeRecord SET EmployeeID = EmployeeID", "DROP INDEX TimeRecordUnusual"}) {
        Run(change);
        const Punches punches = Read();
        for (std::size_t i = 0; i < std::size(kRows); ++i) {
            const auto isRow = [i](const Punch& punch) { return punch.id == static_cast<std::int64_t>(i + 1); };
            const auto found = std::find_if(punches.begin(), punches.end(), isRow);
            const std::string read = found == punches.end() ? "" : found->fetched ? "taken" : "near";
            // What the check does not need does no harm.
            EXPECT_TRUE(read == kRows[i].read || *kRows[i].read == '\0') << kRows[i].start << " to " << kRows[i].end << ": " << read;
            EXPECT_LE(std::count_if(punches.begin(), punches.end(), isRow), 1);
        }
        EXPECT_EQ(Read(41).size(), 1U);
        EXPECT_TRUE(Read(42).empty());
    }
}

TEST_F(PunchReaderTest, ShowsWhatStandsWhereATimeBelongs)
{
    Run("DELETE FROM TimeRecord");
    Run("INSERT INTO TimeRecord (TimeRecordID, EmployeeID, StartTime, EndTime) VALUES (1, 40, 46000.25, NULL), (2, 40, X'00', ''), "
        "(3, 40, '2026-03-04 08:00:00', char(27) || '[2J' || hex(zeroblob(40))), (4, 40, '1899-12-30 00:00:00', '2026-03-04 08:00:00')");
    std::string texts;
    for (const Punch& punch : Read()) {
        texts += UnreadableText(punch) + '\n';
    }
    EXPECT_EQ(texts, "Record 1 cannot be read: it has the start 46000.25 and no end.\n"
                     "Record 2 cannot be read: it has the start a value of bytes and the end \"\".\n"
                     "Record 4, which ends on 03/04/2026 08:00 AM, cannot be read: it has no start.\n"
                     "Record 3, which begins on 03/04/2026 08:00 AM, cannot be read: it has the end "
                     "\"?[2J000000000000000000000000000000000000...\".\n");
}

} // namespace

} // namespace ptk
