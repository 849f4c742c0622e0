// Files of employees: who is added, who is changed in which fields, what is refused and why; on a file and, in the server's tests, on a
// server.
#include "office/sheet/EmployeeImport.h"
#include "model/CEmployeeList.h"
#include "platform/Failure.h"
#include "reports/EmployeeRecords.h"
#include "reports/forms/ReportForms.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredDate.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"
#include "support/Failures.h"
#include "support/Files.h"

#include <algorithm>
#include <fmt/format.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

constexpr auto kOthers = "Bo Kim 1  0 true - | Cy Day 2  0 false - | Di Orr 3 55 7.8333335 false -";

class EmployeeImportTest : public testing::Test
{
protected:
    EmployeeImportTest()
    {
        m_database->DatabaseName(m_own.Name());
        m_database->StoredBy({"office", "ptk-console"});
        Execute(*m_own.Open(),
                "INSERT INTO Employee (FirstName, LastName, EmployeeNumber, SSNumber, Phone, PayRate, Active, HireDate, AutoDeduct) VALUES "
                "('Ann', 'Lee', 7, '123-45-6789', '=5', 12.5, '1', '2003-03-05 00:00:00', '0'), "
                "('Bo', 'Kim', 8, '1', '', 0, '1', NULL, '0'), ('Cy', 'Day', 8, '2', '', 0, '0', NULL, '0'), "
                "('Di', 'Orr', 9, '3', '55', 7.8333335, '0', NULL, '0')"); // 40 to 43
    }

    EmployeeAccount Import(const std::string& text, const char* change = "", bool trial = false)
    {
        const std::string path = m_own.Folder() + "/employees.csv";
        WriteBytes(path, text);
        const auto wanted = ReadEmployeeFields(change).value_or(std::vector<EmployeeField>());
        const auto takes = [&](const EmployeeDifference& difference) {
            return std::find(wanted.begin(), wanted.end(), difference.field) != wanted.end();
        };
        return ImportEmployees(m_database, {path, trial, wanted, takes});
    }

    // The account in one line.
    std::string Account(const std::string& text, const char* change = "")
    {
        std::string all;
        for (const std::string& line : EmployeeAccountLines(Import(text, change))) {
            all += (all.empty() ? "" : " | ") + line;
        }
        return all;
    }

    // All but the first of them, as far as the tests' files have columns.
    std::string Employees() const
    {
        std::string all;
        for (const auto rows = m_own.Open()->Select("SELECT FirstName, LastName, SSNumber, Phone, PayRate, Active, HireDate FROM Employee "
                                                    "WHERE EmployeeID > 40 ORDER BY EmployeeID");
             !rows->EndOfFile(); rows->MoveNext()) {
            const bool hired = !rows->IsNull(6) && !rows->DateTimeAt(6).IsZero();
            all += fmt::format("{}{} {} {} {} {} {} {}", all.empty() ? "" : " | ", rows->TextAt(0), rows->TextAt(1), rows->TextAt(2),
                               rows->TextAt(3), rows->SingleAt(4), rows->BooleanAt(5),
                               hired ? StoredText(rows->DateTimeAt(6)).substr(0, 10) : "-");
        }
        return all;
    }

    EitherDatabase m_own;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_own.Folder());
};

TEST_F(EmployeeImportTest, RefusesAFileAsAWhole)
{
    struct Case
    {
        const char* reason;
        const char* text;
        const char* change = "";
    };
    for (const Case& c : {
             Case{"the file has no heading line", "\n;\n"},
             Case{"the file has no column Employee Number", "First Name,Last Name\nAnn,Lee\n"},
             Case{"the columns Number and Employee  Number mean the same", "Number,Employee  Number\n"},
             Case{"the heading phone stands twice", "Number,Phone,phone\n"},
             Case{"the file has no column ZIP Code", "Number,Phone\n7,1\n", "Phone,zipcode"},
             Case{"line 3: a quotation mark is opened and never closed", "Number,Phone\n7,1\n9,\"2\n"},
         }) {
        EXPECT_EQ(FailureTextOf([&] { static_cast<void>(Import(c.text, c.change)); }), c.reason);
    }
    EXPECT_FALSE(ReadEmployeeFields("Phone,Shoe Size"));
    EXPECT_FALSE(ReadEmployeeFields("Employee Number")); // by that they are known
}

