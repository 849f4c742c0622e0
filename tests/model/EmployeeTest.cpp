#include "model/CCompany.h"
#include "model/CCompanyList.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/whole/DatabaseCreator.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace ptk;

namespace {

std::shared_ptr<CEmployee> Named(const char* first, const char* last, std::int32_t company = 0)
{
    EmployeeRow row;
    row.FirstName = first;
    row.LastName = last;
    row.CompanyID = company;
    return std::make_shared<CEmployee>(row);
}

EmployeeRow Ann()
{
    EmployeeRow row;
    row.EmployeeID = 7;
    row.SSN = "123-45-6789";
    row.EmployeeNumber = 12;
    row.FirstName = "Ann";
    row.LastName = "Lee";
    row.Address1 = "1 Main St";
    row.Address2 = "Apt 2";
    row.City = "Springfield";
    row.State = "IL";
    row.ZipCode = "62701";
    row.Phone = "555-0100";
    row.PayRate = 12.3F;
    row.OvertimePayRate = 18;
    row.DateOfBirth = DateTime({1980, 3, 5});
    row.HireDate = DateTime({2001, 12, 31}, {8, 0, 0});
    row.EmployeeActive = true;
    return row;
}

TEST(EmployeeTest, WritesTheWholeRecord)
{
    EXPECT_EQ(CEmployee(Ann()).ToString(), "Last Name:  Lee\t\t\tFirst Name:  Ann\r\n"
                                           "Social Security Number:   123-45-6789\r\n"
                                           "Address: \r\n\t1 Main St\r\n\tApt 2\r\n\tSpringfield, IL. 62701\r\n"
                                           "Phone Number: \t\t555-0100\r\n"
                                           "Date Of Birth: \t03/05/1980\r\n"
                                           "Employee Number: \t12\r\n"
                                           "Employee Active: \tThis employee is active.\r\n"
                                           "Hire Date: \t12/31/2001\r\n"
                                           "Release Date: \r\n"
                                           "Current Rate of Pay: \t$12.3/hour\r\n"
                                           "Overtime Rate of Pay: \t$18/hour\r\n");
    EmployeeRow bare;
    bare.LastName = "Cher";
    EXPECT_EQ(CEmployee(bare).ToString(),
              "Name: \tCher\r\nSocial Security Number:   \r\nAddress: \r\n\t\r\n\t, . \r\nPhone Number: \t\t\r\n"
              "Date Of Birth: \r\nEmployee Number: \t0\r\nEmployee Active: \tThis employee is NOT active.\r\n"
              "Hire Date: \r\nRelease Date: \r\nCurrent Rate of Pay: \t$0/hour\r\nOvertime Rate of Pay: \t$0/hour\r\n");
}

TEST(EmployeeTest, WritesTheHeadingsOfCardAndReview)
{
    EXPECT_EQ(CEmployee(Ann()).ToStringTimeCard(), "Name:  \t\t\t\tAnn Lee\r\nSocial Security Number: \t123-45-6789\r\n");
    EXPECT_EQ(Named("", "Cher")->ToStringTimeCard(), "Name: \t\t\t\tCher\r\nSocial Security Number: \t\r\n");
    EXPECT_EQ(CEmployee(Ann()).ToStringReview(),
              "Name:  Ann Lee\t\tSocial Security Number:  123-45-6789\r\nEmployee Number:  12\r\nAddress: \r\n"
              "\t1 Main St\r\n\tApt 2\r\n\tSpringfield, IL. 62701\r\nPhone Number: \t555-0100\r\nDate Of Birth: \t03/05/1980\r\n");
    EXPECT_EQ(Named("", "Cher")->ToStringReview(),
              "Name:  Cher\t\tSocial Security Number:  \r\nEmployee Number:  0\r\nAddress: \r\n\t\r\n\t, . \r\n"
              "Phone Number: \t\r\nDate Of Birth: \r\n");
}

TEST(CompanyTest, WritesTheWholeRecordAndIsFoundByItsOwnKeys)
{
    CompanyRow row;
    row.CompanyID = 4;
    row.CompanyName = "Mill & Sons";
    row.Address1 = "1 Mill Rd";
    row.Address2 = "Rear";
    row.City = "Salem";
    row.State = "OR";
    row.ZipCode = "97301";
    row.Phone = "555-0100";
    row.Fax = "555-0101";
    row.FederalTaxID = "12-3456789";
    row.URL = "mill.example";
    CCompanyList list;
    list.Insert(std::make_shared<CCompany>(CompanyRow{}), 1);
    list.Insert(std::make_shared<CCompany>(row), 2);
    EXPECT_EQ(list.GetCompanyByID(4), list.Item(2));
    EXPECT_EQ(list.GetCompanyByName("Mill & Sons"), list.Item(2));
    EXPECT_EQ(list.GetCompanyByID(5), nullptr);
    EXPECT_EQ(list.Item(2)->ToString(),
              "Company Name: \tMill & Sons\r\nAddress: \r\n\t1 Mill Rd\r\n\tRear\r\n\tSalem, OR. 97301\r\nPhone Number: \t\t555-0100\r\n"
              "Fax Number: \t\t555-0101\r\nTax ID Number:   12-3456789\r\nWebsite URL: \tmill.example\r\n");
}

TEST(EmployeeTest, KnowsWhatHasToBeSaved)
{
    CEmployee fresh;
    fresh.FirstName("Ann");
    EXPECT_EQ(fresh.ObjectState(), state::New);
    fresh.EmployeeID(-1);
    EXPECT_EQ(fresh.ObjectState(), state::New);
    fresh.EmployeeID(5);
    EXPECT_EQ(fresh.ObjectState(), state::Changed) << "a key marks even a new object as changed";
    CEmployee loaded(Ann());
    EXPECT_EQ(loaded.ObjectState(), state::Unchanged);
    loaded.Phone("555-0101");
    EXPECT_EQ(loaded.ObjectState(), state::Changed);
}

TEST(EmployeeTest, OffersWhoeverWorksAndIsNoAdministrator)
{
    struct Case
    {
        const char* first;
        const char* last;
        bool active;
        bool offered;
    };
    for (const Case& c :
         {Case{"Ann", "Lee", true, true}, Case{"Ann", "Lee", false, false}, Case{"", "administrator", true, false},
          Case{"", "AdminiStrator", true, false}, Case{"x", "the Administrators", true, false}, Case{"admin", "istrator", true, true}}) {
        const auto employee = Named(c.first, c.last);
        employee->EmployeeActive(c.active);
        EXPECT_EQ(employee->OfferedOnTimeCards(), c.offered) << employee->DisplayName();
    }
}

class StoredListTest : public testing::Test
{
protected:
    void SetUp() override { CreateDatabase(folder.Path() + "/system/ptk_11.mdb"); }

