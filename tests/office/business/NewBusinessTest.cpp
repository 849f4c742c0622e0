// The first start: what a new program folder holds, and that nothing is left of one that could not be made.
#include "office/business/NewBusiness.h"
#include "office/business/Guide.h"
#include "platform/Failure.h"
#include "store/RawDatabase.h"
#include "store/whole/DatabaseChecker.h"
#include "support/Failures.h"
#include "support/Files.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ptk {

namespace {

const DateTime kToday(CalendarDate{2026, 3, 20});
const NewBusiness kBusiness{"Acme & Sons", "Ann", "Lee", "secret", "secret"};

class NewBusinessTest : public testing::Test
{
protected:
    std::string File(const std::string& name) const { return m_target + name; }
    std::string Rows(const std::string& sql) const { return RawDatabase(File("/system/ptk_11.mdb")).Rows(sql); }

    TemporaryFolder m_folder;
    std::string m_target = m_folder.Path() + "/share/deep/ptk-admin";
};

TEST_F(NewBusinessTest, HoldsTheCompanyAndItsFirstEmployeeAndNoOpenShippedAccount)
{
    BeginBusiness(m_target, kBusiness);
    EXPECT_EQ(ReadBytes(File("/system/ptk_11.cfg")), "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n");
    EXPECT_EQ(Rows("SELECT Name FROM Company"), "Acme & Sons|");
    EXPECT_EQ(
        Rows("SELECT EmployeeNumber, FirstName, LastName, Password, Active, HireDate, CompanyID FROM Employee WHERE EmployeeID <> 39"),
        "1|Ann|Lee|secret|1|1899-12-30 00:00:00|1|");
    EXPECT_EQ(Rows("SELECT LastName, Password FROM Employee WHERE EmployeeID = 39; SELECT COUNT(*) FROM _Change"), "administrator||0|");
    EXPECT_TRUE(CheckDatabase(File("/system/ptk_11.mdb")).problems.empty());
    for (const char* part : {"", "/system", "/reports", "/documentation"}) {
        EXPECT_EQ(ModeOf(File(part)), 0700) << part;
    }
    EXPECT_EQ(ModeOf(File("/system/ptk_11.mdb")), 0600);
    EXPECT_EQ(FolderRefusal(m_target), "");
}

TEST_F(NewBusinessTest, TheSampleCanBeEnteredByTheShippedAccount)
{
    BeginSample(m_target, kToday);
    EXPECT_NE(ReadBytes(File("/system/ptk_11.cfg")).find("ShowLoginHelp=True"), std::string::npos);
    EXPECT_EQ(Rows("SELECT Password FROM Employee WHERE EmployeeID = 39; SELECT COUNT(*) FROM Employee"), "wharf271|13|");
}

TEST_F(NewBusinessTest, NothingIsLeftOfOneThatCannotBeMade)
{
    std::filesystem::create_directories(m_target);
    EXPECT_EQ(FailureOf([&] { BeginBusiness(m_target, kBusiness); }), failure::PathFileAccess) << "there is one";
    EXPECT_TRUE(std::filesystem::is_empty(m_target));
    EXPECT_EQ(FolderRefusal(m_target), "The folder " + m_target + " has no configuration (system/ptk_11.cfg).");
    std::filesystem::remove(m_target);
    {
        const FullDisk full(20000);
        EXPECT_NE(FailureOf([&] { BeginSample(m_target, kToday); }), 0);
    }
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.Path() + "/share/deep"));
    EXPECT_EQ(FolderRefusal(m_target), "There is no folder " + m_target + ".");
    BeginBusiness(m_target, kBusiness);
    const OrdinaryUser nobody(m_folder.Path());
    EXPECT_NE(FolderRefusal(m_target), "") << "another's";
}

TEST(GuideTest, IsRenewedUntilSomebodyChangesIt)
{
    const TemporaryFolder folder;
    const std::string installed = folder.Path() + "/installed";
    const std::string document = folder.Path() + kGuideDocument;
    const std::string page = folder.Path() + kGuidePage;
    std::filesystem::create_directories(installed);
    const auto ship = [&](const std::string& version) {
        WriteBytes(installed + "/PTKAdminUserGuide.doc", "document " + version);
        WriteBytes(installed + "/PTKAdminUserGuide.html", "page " + version);
        RenewGuide(folder.Path(), installed);
    };
    WriteBytes(document, "of an older version, or the owner's");
    RenewGuide(folder.Path(), installed);
    EXPECT_EQ(ReadBytes(page), "") << "no package";
    ship("1");
    ship("2");
    EXPECT_EQ(ReadBytes(document), "of an older version, or the owner's");
    EXPECT_EQ(ReadBytes(page), "page 2");
    WriteBytes(page, "page 2, with our telephone number");
    WriteBytes(document, "document 2");
    ship("2");
    ship("3");
    EXPECT_EQ(ReadBytes(page), "page 2, with our telephone number");
    EXPECT_EQ(ReadBytes(document), "document 3");
}

TEST_F(NewBusinessTest, SaysWhatIsMissing)
{
    struct Case
    {
        NewBusiness business;
        const char* refusal;
    };
    for (const Case& c : {Case{kBusiness, ""}, Case{{"Acme", "", "Lee", "x", "x"}, ""},
                          Case{{"", "Ann", "Lee", "x", "x"}, "Enter the name of the company."},
                          Case{{"Acme", "Ann", "", "x", "x"}, "Enter your own name; you log in with it."},
                          Case{{"Acme", "Ann", "Lee", "", ""}, "Enter a password; you log in with it."},
                          Case{{"Acme", "Ann", "Lee", "x", "X"}, "The two passwords are not the same."}}) {
        EXPECT_EQ(BusinessRefusal(c.business), c.refusal);
    }
}

} // namespace

} // namespace ptk
