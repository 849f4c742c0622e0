#include "store/CJetDB.h"
#include "shell/CDatabaseLocator.h"
#include "shell/CFileAdaptor.h"
#include "store/engine/RecordSet.h"
#include "store/StoreFixture.h"
#include "support/Files.h"

#include <filesystem>

namespace ptk {

namespace {

class Employees : public EmployeeSink
{
public:
    bool InsertLoaded(EmployeeRow row, std::int32_t position) override
    {
        rows.push_back(std::move(row));
        EXPECT_EQ(position, static_cast<std::int32_t>(rows.size()));
        return false; // an employee's list is not asked
    }
    std::vector<EmployeeRow> rows;
};

class Companies : public CompanySink
{
public:
    bool InsertLoaded(CompanyRow row, std::int32_t /*position*/) override
    {
        rows.push_back(std::move(row));
        return rows.back().CompanyName != refused;
    }
    std::vector<CompanyRow> rows;
    std::string refused = "none";
};

class CJetDBTest : public StoreTest
{
protected:
    CJetDBTest() : m_database(m_folder.Path()) {}

    CJetDB m_database;
};

EmployeeRow Ann()
{
    EmployeeRow ann;
    ann.SSN = "900-12-0101";
    ann.EmployeeNumber = 40101;
    ann.FirstName = "Ann";
    ann.LastName = "O'Lee";
    ann.Address1 = "14 Mill Lane";
    ann.Address2 = "Apt. 3";
    ann.City = "Easton";
    ann.State = "PA";
    ann.ZipCode = "00501";
    ann.Phone = "555-0101";
    ann.Password = "pass";
    ann.PayRate = 12.3F;
    ann.OvertimePayRate = 18.45F;
    ann.DateOfBirth = DateTime(CalendarDate{1970, 5, 17});
    ann.HireDate = DateTime(CalendarDate{2001, 2, 3});
    ann.EmployeeActive = true;
    ann.CompanyID = 2;
    ann.AutoDeduct = true;
    ann.AutoDeductLunchLength = 30;
    ann.AutoDeductBreakLength = 15;
    return ann;
}

constexpr const char* kAnn = "40|900-12-0101|Ann|O'Lee|14 Mill Lane|Apt. 3|Easton|PA|00501|555-0101|40101|1970-05-17 00:00:00|"
                             "2001-02-03 00:00:00|1899-12-30 00:00:00|12.3|18.45|1|2|1|30|15|pass|";

CompanyRow Mill()
{
    CompanyRow mill;
    mill.CompanyName = "Mill";
    mill.Address1 = "1 River Road";
    mill.Address2 = "Yard";
    mill.City = "Easton";
    mill.State = "PA";
    mill.ZipCode = "18042";
    mill.Phone = "555-0100";
    mill.Fax = "555-0199";
    mill.FederalTaxID = "98-0000001";
    mill.URL = "www.mill.example";
    return mill;
}

} // namespace

TEST_F(CJetDBTest, OpensTheProgramsFileUnlessToldOtherwise)
{
    EXPECT_EQ(m_database.DatabaseName(), m_folder.Path() + "\\system\\ptk_11.mdb");
    EXPECT_FALSE(m_database.CloseDB());
    EXPECT_TRUE(m_database.OpenDB());
    EXPECT_TRUE(m_database.OpenDB()); // its own hold does not lock it out
    EXPECT_TRUE(m_database.CloseDB());
    EXPECT_TRUE(m_database.CloseDB()); // the handle is there, of no use
    EXPECT_FALSE(m_database.OpenDB(File("other.mdb")));
    EXPECT_EQ(m_database.ErrorNumber(), SQLITE_CANTOPEN);
    EXPECT_EQ(m_database.LastFailure().Description(), "the database file is missing or cannot be opened");
    EXPECT_EQ(m_database.DatabaseName(), m_folder.Path() + "\\system\\ptk_11.mdb");
    std::filesystem::copy_file(Path(), File("other.mdb"));
    EXPECT_TRUE(m_database.OpenDB(File("other.mdb")));
    EXPECT_EQ(m_database.DatabaseName(), File("other.mdb"));
    EXPECT_EQ(m_database.ErrorNumber(), SQLITE_CANTOPEN); // never reset
    EXPECT_EQ(m_database.LastFailure().Description(), "");
    m_database.DatabaseName("");
    EXPECT_FALSE(m_database.OpenDB());
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
}

TEST_F(CJetDBTest, OpensTheFileThatTheLocatorFound)
{
    EXPECT_FALSE(m_database.OpenPTKDatabase(nullptr));
    EXPECT_EQ(m_database.ErrorNumber(), 0);
    WriteBytes(m_folder.Path() + "/test.cfg", "DatabasePath=<app.path>\\system\\ptk_11.mdb\r\n");
    const auto configuration = std::make_shared<CFileAdaptor>(m_folder.Path());
    configuration->ReadFile(m_folder.Path() + "\\test.cfg");
    const auto locator = std::make_shared<CDatabaseLocator>(m_folder.Path());
    locator->ConfigFile(configuration);
    locator->GetDatabasePath();
    m_database.DatabaseName("");
    EXPECT_TRUE(m_database.OpenPTKDatabase(locator));
    EXPECT_TRUE(m_database.DatabaseOpen());
    EXPECT_EQ(m_database.DatabaseName(), m_folder.Path() + "\\system\\ptk_11.mdb");
}

TEST_F(CJetDBTest, ASelectNeitherOpensNorCloses)
{
    EXPECT_EQ(m_database.ExecuteSelect(""), nullptr);
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoSql);
    EXPECT_EQ(m_database.ExecuteSelect("SELECT * FROM _System;"), nullptr);
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
    EXPECT_EQ(m_database.RecordsetType(), 4);
    m_database.OpenDB();
    const auto rows = m_database.ExecuteSelect("SELECT * FROM _System;");
    ASSERT_NE(rows, nullptr);
    EXPECT_EQ(m_database.RecSet(), rows);
    for (const char* sql : {"", "SELECT * FROM Nowhere;", "SELECT #no date#;", "DELETE FROM Employee;"}) {
        EXPECT_EQ(m_database.ExecuteSelect(sql), nullptr) << sql;
        EXPECT_EQ(m_database.ErrorNumber(), jetdb::StatementFailed);
        EXPECT_EQ(m_database.SQL(), sql);
    }
    EXPECT_TRUE(m_database.DatabaseOpen());
    EXPECT_EQ(m_database.RecSet(), rows);
    m_database.CloseDB();
    EXPECT_EQ(rows->RecordCount(), 1); // a snapshot outlives the file
}