TEST_F(EmployeeImportTest, NamesLineColumnAndReasonOfWhatItRefuses)
{
    const std::string text = "Employee Number,First Name,Last Name,SSN,Active,Regular Pay Rate,Hire Date\n"
                             ",A,B,1,true,1,\n"
                             "12x,A,B,1,true,1,\n"
                             "10,A,,1,true,1,\n"
                             "11,A,B,,true,1,\n"
                             "11,A,B,,true,1,\n"
                             "12,A,B,1,yes,1,\n"
                             "13,A,B,1,true,-1,\n"
                             "14,A,B,1,true,nan,\n"
                             "15,A,B,1,true,1,13/5/2003\n"
                             "8,A,B,1,true,1,\n"
                             "16,A\a,B,1,true,1,\n"
                             "17," +
                             std::string(256, 'x') +
                             ",B,1,true,1,\n"
                             "18,A,B,1,true,1,\n"
                             "18,A,C,1,true,1,\n"
                             "0018,A,B,1,true,1,\n"
                             "0,,boss,,true,0,\n"
                             "9,Di,Orr,3,false,1e3,\n"
                             "19,A,B,1,true,1,,x\n"
                             "4294967303,A,B,1,true,1,\n";
    EXPECT_EQ(Account(text, "Last Name"),
              "Lines: 19, stored 1, there already 1, refused 17, changed 0 | Line 2: Employee Number: empty | "
              "Line 3: Employee Number: no employee number: \"12x\" | Line 4: Last Name: empty | Line 5: SSN: empty | Line 6: SSN: empty | "
              "Line 7: Active: neither true nor false: \"yes\" | Line 8: Regular Pay Rate: no rate: \"-1\" | "
              "Line 9: Regular Pay Rate: no rate: \"nan\" | Line 10: Hire Date: no day: \"13/5/2003\" | "
              "Line 11: Employee Number: several people have \"8\" | "
              "Line 12: First Name: a control character, or one that cannot be read | "
              "Line 13: First Name: more than 255 characters | Line 15: Employee Number: \"18\" has other fields on line 14 | "
              "Line 17: Employee Number: the administrator may not be changed | Line 18: Regular Pay Rate: no rate: \"1e3\" | "
              "Line 19: column 8: a cell without a heading | Line 20: Employee Number: no employee number: \"4294967303\"");
    EXPECT_EQ(Employees(), kOthers);
}

TEST_F(EmployeeImportTest, AddsNewOnesAndChangesTheFieldsThatAreNamed)
{
    const std::string text = "\xEF\xBB\xBFPhone;Number;SSN;Last Name;Hire Date;Regular Pay Rate;Shoe Size\r\n"
                             "'=5;7;123-45-6789;Lee;3/5/2003;12.50;\r\n" // all as it is
                             "56;9;3;Orr;;8;44\r\n"
                             "'+1;10;4;Fox;2003-03-06;.5;\r\n";
    EXPECT_FALSE(Import(text, "Phone", true).isStored);
    EXPECT_EQ(Employees(), kOthers);
    EXPECT_EQ(Account(text, " phone"),
              "Lines: 3, stored 1, there already 1, refused 0, changed 1 | Columns left aside: Shoe Size | "
              "Employee 9, Phone: \"55\" becomes \"56\" | Employee 9, Regular Pay Rate: \"7.8333335\" stays, the file has \"8\"");
    EXPECT_EQ(Employees(), "Bo Kim 1  0 true - | Cy Day 2  0 false - | Di Orr 3 56 7.8333335 false - | "
                           " Fox 4 +1 0.5 true 2003-03-06");
    const auto trail = m_own.Open()->Select("SELECT COUNT(*), COUNT(DISTINCT Step) FROM _Change WHERE ChangedBy = 'office'");
    EXPECT_EQ(trail->Int64At(0), 2);
    EXPECT_EQ(trail->Int64At(1), 1);
    const EmployeeAccount again = Import(text, "Phone");
    EXPECT_EQ(again.there, 3);
    EXPECT_FALSE(again.isStored);
}

TEST_F(EmployeeImportTest, OwnRecordsComeInAgainWithoutADifferenceAndManyInPortions)
{
    Execute(*m_own.Open(), "DELETE FROM Employee WHERE EmployeeNumber = 8");
    Execute(*m_own.Open(), "UPDATE Employee SET FirstName = '-x', Address = 'a;b \"c\"' WHERE EmployeeID = 43");
    CEmployeeList list;
    ASSERT_TRUE(list.LoadList(m_database));
    ReportDocument records{.title = ""};
    records.table.columns = EmployeeRecordColumns();
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        records.table.rows.push_back(EmployeeRecord(*list.Item(i)));
    }
    EXPECT_EQ(Account(FileOf(ReportForm::Csv, {&records, 1}, DateTime())), "Lines: 3, stored 0, there already 3, refused 0, changed 0");
    std::string many = "Number,Last Name,SSN,City\n";
    for (int i = 1000; i < 1250; ++i) {
        many += fmt::format("{0},L{0},S{0},\n", i);
    }
    EXPECT_EQ(Import(many).added.size(), 250U);
    for (std::size_t at = many.find(",\n"); at != std::string::npos; at = many.find(",\n", at + 2)) {
        many.insert(at + 1, "Ulm");
    }
    EXPECT_EQ(Import(many, "City").changed.size(), 250U);
    EXPECT_EQ(m_own.Open()->Select("SELECT COUNT(*) FROM Employee WHERE City = 'Ulm' AND LastName LIKE 'L1%'")->Int64At(0), 250);
}

} // namespace

} // namespace ptk
