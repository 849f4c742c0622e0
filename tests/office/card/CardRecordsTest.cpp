#include "office/card/CardRecords.h"

#include "model/CEmployee.h"
#include "model/check/Punch.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/RawDatabase.h"
#include "store/RowConflict.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

// Ann's (40) card of 2 to 4 March 2026, with a shift on each of the first two days.
class CardRecordsTest : public testing::Test
{
protected:
    CardRecordsTest()
    {
        CreateDatabase(Path());
        m_database->DatabaseName(Path());
        m_factory->PTKDatabase(m_database);
        m_card.PTKDatabase(m_database);
        for (const char* day : {"2026-03-02", "2026-03-03"}) {
            Run(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '{0} 08:00:00', '{0} 17:00:00')", day));
        }
        EmployeeRow ann;
        ann.EmployeeID = 40;
        EXPECT_TRUE(m_card.GenerateTimecard(std::make_shared<CEmployee>(ann), ToDateTime("3/2/2026"), ToDateTime("3/5/2026")));
    }

    [[nodiscard]] std::string Path() const { return m_folder.Path() + "/system/ptk_11.mdb"; }
    [[nodiscard]] CTimeRecordList& Records() const { return *m_card.TimeRecordList(); }
    void Run(const std::string& sql) const { RawDatabase(Path()).Run(sql); }

    static std::shared_ptr<CTimeRecord> Shift(const char* start, const char* end)
    {
        auto record = std::make_shared<CTimeRecord>();
        record->StartTime(ToDateTime(start));
        record->EndTime(ToDateTime(end));
        return record;
    }

    // "employee day/hour|" of all that is stored.
    [[nodiscard]] std::string Stored() const
    {
        return RawDatabase(Path()).Rows("SELECT EmployeeID || STRFTIME(' %d/%H', StartTime) FROM TimeRecord");
    }

    TemporaryFolder m_folder;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_folder.Path());
    std::shared_ptr<CTimeRecordFactory> m_factory = std::make_shared<CTimeRecordFactory>();
    CTimeCard m_card{m_factory};
};

constexpr const char* kRefuse = "CREATE TRIGGER no BEFORE {} ON TimeRecord BEGIN SELECT RAISE(ABORT, 'no'); END";

TEST_F(CardRecordsTest, ARecordIsStoredAsTheCardsEmployees)
{
    EXPECT_TRUE(StoreRecord(m_card, *m_factory, Shift("3/4/2026 9:00", "3/4/2026 10:00")));
    EXPECT_EQ(Stored(), "40 02/08|40 03/08|40 04/09|");
    Run(fmt::format(kRefuse, "INSERT"));
    EXPECT_FALSE(StoreRecord(m_card, *m_factory, Shift("3/4/2026 11:00", "3/4/2026 12:00")));
}

TEST_F(CardRecordsTest, ADeletionThatIsRefusedLeavesTheRecordAsItWas)
{
    EXPECT_TRUE(StoreDeletion(m_card, *m_factory, Records().Item(1)));
    EXPECT_EQ(Stored(), "40 03/08|");
    Run(fmt::format(kRefuse, "DELETE"));
    const auto second = Records().Item(Records().Count());
    EXPECT_FALSE(StoreDeletion(m_card, *m_factory, second));
    EXPECT_EQ(second->ObjectState(), state::Unchanged);
    Run("DROP TRIGGER no");
    EXPECT_TRUE(StoreCard(m_card, *m_factory)) << "the earlier refusal is not this one's";
    EXPECT_EQ(Stored(), "40 03/08|") << "it does not go with the next save";
}

TEST_F(CardRecordsTest, ACardIsStoredWholeOrNotAtAll)
{
    const auto add = [&](const char* start, const char* end) {
        const auto record = Shift(start, end);
        record->EmployeeID(40);
        Records().AddNew(record);
    };
    Run("CREATE TRIGGER no BEFORE INSERT ON TimeRecord WHEN NEW.EndTime LIKE '% 14:%' BEGIN SELECT RAISE(ABORT, 'no'); END");
    add("3/4/2026 11:00", "3/4/2026 12:00");
    add("3/4/2026 13:00", "3/4/2026 14:00");
    EXPECT_FALSE(StoreCard(m_card, *m_factory));
    EXPECT_EQ(Stored(), "40 02/08|40 03/08|");
    EXPECT_EQ(Records().Count(), 2) << "what was new has left the list";
    add("3/4/2026 9:00", "3/4/2026 10:00");
    EXPECT_TRUE(StoreCard(m_card, *m_factory));
    EXPECT_EQ(Stored(), "40 02/08|40 03/08|40 04/09|");
}

Punch PunchOf(std::int64_t id, const char* start, const char* end)
{
    Punch punch;
    punch.id = id;
    punch.start = ToDateTime(start);
    punch.end = ToDateTime(end);
    return punch;
}

TEST(RecordToEditTest, IsMadeOfWhatCanBeRead)
{
    Punch punch = PunchOf(12, "3/2/2026 8:00", "3/2/2026 17:00");
    punch.end.reset();
    const auto record = RecordToEdit(punch, 40);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->TimeRecordID(), 12);
    EXPECT_EQ(record->EmployeeID(), 40);
    EXPECT_EQ(record->StartTime(), ToDateTime("3/2/2026 8:00"));
    EXPECT_TRUE(record->EndTime().IsZero());
    EXPECT_EQ(record->ObjectState(), state::Unchanged) << "Cancel stores nothing";
    punch.id = 2147483648;
    EXPECT_EQ(RecordToEdit(punch, 40), nullptr);
}

// What is offered is what is stored now: a record that became another employee's is not, one that is gone becomes a new one.
TEST(RecordToTryAgainTest, IsTheStoredOneAfterAConflict)
{
    const auto refused = RecordToEdit(PunchOf(12, "3/2/2026 8:00", "3/2/2026 17:00"), 40);
    const auto offered = [&](std::vector<FieldDifference> differences) {
        return RecordToTryAgain(*refused, {"TimeRecord", 12, std::move(differences)});
    };
    const auto later = offered({{"StartTime", "", "03/02/2026 09:00:00 AM"}, {"EndTime", "", "03/02/2026 06:00:00 PM"}});
    ASSERT_NE(later, nullptr);
    EXPECT_EQ(later->TimeRecordID(), 12);
    EXPECT_EQ(later->StartTime(), ToDateTime("3/2/2026 9:00"));
    EXPECT_EQ(later->EndTime(), ToDateTime("3/2/2026 18:00"));
    EXPECT_EQ(later->ObjectState(), state::Unchanged);
    EXPECT_EQ(offered({{"EndTime", "", "03/02/2026 06:00:00 PM"}, {"EmployeeID", "40", "41"}}), nullptr);
    EXPECT_EQ(offered({})->ObjectState(), state::New);
}

} // namespace

} // namespace ptk