TEST_F(CJetDBTest, AnActionAlwaysClosesExceptAfterAFailure)
{
    const std::string insert =
        "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime )  SELECT 12, #3/5/2003 8:00:00 AM#, #12:00:00 AM#;";
    EXPECT_TRUE(m_database.ExecuteAction(insert));
    EXPECT_TRUE(m_database.ExecuteAction(insert));
    m_database.OpenDB();
    EXPECT_TRUE(m_database.ExecuteAction(insert));
    EXPECT_FALSE(m_database.DatabaseOpen());
    EXPECT_EQ(m_database.ExecuteSelect("SELECT * FROM TimeRecord;"), nullptr);
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
    EXPECT_FALSE(m_database.ExecuteAction("UPDATE Nowhere SET a = 1;"));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::StatementFailed);
    EXPECT_EQ(m_database.LastFailure().Description(), "no such table: Nowhere");
    EXPECT_TRUE(m_database.DatabaseOpen());
    Run("INSERT INTO Company (Name) VALUES ('Mill')"); // the open file is nobody's until the next action
    EXPECT_TRUE(m_database.ExecuteAction("DELETE TimeRecord.TimeRecordID FROM TimeRecord WHERE ((TimeRecord.TimeRecordID = 2)); "));
    EXPECT_EQ(Rows("SELECT * FROM TimeRecord"),
              "1|12|NULL|2003-03-05 08:00:00|1899-12-30 00:00:00|3|12|NULL|2003-03-05 08:00:00|1899-12-30 00:00:00|");
}