    TemporaryFolder folder;
    std::shared_ptr<CJetDB> database = std::make_shared<CJetDB>(folder.Path());
};

TEST_F(StoredListTest, SavesEachEmployeeByItsStateAndLoadsThemInOrder)
{
    CEmployeeList list;
    EXPECT_FALSE(list.LoadList(nullptr));
    EXPECT_EQ(list.ErrorNumber(), 0);
    ASSERT_TRUE(list.LoadList(database));
    ASSERT_EQ(list.Count(), 1) << "the administrator";
    EXPECT_EQ(list.Item(1)->EmployeeID(), 39);
    EXPECT_EQ(list.Item(1)->Password(), "wharf271");
    for (const char* last : {"lee", "Adams", "Lee"}) {
        const auto employee = std::make_shared<CEmployee>();
        employee->LastName(last);
        employee->FirstName("Zoe");
        employee->PayRate(12.3F);
        list.Insert(employee, 99);
    }
    ASSERT_TRUE(list.SaveList());
    EXPECT_EQ(list.Item(4)->ObjectState(), state::Unchanged);
    CEmployeeList again;
    ASSERT_TRUE(again.LoadList(database));
    ASSERT_EQ(again.Count(), 4);
    EXPECT_EQ(again.Item(1)->LastName() + again.Item(2)->LastName() + again.Item(3)->LastName() + again.Item(4)->LastName(),
              "AdamsadministratorleeLee");
    EXPECT_EQ(again.Item(1)->PayRate(), 12.3F);
    again.Item(1)->Phone("555-0199");
    again.Item(2)->ObjectState(state::Deleted);
    again.Item(3)->Phone("555-0133");
    EXPECT_FALSE(again.SaveList()) << "employees are never deleted";
    EXPECT_EQ(again.Item(2)->ObjectState(), state::Unchanged);
    CEmployeeList third;
    ASSERT_TRUE(third.LoadList(database));
    EXPECT_EQ(third.Count(), 4);
    EXPECT_EQ(third.Item(1)->Phone(), "555-0199");
    EXPECT_EQ(third.Item(3)->Phone(), "555-0133") << "one refused does not keep back those after it";
    third.Item(1)->ObjectState(state::NothingToDo);
    third.Item(2)->ObjectState(state::Unchanged);
    EXPECT_TRUE(third.SaveList());
    EXPECT_EQ(third.Item(1)->ObjectState(), state::NothingToDo) << "not touched";
}

TEST_F(StoredListTest, RefusesToSaveWhatIsUnchangedEachWithItsOwnNumber)
{
    CEmployee employee(Ann());
    EXPECT_FALSE(employee.Save(database));
    EXPECT_EQ(employee.ErrorNumber(), 803);
    CCompany company(CompanyRow{});
    EXPECT_FALSE(company.Save(database));
    EXPECT_EQ(company.ErrorNumber(), 321);
    employee.ObjectState(state::NothingToDo);
    EXPECT_FALSE(employee.Save(database));
    EXPECT_EQ(employee.ErrorNumber(), 803);
    employee.ObjectState(state::Deleted);
    EXPECT_FALSE(employee.Save(database));
    EXPECT_EQ(employee.ErrorNumber(), 0) << "refused by the database, which is another matter";
    EXPECT_EQ(employee.ObjectState(), state::Unchanged);
}

TEST_F(StoredListTest, LosesACompanysWebAddressOnLoading)
{
    CCompanyList list;
    const auto company = std::make_shared<CCompany>();
    company->CompanyName("Acme");
    company->URL("https://acme.example");
    list.PTKDatabase(database);
    list.Insert(company, 1);
    ASSERT_TRUE(list.SaveList());
    CCompanyList loaded;
    ASSERT_TRUE(loaded.LoadList(database));
    ASSERT_NE(loaded.GetCompanyByName("Acme"), nullptr);
    EXPECT_EQ(loaded.GetCompanyByName("acme"), nullptr);
    EXPECT_EQ(loaded.GetCompanyByID(1)->URL(), "");
    ASSERT_TRUE(database->OpenDB());
    const auto rows = database->ExecuteSelect("SELECT URL FROM Company;");
    ASSERT_NE(rows, nullptr);
    rows->MoveFirst();
    EXPECT_EQ(rows->Field("URL").ToText(), "https://acme.example") << "stored, but never read back";
}

TEST_F(StoredListTest, AFailedLoadIsTold)
{
    ASSERT_TRUE(database->ExecuteAction("UPDATE Employee SET Active = NULL;"));
    CEmployeeList list;
    EXPECT_FALSE(list.LoadList(database));
    EXPECT_EQ(list.ErrorNumber(), 301);
}

TEST(EmployeeListTest, FindsTheFirstExactMatch)
{
    CEmployeeList list;
    const auto ann = Named("Ann", "Lee");
    for (const auto& employee : {ann, Named("Ann", "Lee"), Named("", "Cher"), Named("", "Ann Lee")}) {
        list.Insert(employee, list.Count() + 1);
    }
    EXPECT_EQ(list.GetEmployeeByName("Ann Lee"), ann);
    EXPECT_EQ(list.GetEmployeeByName("Cher"), list.Item(3));
    for (const char* name : {"ann Lee", "Ann  Lee", "Ann Lee ", "Ann", "Lee", "", " Cher"}) {
        EXPECT_EQ(list.GetEmployeeByName(name), nullptr) << name;
    }
    const auto cher = list.Item(3);
    cher->SSN("9");
    cher->EmployeeNumber(5);
    cher->EmployeeID(77);
    EXPECT_EQ(list.GetEmployeeBySSN("9"), cher);
    EXPECT_EQ(list.GetEmployeeByNumber(5), cher);
    EXPECT_EQ(list.GetEmployeeByNumber(0), ann);
    EXPECT_EQ(list.GetEmployeeByID(77), cher);
    EXPECT_EQ(list.GetEmployeeByID(78), nullptr);
}

TEST(EmployeeListTest, WeedsAndClonesAndMoves)
{
    CEmployeeList list;
    EXPECT_TRUE(list.WeedList(3));
    EXPECT_EQ(list.ErrorNumber(), 331);
    for (const std::int32_t company : {3, 4, 3}) {
        list.Insert(Named("", "x", company), list.Count() + 1);
    }
    const auto third = list.Item(3);
    EXPECT_EQ(list.Move(3, 1), third);
    EXPECT_EQ(list.Item(1), third);
    EXPECT_TRUE(list.WeedList(0));
    EXPECT_EQ(list.Count(), 3);
    const auto copy = list.Clone();
    ASSERT_NE(copy, nullptr);
    EXPECT_TRUE(list.WeedList(3));
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(copy->Count(), 3);
    EXPECT_EQ(copy->Item(1), third) << "shared, not copied";
    EXPECT_TRUE(list.WeedList(99));
    EXPECT_EQ(list.Count(), 0);
}

} // namespace
