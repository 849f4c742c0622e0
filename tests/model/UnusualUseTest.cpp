// What lists, records, cards and their factory answer where something is missing: nobody is asked for, there is no database, no list.
#include "model/CCompanyList.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecord.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Execute.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(UnusualUseTest, AFactoryWithoutADatabaseOrAList)
{
    CTimeRecordFactory factory;
    factory.PTKDatabase(nullptr);
    EXPECT_FALSE(factory.DestroyList());
    EXPECT_EQ(factory.ErrorNumber(), recordfactory::DestroyFailed);
    EXPECT_FALSE(factory.SortTimeRecordList());
    EXPECT_EQ(factory.ErrorNumber(), recordfactory::SortFailed);
    EXPECT_FALSE(factory.SaveList());
    EXPECT_EQ(factory.ErrorNumber(), recordfactory::SaveListFailed);
    factory.ResetError();
    EXPECT_TRUE(factory.Save(std::make_shared<CTimeRecord>()) && factory.Save(nullptr)) << "nothing is stored, and nothing is wrong";
    EXPECT_EQ(factory.ErrorNumber(), 0);
    EXPECT_FALSE(factory.BuildList(40, ToDateTime("3/1/2026"), ToDateTime("3/14/2026")));
    EXPECT_EQ(factory.ErrorNumber(), recordfactory::CreateFailed);
    EXPECT_TRUE(factory.DestroyList());
}

TEST(UnusualUseTest, AListOfRecordsWithAnEmptyEntry)
{
    CTimeRecordList list;
    EXPECT_FALSE(list.AddNew(nullptr));
    EXPECT_EQ(list.ErrorNumber(), listerror::InsertFailed);
    EXPECT_TRUE(list.AddNew(std::make_shared<CTimeRecord>()) && list.Insert(nullptr, 2));
    EXPECT_EQ(list.RecordAt(1).ObjectState(), state::New);
    EXPECT_THROW(static_cast<void>(list.RecordAt(2)), Failure);
    EXPECT_THROW(static_cast<void>(list.RecordAt(3)), Failure);
    EXPECT_FALSE(list.Move(2, 1)) << "there is nothing to move";
    EXPECT_EQ(list.Count(), 2);
}

TEST(UnusualUseTest, ARecordWithHalfItsTimes)
{
    CTimeRecord record;
    record.TimeRecordFactory(nullptr);
    record.TimeRecordFactory(std::make_shared<CTimeRecordFactory>());
    record.EndTime(ToDateTime("3/5/2026 17:00"));
    EXPECT_EQ(record.HoursWorked(), 0) << "no start yet";
    record.StartTime(ToDateTime("3/5/2026 8:00"));
    EXPECT_EQ(record.HoursWorked(), 9);
    record.FormatString("yyyy");
    EXPECT_EQ(record.ToStringReport(), "2026\t2026");
    record.EnforceFormat(false);
    EXPECT_EQ(record.ToStringReport(), "3/5/2026 8:00:00 AM\t3/5/2026 5:00:00 PM");
}

TEST(UnusualUseTest, ACardOfNobodyOrWithoutADatabase)
{
    const auto factory = std::make_shared<CTimeRecordFactory>();
    CTimeCard card(factory);
    const auto ann = std::make_shared<CEmployee>();
    const DateTime from = ToDateTime("3/1/2026");
    const DateTime to = ToDateTime("3/15/2026");
    EXPECT_FALSE(card.GenerateTimecard(nullptr, from, to));
    EXPECT_EQ(card.ErrorNumber(), timecard::NoEmployee);
    EXPECT_FALSE(card.GenerateTimecard(ann, from, to));
    EXPECT_EQ(card.ErrorNumber(), timecard::NoDatabase);
    EXPECT_FALSE(card.CloseTimeRecord(nullptr, from, to));
    EXPECT_EQ(card.ErrorNumber(), timecard::FetchFailed);
    CTimeCard unread(std::make_shared<CTimeRecordFactory>());
    EXPECT_FALSE(unread.Save()) << "there is no list to save";
    EXPECT_EQ(unread.ErrorNumber(), recordfactory::SaveListFailed);
}