TEST_F(CJetDBTest, AnActionWithoutSqlOrFileSaysSo)
{
    EXPECT_FALSE(m_database.ExecuteAction(""));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoSql);
    EXPECT_FALSE(m_database.DatabaseOpen());
    m_database.SQL("DELETE FROM Employee;");
    EXPECT_FALSE(m_database.ExecuteAction("")); // runs the empty argument, not what is stored
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::StatementFailed);
    m_database.CloseDB();
    m_database.DatabaseName(File("missing.mdb"));
    EXPECT_FALSE(m_database.ExecuteAction("DELETE FROM Employee;"));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase); // and not the engine's number
    EXPECT_EQ(m_database.LastFailure().Number(), SQLITE_CANTOPEN);
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Employee"), "1|");
}

TEST_F(CJetDBTest, StoresAndChangesAnEmployee)
{
    EmployeeRow ann = Ann();
    EXPECT_TRUE(m_database.AddNewEmployee(ann));
    EXPECT_FALSE(m_database.DatabaseOpen());
    EXPECT_EQ(Rows("SELECT * FROM Employee WHERE EmployeeID = 40"), kAnn);
    EmployeeRow other;
    other.EmployeeID = 40;
    EXPECT_TRUE(m_database.UpdateEmployee(other));
    EXPECT_EQ(Rows("SELECT * FROM Employee WHERE EmployeeID = 40"),
              "40||||||||||0|1899-12-30 00:00:00|1899-12-30 00:00:00|1899-12-30 00:00:00|0|0|0|0|0|0|0||");
    ann.EmployeeID = 40;
    EXPECT_TRUE(m_database.UpdateEmployee(ann));
    EXPECT_EQ(Rows("SELECT * FROM Employee WHERE EmployeeID = 40"), kAnn);
    EXPECT_FALSE(m_database.DeleteEmployee(ann));
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Employee"), "2|");
    EXPECT_EQ(m_database.ErrorNumber(), 0);
}

TEST_F(CJetDBTest, StoresACompanysWebAddressButNeverReadsIt)
{
    CompanyRow mill = Mill();
    EXPECT_TRUE(m_database.AddNewCompany(mill));
    EXPECT_EQ(Rows("SELECT * FROM Company"), "1|Mill|1 River Road|Yard|Easton|PA|18042|555-0100|555-0199|98-0000001|www.mill.example|");
    mill.CompanyID = 1;
    mill.CompanyName = "The Mill";
    mill.URL = "www.themill.example";
    EXPECT_TRUE(m_database.UpdateCompany(mill));
    EXPECT_EQ(Rows("SELECT * FROM Company"),
              "1|The Mill|1 River Road|Yard|Easton|PA|18042|555-0100|555-0199|98-0000001|www.themill.example|");
    Companies loaded;
    EXPECT_TRUE(m_database.LoadCompanyList(loaded));
    ASSERT_EQ(loaded.rows.size(), 1U);
    EXPECT_EQ(loaded.rows[0].FederalTaxID, "98-0000001");
    EXPECT_EQ(loaded.rows[0].URL, "");
    EXPECT_FALSE(m_database.DeleteCompany(mill));
}

