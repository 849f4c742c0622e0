// Saves and deletions of what somebody else changed or removed after it was read.
#include "model/CCompanyList.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "model/ModelErrors.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "store/engine/RecordSet.h"
#include "store/StoreErrors.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

class ConflictTest : public testing::Test
{
protected:
    ConflictTest()
    {
        Elsewhere("INSERT INTO Employee (EmployeeID, FirstName, LastName, PayRate, Active, AutoDeduct, Password) VALUES (40, 'Bo', 'Kim', "
                  "10, '1', "
                  "'0', 'old')");
        Elsewhere("INSERT INTO Company (CompanyID, Name, URL) VALUES (1, 'Ltd', 'http://ltd')");
        Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)");
        m_database->DatabaseName(m_kept.Name());
    }

    void Elsewhere(const std::string& sql) const { Execute(*m_kept.Open(), sql); }
    std::string Value(const std::string& sql) const { return m_kept.Open()->Select(sql)->TextToShow(0); }

    EitherDatabase m_kept;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_kept.Folder());
};

TEST_F(ConflictTest, AnEmployeeOrCompanyIsNotOverwritten)
{
    CEmployeeList employees;
    CCompanyList companies;
    ASSERT_TRUE(employees.LoadList(m_database) && companies.LoadList(m_database));
    const auto kim = employees.GetEmployeeByID(40);
    kim->Phone("555-0100");
    ASSERT_TRUE(employees.SaveList());
    kim->Phone("555-0101");
    ASSERT_TRUE(employees.SaveList()) << "one's own save is no conflict";
    Elsewhere("UPDATE Employee SET PayRate = 12.5, Password = 'new' WHERE EmployeeID = 40");
    kim->Phone("555-0102");
    EXPECT_FALSE(employees.SaveList());
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::UpdateFailed);
    EXPECT_EQ(employees.LastFailure().Number(), jetdb::RowChanged);
    EXPECT_EQ(employees.LastFailure().Description(),
              "Employee 40 was changed since it was read: PayRate was 10 and is 12.5 now, Password is another one now");
    const RowConflict conflict = employees.Conflict().value();
    EXPECT_EQ(conflict.table + std::to_string(conflict.key), "Employee40");
    EXPECT_EQ(conflict.differences, (std::vector<FieldDifference>{{"PayRate", "10", "12.5"}, {"Password", "", "changed"}}));
    EXPECT_EQ(Value("SELECT Phone || PayRate || Password FROM Employee WHERE EmployeeID = 40"), "\"555-010112.5new\"");
    ASSERT_TRUE(employees.SaveList()) << "a refused row is not tried again";

    const auto company = companies.GetCompanyByID(1);
    Elsewhere("UPDATE Company SET URL = 'unread'");
    company->Fax("5");
    ASSERT_TRUE(companies.SaveList()) << "the web address is never read";
    Elsewhere("DELETE FROM Company");
    company->Fax("6");
    EXPECT_FALSE(companies.SaveList());
    EXPECT_TRUE(companies.Conflict().value().Removed());
    EXPECT_EQ(companies.LastFailure().Description(), "Company 1 was removed since it was read");
    EXPECT_EQ(Value("SELECT COUNT(*) FROM Company"), "0");
}

TEST_F(ConflictTest, ATimeRecordIsNeitherOverwrittenNorDeleted)
{
    CTimeRecordFactory factory;
    factory.PTKDatabase(m_database);
    const auto read = [&] {
        EXPECT_TRUE(factory.BuildList(40, ToDateTime("3/1/2003"), ToDateTime("3/31/2003")));
        return factory.TimeRecordList()->Item(1);
    };
    struct Case
    {
        const char* name;
        const char* elsewhere;
        std::int32_t state;
        const char* reason; // empty: it is stored
    };
    for (const Case& c : {
             Case{"untouched", "UPDATE TimeRecord SET ShiftDate = NULL", state::Changed, ""},
             Case{"changed", "UPDATE TimeRecord SET EndTime = #3/5/2003 7:00 PM#", state::Changed,
                  "TimeRecord 1 was changed since it was read: EndTime was 03/05/2003 06:00:00 PM and is 03/05/2003 07:00:00 PM now"},
             Case{"changed, to be deleted", "UPDATE TimeRecord SET EndTime = #3/5/2003 8:00 PM#", state::Deleted,
                  "TimeRecord 1 was changed since it was read: EndTime was 03/05/2003 07:00:00 PM and is 03/05/2003 08:00:00 PM now"},
             Case{"removed", "DELETE FROM TimeRecord", state::Changed, "TimeRecord 1 was removed since it was read"},
         }) {
        const auto record = read();
        Elsewhere(c.elsewhere);
        record->EndTime(ToDateTime("3/5/2003 6:00 PM"));
        record->ObjectState(c.state);
        factory.ResetError();
        EXPECT_TRUE(factory.SaveList()) << c.name;
        EXPECT_EQ(factory.LastFailure().Description(), c.reason) << c.name;
        EXPECT_EQ(factory.ErrorNumber(), *c.reason == '\0' ? 0 : recordfactory::SaveFailed) << c.name;
        EXPECT_EQ(factory.Conflict().has_value(), *c.reason != '\0') << c.name;
    }
    const auto unread = std::make_shared<CTimeRecord>();
    unread->TimeRecordID(99);
    EXPECT_TRUE(factory.Save(unread)) << "nobody read a row of it";
    EXPECT_EQ(factory.LastFailure().Number(), 0);
    EXPECT_FALSE(factory.Conflict().has_value());
}

TEST_F(ConflictTest, OptionsThatOnlySomebodyElseChangedStayTheirs)
{
    CSystemOptions options;
    options.PTKDatabase(m_database);
    ASSERT_TRUE(m_database->OpenDB() && options.Load() && m_database->CloseDB());
    const auto period = [&] { return Value("SELECT period_length FROM _System"); };
    EXPECT_TRUE(options.Update());
    EXPECT_EQ(Value("SELECT COUNT(*) FROM _Change WHERE TableName = '_System'"), "0");
    Elsewhere("UPDATE _System SET period_length = 7");
    EXPECT_TRUE(options.Update());
    EXPECT_EQ(period(), "7");
    options.PeriodLength(10);
    EXPECT_FALSE(options.Update());
    EXPECT_EQ(m_database->ErrorNumber(), jetdb::StatementFailed);
    EXPECT_EQ(m_database->LastFailure().Description(), "_System was changed since it was read: period_length was 14 and is 7 now");
    EXPECT_EQ(period(), "7");
    ASSERT_TRUE(m_database->OpenDB() && options.Load() && m_database->CloseDB());
    options.PeriodLength(10);
    EXPECT_TRUE(options.Update());
    EXPECT_EQ(period(), "10");
}

} // namespace

} // namespace ptk