TEST(UnusualUseTest, ListsOfPeopleWithAnEmptyEntryOrWithoutADatabase)
{
    CEmployeeList list;
    EXPECT_FALSE(list.LoadNamed(nullptr, "Ann Lee"));
    EXPECT_EQ(list.ErrorNumber(), listerror::CreateFailed);
    EXPECT_FALSE(list.LoadList(nullptr));
    const auto ann = std::make_shared<CEmployee>();
    ann->FirstName("Ann");
    ann->LastName("Lee");
    list.Insert(ann, 1);
    list.Insert(nullptr, 2);
    EXPECT_EQ(list.GetEmployeeByName("Ann Lee"), ann);
    EXPECT_EQ(list.GetEmployeeByName("Ann_Lee"), nullptr) << "as long, but no name of hers";
    EXPECT_EQ(list.GetEmployeeByID(7), nullptr);
    ann->ObjectState(state::New);
    EXPECT_FALSE(list.SaveList()) << "nowhere";
    EXPECT_EQ(list.LastFailure().Number(), 0);
    ann->ObjectState(state::NothingToDo);
    EXPECT_TRUE(list.SaveList());
    EXPECT_FALSE(ann->Save(nullptr));
    EXPECT_EQ(ann->ErrorNumber(), employee::SaveFailed) << "there is nothing to save in this state";
    EXPECT_TRUE(list.WeedList(5));
    EXPECT_EQ(list.Count(), 0);
}

TEST(UnusualUseTest, AChangedEmployeeThatWasNeverReadOrHasANumberThatNobodyHas)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/ptk.mdb";
    CreateDatabase(path);
    ExecuteIn(path,
              "INSERT INTO Employee (EmployeeID, LastName, Phone, Active, AutoDeduct, PayRate) VALUES (40, 'Lee', '1', '1', '0', 10)");
    const auto database = std::make_shared<CJetDB>(folder.Path());
    database->DatabaseName(path);
    CEmployee unread;
    unread.EmployeeID(40);
    unread.LastName("Day");
    unread.ObjectState(state::Changed);
    EXPECT_TRUE(unread.Save(database)) << "there is nothing that it could be compared with";
    CEmployeeList list;
    ASSERT_TRUE(list.LoadNamed(database, "Day"));
    const auto read = list.GetEmployeeByID(40);
    read->EmployeeID(41);
    EXPECT_FALSE(read->Save(database));
    EXPECT_EQ(database->LastFailure().Description(), "Employee 41 was removed since it was read");
    ASSERT_TRUE(list.Destroy() && list.Create() && list.LoadList(database));
    EXPECT_EQ(list.GetEmployeeByID(40)->LastName(), "Day");
}

TEST(UnusualUseTest, ARecordThatIsAsItWasOrHasAnotherNumber)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/ptk.mdb";
    CreateDatabase(path);
    ExecuteIn(path, "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)");
    const auto database = std::make_shared<CJetDB>(folder.Path());
    database->DatabaseName(path);
    CTimeRecordFactory factory;
    factory.PTKDatabase(database);
    ASSERT_TRUE(factory.BuildList(40, ToDateTime("3/1/2003"), ToDateTime("4/1/2003")));
    const auto record = factory.TimeRecordList()->Item(1);
    EXPECT_TRUE(factory.Save(nullptr) && factory.ErrorNumber() == 0);
    EXPECT_TRUE(factory.Save(record) && factory.ErrorNumber() != 0) << "as it was read: there is no statement for it";
    record->ObjectState(state::NothingToDo);
    EXPECT_TRUE(factory.SaveList() && factory.ErrorNumber() == 0);
    record->EndTime(ToDateTime("3/5/2003 6:00 PM"));
    record->TimeRecordID(99);
    EXPECT_TRUE(factory.SaveList() && factory.ErrorNumber() == 0) << "nobody read record 99, and there is none";
    ASSERT_TRUE(factory.BuildList(40, ToDateTime("3/1/2003"), ToDateTime("4/1/2003")));
    EXPECT_EQ(factory.TimeRecordList()->Item(1)->EndTime(), ToDateTime("3/5/2003 5:00 PM"));
}

} // namespace

} // namespace ptk