TEST_F(CJetDBTest, AFailedInsertOrUpdateLeavesTheFileOpenForTheNext)
{
    Run("CREATE TRIGGER rule1 BEFORE INSERT ON Employee WHEN NEW.LastName = '' BEGIN SELECT RAISE(ABORT, 'no name'); END");
    Run("CREATE TRIGGER rule2 BEFORE UPDATE ON Company BEGIN SELECT RAISE(ABORT, 'no change'); END");
    Run("DELETE FROM _StoredQuery WHERE name = 'UpdateEmployee'; UPDATE _StoredQuery SET sql = 'INSERT' WHERE name = 'AddNewCompany'");
    EXPECT_FALSE(m_database.AddNewEmployee(EmployeeRow()));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::InsertFailed);
    EXPECT_EQ(m_database.LastFailure().Description(), "no name");
    EXPECT_TRUE(m_database.DatabaseOpen());
    EXPECT_TRUE(m_database.AddNewEmployee(Ann()));
    EXPECT_FALSE(m_database.DatabaseOpen());
    EXPECT_FALSE(m_database.UpdateEmployee(Ann()));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::UpdateFailed);
    EXPECT_FALSE(m_database.AddNewCompany(Mill()));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::InsertFailed);
    EXPECT_TRUE(m_database.DatabaseOpen());
    m_database.CloseDB();
    Run("INSERT INTO Company (CompanyID) VALUES (-1)");
    EXPECT_FALSE(m_database.UpdateCompany(Mill()));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::UpdateFailed);
    m_database.CloseDB();
    m_database.DatabaseName(File("missing.mdb"));
    EXPECT_FALSE(m_database.AddNewEmployee(Ann()));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
}

TEST_F(CJetDBTest, LoadsEmployeesInTheOrderOfTheirNames)
{
    Run("INSERT INTO Employee (FirstName, LastName, Active, AutoDeduct) VALUES "
        "('b', 'smith', 1, 0), ('C', 'Smith', 1, 0), ('A', 'SMITH', 1, 0), (NULL, 'Smith', 1, 0), ('', 'Smith', 1, 0), ('Z', 'Adams', 0, "
        "0)");
    Employees loaded;
    EXPECT_TRUE(m_database.LoadEmployeeList(loaded));
    EXPECT_FALSE(m_database.DatabaseOpen());
    std::vector<std::int32_t> ids;
    for (const EmployeeRow& row : loaded.rows) {
        ids.push_back(row.EmployeeID);
    }
    EXPECT_EQ(ids, (std::vector<std::int32_t>{45, 39, 43, 44, 42, 40, 41}));
    EXPECT_EQ(loaded.rows[1].Password, "wharf271");
}

TEST_F(CJetDBTest, LoadsOnlyTheEmployeesOfOneDisplayName)
{
    Run("INSERT INTO Employee (FirstName, LastName, Active, AutoDeduct) VALUES "
        "('Z', 'b A', 1, 0), ('Z b', 'A', 0, 0), ('Z b', 'A', 1, 0), (NULL, 'Z b A', 1, 0), ('z b', 'A', 1, 0), ('', 'Cher', 1, 0), "
        "('\xC3\x89', 'de la Ros\xC3\xA9', 1, 0), "
        "('Bad', 'Row', NULL, 0)");
    struct Case
    {
        const char* name;
        std::vector<std::int32_t> ids;
    };
    for (const Case& c : {Case{"Z b A", {41, 42, 40, 43}},
                          {"Cher", {45}},
                          {"\xC3\x89 de la Ros\xC3\xA9", {46}},
                          {"\xC3\x89 de la rosa", {}},
                          {" Cher", {}},
                          {"nobody", {}},
                          {"Bad Row", {}}}) {
        Employees loaded;
        EXPECT_EQ(m_database.LoadEmployeesNamed(loaded, c.name), c.name != std::string("Bad Row")) << c.name;
        std::vector<std::int32_t> ids;
        for (const EmployeeRow& row : loaded.rows) {
            ids.push_back(row.EmployeeID);
        }
        EXPECT_EQ(ids, c.ids) << c.name;
    }
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::ListingFailed) << "a row that is asked for must be readable";
}

TEST_F(CJetDBTest, LoadsEveryColumnOfAnEmployee)
{
    m_database.AddNewEmployee(Ann());
    Employees loaded;
    EXPECT_TRUE(m_database.LoadEmployeeList(loaded));
    ASSERT_EQ(loaded.rows.size(), 2U);
    const EmployeeRow& row = loaded.rows[1];
    const EmployeeRow ann = Ann();
    const auto texts = [](const EmployeeRow& e) {
        return std::vector<std::string>{e.SSN,  e.FirstName, e.LastName, e.Address1, e.Address2,
                                        e.City, e.State,     e.ZipCode,  e.Phone,    e.Password};
    };
    EXPECT_EQ(texts(row), texts(ann));
    EXPECT_EQ(row.EmployeeNumber, 40101);
    EXPECT_EQ(row.DateOfBirth, ann.DateOfBirth);
    EXPECT_EQ(row.HireDate, ann.HireDate);
    EXPECT_TRUE(row.ReleaseDate.IsZero());
    EXPECT_EQ(row.PayRate, 12.3F);
    EXPECT_EQ(row.OvertimePayRate, 18.45F);
    EXPECT_TRUE(row.EmployeeActive && row.AutoDeduct);
    EXPECT_EQ(row.CompanyID, 2);
    EXPECT_EQ(row.AutoDeductLunchLength, 30);
    EXPECT_EQ(row.AutoDeductBreakLength, 15);
}

TEST_F(CJetDBTest, NullsAndZerosKeepAnEmployeesDefaults)
{
    Run("DELETE FROM Employee; INSERT INTO Employee (EmployeeID, Active, AutoDeduct) VALUES (-5, 2, 0)");
    Run("INSERT INTO Employee (LastName, Active, AutoDeduct, EmployeeNumber, PayRate, CompanyID, AutoDeductLunchLength) "
        "VALUES ('x', 0, 1, -7, -1, -1, -1)");
    Employees loaded;
    EXPECT_TRUE(m_database.LoadEmployeeList(loaded));
    ASSERT_EQ(loaded.rows.size(), 2U);
    EXPECT_EQ(loaded.rows[0].EmployeeID, -1);
    EXPECT_EQ(loaded.rows[0].LastName, "");
    EXPECT_TRUE(loaded.rows[0].EmployeeActive);
    EXPECT_TRUE(loaded.rows[0].HireDate.IsZero());
    EXPECT_EQ(loaded.rows[1].EmployeeNumber, -7);
    EXPECT_EQ(loaded.rows[1].PayRate, 0.0F);
    EXPECT_EQ(loaded.rows[1].CompanyID, 0);
    EXPECT_EQ(loaded.rows[1].AutoDeductLunchLength, 0);
}

TEST_F(CJetDBTest, AnEmployeeLoadFailsOnWhatHasNoMeaning)
{
    for (const char* change :
         {"UPDATE Employee SET Active = NULL", "UPDATE Employee SET Active = 1, AutoDeduct = NULL",
          "UPDATE Employee SET AutoDeduct = 0, HireDate = 'soon'", "UPDATE Employee SET HireDate = NULL, EmployeeNumber = 2147483648",
          "UPDATE Employee SET EmployeeNumber = 0, AutoDeductLunchLength = 32768",
          "PRAGMA legacy_alter_table = ON; ALTER TABLE Employee DROP COLUMN Password",
          "DELETE FROM _StoredQuery WHERE name = 'GetAllEmployees'", "DROP TABLE Employee"}) {
        Run(change);
        CJetDB database(m_folder.Path());
        Employees loaded;
        EXPECT_FALSE(database.LoadEmployeeList(loaded)) << change;
        EXPECT_EQ(database.ErrorNumber(), jetdb::ListingFailed) << change;
        EXPECT_NE(database.LastFailure().Description(), "") << change;
        EXPECT_TRUE(database.DatabaseOpen());
    }
}

TEST_F(CJetDBTest, AFailedLoadNamesTheValueAndLeavesTheFileToOthers)
{
    Run("INSERT INTO Employee (LastName, Active, AutoDeduct, AutoDeductLunchLength) VALUES ('Lee', 1, 0, 70000)");
    Employees loaded;
    EXPECT_FALSE(m_database.LoadEmployeeList(loaded));
    EXPECT_EQ(m_database.LastFailure().Number(), failure::Overflow);
    EXPECT_EQ(m_database.LastFailure().Description(), "Employee 40: AutoDeductLunchLength is 70000 (Overflow)");
    Run("UPDATE Employee SET AutoDeductLunchLength = 30"); // the open file is nobody's
    loaded.rows.clear();
    EXPECT_TRUE(m_database.LoadEmployeeList(loaded));
}

TEST_F(CJetDBTest, AHoldKeepsTheFileOverManyOperations)
{
    const auto database = std::make_shared<CJetDB>(m_folder.Path());
    {
        const CJetDB::Hold hold(database);
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(database->OpenDB());
            EXPECT_EQ(database->ExecuteSelect("SELECT * FROM Nowhere"), nullptr);
            EXPECT_TRUE(database->CloseDB());
            EXPECT_FALSE(database->DatabaseOpen());
            EXPECT_EQ(RawDatabase(Path()).TryRun("SELECT * FROM Company"), SQLITE_BUSY);
            const CJetDB::Hold nested(database);
        }
        EXPECT_EQ(RawDatabase(Path()).TryRun("SELECT * FROM Company"), SQLITE_BUSY);
        EXPECT_TRUE(database->ExecuteAction("DELETE FROM Company"));
    }
    Run("DELETE FROM Company");
    RawDatabase other(Path());
    other.Run("BEGIN EXCLUSIVE");
    const CJetDB::Hold refused(database);
    other.Run("ROLLBACK");
    EXPECT_FALSE(database->OpenDB()) << "of one moment, also where that found nothing";
    EXPECT_EQ(database->LastFailure().Description(), "the database is in use by another program");
}

TEST_F(CJetDBTest, LoadsCompaniesInTheOrderOfTheirNamesWithNullsAsDefaults)
{
    Run("INSERT INTO Company (Name) VALUES ('mill'), ('Inn'), (NULL), ('MILL')");
    Companies loaded;
    EXPECT_TRUE(m_database.LoadCompanyList(loaded));
    ASSERT_EQ(loaded.rows.size(), 4U);
    std::vector<std::int32_t> ids;
    for (const CompanyRow& row : loaded.rows) {
        ids.push_back(row.CompanyID);
    }
    EXPECT_EQ(ids, (std::vector<std::int32_t>{3, 2, 1, 4}));
    EXPECT_EQ(loaded.rows[0].CompanyName, "");
    EXPECT_EQ(m_database.ErrorNumber(), 0);
}

TEST_F(CJetDBTest, ALostCompanyLeavesItsNumberButNotTheLoad)
{
    Run("INSERT INTO Company (Name) VALUES ('Inn'), ('Mill')");
    Companies loaded;
    loaded.refused = "Inn";
    EXPECT_TRUE(m_database.LoadCompanyList(loaded));
    EXPECT_EQ(loaded.rows.size(), 2U);
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::WorkingReferenceLost);
}

TEST_F(CJetDBTest, AStaleNumberEndsACompanyLoadButNoEmployeeLoad)
{
    m_database.ExecuteSelect("SELECT 1;"); // the file is closed
    ASSERT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
    Companies companies;
    EXPECT_FALSE(m_database.LoadCompanyList(companies));
    EXPECT_TRUE(m_database.DatabaseOpen());
    Employees employees;
    EXPECT_TRUE(m_database.LoadEmployeeList(employees));
    EXPECT_EQ(m_database.ErrorNumber(), jetdb::NoDatabase);
    Run("INSERT INTO Company (Name) VALUES (X'FF00')");
    CJetDB broken(m_folder.Path());
    EXPECT_FALSE(broken.LoadCompanyList(companies)) << "a name that is none";
    EXPECT_EQ(broken.ErrorNumber(), jetdb::ListingFailed);
    Run("DROP TABLE Company");
    EXPECT_FALSE(CJetDB(m_folder.Path()).LoadCompanyList(companies));
}

} // namespace ptk
