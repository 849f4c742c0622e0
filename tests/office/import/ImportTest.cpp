#include "office/import/Import.h"

#include "office/import/ImportValues.h"
#include "office/import/OldFile.h"
#include "platform/Failure.h"
#include "platform/text/CodePage.h"
#include "store/RawDatabase.h"
#include "store/whole/DatabaseCreator.h"
#include "support/EarlierDatabase.h"
#include "support/Files.h"
#include "support/JetFileBuilder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <tuple>

namespace ptk {

namespace {

namespace fs = std::filesystem;
using Builder = JetFileBuilder;
using Type = Builder::Type;

constexpr double kDay = 38000; // 14 January 2004
const Builder::Cell kNone{};

const std::vector<Builder::Column> kEmployee{
    {"employeeid", Type::Long}, {"SSNumber", Type::Text},    {"FirstName", Type::Text},      {"LastName", Type::Text},
    {"Address", Type::Text},    {"Address2", Type::Text},    {"City", Type::Text},           {"State", Type::Text},
    {"ZipCode", Type::Text},    {"Phone", Type::Text},       {"EmployeeNumber", Type::Long}, {"DateOfBirth", Type::Date},
    {"HireDate", Type::Date},   {"ReleaseDate", Type::Date}, {"PayRate", Type::Single},      {"OvertimePayRate", Type::Double},
    {"CompanyID", Type::Long},  {"AutoDeduct", Type::Flag},  {"Shoe", Type::Short}};
const std::vector<Builder::Column> kCompany{{"CompanyID", Type::Long}, {"Name", Type::Text},  {"Address1", Type::Text},
                                            {"Address2", Type::Text},  {"City", Type::Text},  {"State", Type::Text},
                                            {"ZipCode", Type::Text},   {"Phone", Type::Text}, {"Homepage", Type::Text}};
const std::vector<Builder::Column> kTimeRecord{{"TimeRecordID", Type::Long},
                                               {"EmployeeID", Type::Long},
                                               {"ShiftDate", Type::Date},
                                               {"StartTime", Type::Date},
                                               {"EndTime", Type::Date}};
const std::vector<Builder::Column> kSystem{
    {"program", Type::Text}, {"period_length", Type::Long}, {"auto_shift_start_time", Type::Date}, {"auto_shift_end_time", Type::Date}};

Builder::Row Employee(double id, const Builder::Cell& name, const Builder::Cell& rate = 12.3)
{
    return {id, "", kNone, name, "", "", "", "", "", "", id, kNone, kDay + 0.0, 0.0, rate, 18.45, 7.0, 1.0, 43.0};
}

Builder::Row Company(double id)
{
    return {id, "Caf\xE9\\A\tB\r\n", "", "", "", "", "", kNone, "www.example.org"};
}

// From the hour to the hour of that day.
Builder::Row Record(double id, double employee, double from, double to)
{
    return {id, employee, kDay, kDay + from / 24, to == 0 ? 0.0 : kDay + to / 24};
}

struct OldRows
{
    std::vector<Builder::Row> employees{Employee(5, "Lee")};
    std::vector<Builder::Row> companies{Company(7)};
    std::vector<Builder::Row> records{Record(1, 5, 8, 16)};
    std::vector<Builder::Row> options;
    std::uint32_t lost = 0; // records that the table counts beyond those there are
};

class ImportTest : public testing::Test
{
protected:
    ImportTest()
    {
        m_order.file = m_folder.Path() + "/old.mdb";
        m_order.database = m_folder.Path() + "/system/ptk_11.mdb";
        m_order.programFolder = m_folder.Path();
        m_order.now = DateTime(CalendarDate{2026, 3, 20}, TimeOfDay{9, 30, 0});
        m_order.author = {"Ann", "ptk-console"};
    }

    void Write(const OldRows& rows)
    {
        Builder builder;
        builder.AddTable("Staff", kEmployee, rows.employees);
        builder.AddTable("Firms", kCompany, rows.companies);
        builder.AddTable("timerecord", kTimeRecord, rows.records, static_cast<std::uint32_t>(rows.records.size()) + rows.lost);
        builder.AddTable("_System", kSystem, rows.options);
        builder.AddTable("Vendors", {{"VendorID", Type::Long}}, {});
        WriteBytes(m_order.file, builder.Build());
    }

    // The sentence of the refusal; empty for an import.
    std::string Refusal()
    {
        try {
            m_account = ImportOldDatabase(m_order).account;
            return {};
        } catch (const Failure& failure) {
            return failure.Description();
        }
    }

    std::string Rows(const std::string& sql) const { return RawDatabase(m_order.database).Rows(sql); }

    std::string Told() const
    {
        std::string text;
        for (const std::string& line : AccountLines(m_account)) {
            text += line + '\n';
        }
        return text;
    }

    std::ptrdiff_t Accounts() const
    {
        return std::distance(fs::directory_iterator(m_folder.Path() + "/reports"), fs::directory_iterator());
    }

    TemporaryFolder m_folder;
    ImportOrder m_order;
    ImportAccount m_account;
};

TEST_F(ImportTest, TakesEveryValueAndTellsIt)
{
    OldRows rows;
    rows.employees.push_back(Employee(39, "Boss", kNone));
    rows.options = {{"PTK", 7.0, kDay + 0.25, kNone}, {"second", 8.0, 0.0, 0.0}};
    rows.records = {Record(1, 5, 8, 16), Record(3, 5, 22, 30.5),           Record(4, 70077, 8, 0),
                    Record(9, 5, 8, 7),  {10.0, 5.0, kNone, kNone, kNone}, {11.0, kNone, kDay, kDay + 0.99999999, kDay + 1.0}};
    Write(rows);
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Told().substr(Told().find('\n') + 1), "Employee from Staff: found 2, taken 2, left out 0\n"
                                                    "Company from Firms: found 1, taken 1, left out 0\n"
                                                    "TimeRecord from timerecord: found 6, taken 6, left out 0\n"
                                                    "_System from _System: found 2, taken 1, left out 1\n"
                                                    "  left out, further row of options: 1\n"
                                                    "Not taken: table Vendors\n"
                                                    "Not taken: column Shoe of Staff\n"
                                                    "Warning: time records of no employee: 2\n"
                                                    "Warning: open time records: 2\n"
                                                    "Warning: backward time records: 1\n"
                                                    "Employee (none): 1 records, 0:00 hours\n"
                                                    "Employee 5 Lee: 4 records, 16:30 hours\n"
                                                    "Employee 70077 (no such employee): 1 records, 0:00 hours\n"
                                                    "Signs of damage: none\n");
    EXPECT_EQ(Rows("SELECT EmployeeID, FirstName IS NULL, LastName, HireDate, ReleaseDate, DateOfBirth IS NULL, PayRate, OvertimePayRate, "
                   "Active, AutoDeduct, AutoDeductLunchLength, Password IS NULL FROM Employee"),
              "5|1|Lee|2004-01-14 00:00:00|1899-12-30 00:00:00|1|12.3|18.45|1|1|0|1|"
              "39|1|Boss|2004-01-14 00:00:00|1899-12-30 00:00:00|1|NULL|18.45|1|1|0|1|");
    EXPECT_EQ(
        Rows("SELECT CompanyID, replace(replace(replace(Name, char(9), '<t>'), char(13), '<r>'), char(10), '<n>'), Phone IS NULL, URL "
             "FROM Company"),
        "7|Café\\A<t>B<r><n>|1|www.example.org|");
    EXPECT_EQ(Rows("SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE TimeRecordID > 3"),
              "4|70077|2004-01-14 08:00:00|1899-12-30 00:00:00|"
              "9|5|2004-01-14 08:00:00|2004-01-14 07:00:00|"
              "10|5|1899-12-30 00:00:00|1899-12-30 00:00:00|"
              "11|NULL|2004-01-15 00:00:00|2004-01-15 00:00:00|");
    EXPECT_EQ(Rows("SELECT * FROM _System"), "PTK|1.0|7|1899-12-30 06:00:00|1899-12-30 17:00:00|");
    EXPECT_EQ(Rows("SELECT ChangedBy, Program, Action, TableName IS NULL, After FROM _Change"),
              "Ann|ptk-console|import|1|{\"file\":\"" + m_order.file + "\"}|");
    const std::string account = ReadBytes(m_folder.Path() + "/reports/Import_2026-03-20_093000.txt");
    EXPECT_TRUE(account.starts_with("Import of the older database " + m_order.file + "\r\nEmployee from Staff: found 2,")) << account;
}

// Each with the sign that it gives, and what is left of the rows where that is accepted.
TEST_F(ImportTest, TakesADamagedFileOnlyWhenThatIsAccepted)
{
    struct Case
    {
        std::function<void(OldRows&)> damage;
        const char* sign;
        const char* left;
    };
    const auto record = [](const Builder::Row& row) { return [row](OldRows& rows) { rows.records.push_back(row); }; };
    const Case cases[] = {
        {[](OldRows& rows) { rows.lost = 1; }, "TimeRecord: 1 rows read, but the table counts 2", "1|1"},
        {record(Record(1, 6, 9, 10)), "TimeRecord: doubled keys: 1", "1|1"},
        {record(Record(0, 5, 9, 10)), "TimeRecord.TimeRecordID: impossible values: 1", "1|1"},
        {record(Record(2147483647.0, 5, 9, 10)), "TimeRecord.TimeRecordID: impossible values: 1", "1|1"},
        {record({2.0, 5.0, kDay, 2958466.0, 0.0}), "TimeRecord.StartTime: impossible values: 1", "1|1"},
        {record({2.0, 5.0, kDay, kDay, -657435.0}), "TimeRecord.EndTime: impossible values: 1", "1|1"},
        {record({2.0, 5.0, NAN, kDay, 0.0}), "TimeRecord.ShiftDate: impossible values: 1", "1|2"},
        {[](OldRows& rows) { rows.employees.push_back(Employee(6, "Ray", HUGE_VAL)); }, "Employee.PayRate: impossible values: 1", "2|1"},
        {[](OldRows& rows) { rows.employees.push_back(Employee(6, "R\x81y")); }, "Employee.LastName: texts with unreadable characters: 1",
         "2|1"},
    };
    for (const Case& c : cases) {
        OldRows rows;
        c.damage(rows);
        Write(rows);
        m_order.acceptDamaged = false;
        ImportOutcome outcome = ImportOldDatabase(m_order);
        EXPECT_EQ(outcome.account.signs, std::vector<std::string>{c.sign});
        EXPECT_TRUE(outcome.refusal.starts_with("the file shows signs of damage (1)")) << outcome.refusal;
        EXPECT_FALSE(fs::exists(m_order.database));
        m_order.acceptDamaged = true;
        EXPECT_EQ(ImportOldDatabase(m_order).refusal, "") << c.sign;
        EXPECT_EQ(Rows("SELECT (SELECT COUNT(*) FROM Employee WHERE EmployeeID <> 39), (SELECT COUNT(*) FROM TimeRecord)"),
                  std::string(c.left) + '|')
            << c.sign;
        fs::remove(m_order.database);
    }
}

TEST_F(ImportTest, TellsATableThatCannotBeRead)
{
    Write({});
    std::string bytes = ReadBytes(m_order.file);
    bytes[bytes.rfind("\2\1VC")] = '\0'; // where the columns of the last table stand
    WriteBytes(m_order.file, bytes);
    const std::vector<std::string> signs{"the table Vendors cannot be read", "warnings while reading: 1"};
    EXPECT_EQ(ImportOldDatabase(m_order).account.signs, signs);
}

// One letter of each alphabet.
TEST_F(ImportTest, ReadsNamesInTheCodePageThatIsSaid)
{
    const std::tuple<int, const char*, const char*> pages[] = {
        {437, "\x81", "ü"},      {850, "\xB7", "À"},  {852, "\x85", "ů"},      {855, "\x81", "Ђ"},      {857, "\x98", "İ"},
        {866, "\x81", "Б"},      {874, "\xA1", "ก"},  {932, "\x82\xA0", "あ"}, {936, "\xC4\xE3", "你"}, {949, "\xB0\xA1", "가"},
        {950, "\xA7\x41", "你"}, {1250, "\xA5", "Ą"}, {1251, "\xC1", "Б"},     {1252, "\xC1", "Á"},     {1253, "\xC1", "Α"},
        {1254, "\xDD", "İ"},     {1255, "\xE0", "א"}, {1256, "\xC7", "ا"},     {1257, "\xC0", "Ą"},     {1258, "\xD0", "Đ"},
    };
    for (const auto& [page, bytes, letter] : pages) {
        OldRows rows;
        rows.employees = {Employee(5, bytes)};
        rows.companies.clear();
        Write(rows);
        m_order.codePage = page;
        EXPECT_TRUE(IsKnownCodePage(page)) << page;
        EXPECT_EQ(Refusal(), "") << page;
        EXPECT_EQ(Rows("SELECT LastName FROM Employee WHERE EmployeeID = 5"), std::string(letter) + '|') << page;
        fs::remove(m_order.database);
    }
    std::string bytes = ReadBytes(m_order.file);
    bytes[0x3C] =
        static_cast<char>(bytes[0x3C] ^ 0x04E4 ^ 0x04EA); // the header, which is ciphered by a key of its own, names 1258 instead of 1252
    WriteBytes(m_order.file, bytes);
    m_order.codePage.reset();
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Rows("SELECT LastName FROM Employee WHERE EmployeeID = 5"), "Đ|");
}

TEST_F(ImportTest, RefusesWhatIsNotThereInASentence)
{
    struct Case
    {
        std::function<void(Builder&)> tables;
        const char* refusal;
    };
    const auto staff = [](Builder& builder, const char* name) { builder.AddTable(name, kEmployee, {}); };
    const auto firms = [](Builder& builder) { builder.AddTable("Firms", kCompany, {}); };
    const auto records = [](Builder& builder) { builder.AddTable("TimeRecord", kTimeRecord, {}); };
    const Case cases[] = {
        {[&](Builder& builder) { firms(builder), records(builder); }, "the file has no employee table (Employee, known by its columns)"},
        {[&](Builder& builder) { staff(builder, "Staff"), records(builder); },
         "the file has no company table (Company, known by its columns)"},
        {[&](Builder& builder) { staff(builder, "Staff"), firms(builder); }, "the file has no time record table (TimeRecord)"},
        {[&](Builder& builder) { staff(builder, "Staff"), staff(builder, "Copy of Staff"), firms(builder), records(builder); },
         "the file has more than one employee table (Employee, known by its columns), and none of them is known to be in use: Staff, Copy "
         "of "
         "Staff"},
    };
    for (const Case& c : cases) {
        Builder builder;
        c.tables(builder);
        WriteBytes(m_order.file, builder.Build());
        EXPECT_EQ(Refusal(), c.refusal);
    }
    const std::string newer = std::string("\0\1\0\0Standard ACE DB\0\2", 21) + std::string(9000, '\0');
    const std::pair<std::string, const char*> files[] = {
        {"", "the file is no Jet database (.mdb)"},
        {std::string(9000, '\0'), "the file is no Jet database (.mdb)"},
        {newer, "the file is of a newer format than Jet 4; save it as an Access 2000 database first"},
        {Builder().Build().substr(0, 4096), "the file is cut short: not even its list of tables is there"}};
    for (const auto& [bytes, refusal] : files) {
        WriteBytes(m_order.file, bytes);
        EXPECT_EQ(Refusal(), refusal);
    }
    EXPECT_EQ(Accounts(), 0);
}

TEST_F(ImportTest, StoredQueriesTellWhichTableAndColumnIsInUse)
{
    std::vector<Builder::Column> company = kCompany;
    company.push_back({"Slogan", Type::Text});
    Builder::Row firm = Company(7);
    firm.emplace_back("Better bread");
    Builder builder;
    builder.AddTable("Staff", kEmployee, {Employee(4, "Old")});
    builder.AddTable("Staff2", kEmployee, {Employee(5, "Lee")});
    builder.AddTable("Firms", company, {firm});
    builder.AddTable("TimeRecord", kTimeRecord, {});
    builder.AddObject(900, "GetAllEmployees", 5);
    builder.AddObject(901, "AddNewCompany", 5);
    builder.AddTable(
        "MSysQueries",
        {{"ObjectId", Type::Long}, {"Attribute", Type::Short}, {"Expression", Type::Text}, {"Name1", Type::Text}, {"Name2", Type::Text}},
        {{900.0, 5.0, kNone, "staff2", kNone},
         {901.0, 6.0, "[paramName]", kNone, "Slogan"},
         {901.0, 6.0, "[paramURL]", kNone, "Homepage"}});
    WriteBytes(m_order.file, builder.Build());
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(m_account.otherTables, std::vector<std::string>{"Staff"});
    EXPECT_EQ(m_account.furtherColumns, (std::vector<std::string>{"Shoe of Staff2", "Slogan of Firms"}));
    EXPECT_EQ(Rows("SELECT LastName FROM Employee WHERE EmployeeID < 39; SELECT URL FROM Company"), "Lee|www.example.org|");
}

TEST_F(ImportTest, LeavesADatabaseWithPeopleInItAlone)
{
    Write({});
    CreateDatabase(m_order.database);
    RawDatabase(m_order.database).Run("INSERT INTO Company (Name) VALUES ('Ours')");
    const std::string before = ReadBytes(m_order.database);
    for (const bool trial : {true, false}) {
        m_order.trial = trial;
        EXPECT_TRUE(Refusal().starts_with("the database already holds companies"));
    }
    EXPECT_EQ(ReadBytes(m_order.database), before);
    m_order.file = m_order.database;
    EXPECT_EQ(Refusal(), m_order.file + ": it is the program's own database");
    m_order.file = m_folder.Path();
    EXPECT_EQ(Refusal(), m_order.file + ": it is no file that could be read");
    m_order.file += "/none";
    EXPECT_EQ(Refusal(), m_order.file + ": there is no such file");
}

TEST_F(ImportTest, WritesNothingOnTrialAndNothingToTheOldFile)
{
    Write({});
    struct stat before
    {
    };
    struct stat after
    {
    };
    const timespec old[] = {{1000, 0}, {2000, 0}}; // so that a look would be noted
    ::utimensat(AT_FDCWD, m_order.file.c_str(), old, 0);
    ::stat(m_order.file.c_str(), &before);
    m_order.trial = true;
    EXPECT_EQ(Refusal(), "");
    const std::string trial = Told();
    EXPECT_TRUE(fs::is_empty(m_folder.Path() + "/system"));
    EXPECT_EQ(Accounts(), 0);
    m_order.trial = false;
    CreateDatabase(m_order.database);
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Told(), trial);
    EXPECT_EQ(Rows("SELECT EmployeeID, LastName, Password FROM Employee WHERE EmployeeID = 39"), "39|administrator|wharf271|");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM _Change"), "1|");
    ::stat(m_order.file.c_str(), &after);
    EXPECT_EQ(after.st_atim.tv_sec, before.st_atim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
}

TEST_F(ImportTest, BringsAnEarlierDatabaseUpToDateAfterABackup)
{
    Write({});
    CreateDatabase(m_order.database);
    RawDatabase(m_order.database).Run(kMakeWithoutTrail);
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Rows("SELECT COUNT(*), (SELECT Action FROM _Change) FROM _Change"), "1|import|");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM TimeRecord"), "1|");
    EXPECT_TRUE(fs::exists(m_folder.Path() + "/backups/ptk_11-2026-03-20-093000.mdb"));
    EXPECT_EQ(m_account.figures.rows[static_cast<std::size_t>(ImportTableId::TimeRecord)], 1) << "counted once, though written twice";
}

// Fifty of them, changed and cut at random: they end in a refusal or in a true account, and a refusal changes nothing.
TEST_F(ImportTest, DamagedFilesDoNoHarm)
{
    OldRows rows;
    for (int i = 2; i < 300; ++i) {
        rows.records.push_back(Record(i, 5, 8, 16));
    }
    Write(rows);
    const std::string whole = ReadBytes(m_order.file);
    std::mt19937 random(7);
    CreateDatabase(m_order.database);
    const std::string empty = ReadBytes(m_order.database);
    m_order.acceptDamaged = true;
    for (int i = 0; i < 50; ++i) {
        std::string bytes = whole.substr(0, i % 5 == 0 ? random() % whole.size() : whole.size());
        for (int flips = i % 7 * 5; flips > 0 && !bytes.empty(); --flips) {
            bytes[random() % bytes.size()] = static_cast<char>(random());
        }
        WriteBytes(m_order.file, bytes);
        if (!Refusal().empty()) {
            EXPECT_EQ(ReadBytes(m_order.database), empty);
            continue;
        }
        const TableAccount& records = m_account.tables[static_cast<std::size_t>(ImportTableId::TimeRecord)];
        EXPECT_EQ(Rows("SELECT COUNT(*) FROM TimeRecord"), std::to_string(records.taken) + '|');
        WriteBytes(m_order.database, empty);
    }
}

TEST_F(ImportTest, CanBeGivenUp)
{
    Write({});
    EXPECT_THROW(static_cast<void>(ImportOldDatabase(m_order, [](std::int64_t) { return false; })), Failure);
    EXPECT_FALSE(fs::exists(m_order.database));
    EXPECT_EQ(Accounts(), 0);
}

TEST(ImportValueTest, NarrowsOnlyWhatFits)
{
    struct Case
    {
        ImportKind kind;
        OldValue old;
        const char* value; // empty for an impossible one
    };
    using Kind = OldValue::Kind;
    const Case cases[] = {
        {ImportKind::Key, {Kind::Number, "2147483646"}, "2147483646"},
        {ImportKind::Key, {Kind::Number, "-1"}, ""},
        {ImportKind::Long, {Kind::Number, "2147483648"}, ""},
        {ImportKind::Short, {Kind::Number, "32767"}, "32767"},
        {ImportKind::Short, {Kind::Number, "32768"}, ""},
        {ImportKind::Long, {Kind::Number, "2.5"}, "2"},
        {ImportKind::Long, {Kind::Text, "12"}, "12"},
        {ImportKind::Long, {Kind::Text, "twelve"}, ""},
        {ImportKind::Single, {Kind::Number, "5.15"}, "5.15"},
        {ImportKind::Single, {Kind::Number, "1e+39"}, ""},
        {ImportKind::Single, {Kind::Number, "nan"}, ""},
        {ImportKind::Flag, {Kind::Number, "-1"}, "True"},
        {ImportKind::Text, {Kind::Number, "80202"}, "80202"},
        {ImportKind::Text, {Kind::Moment, "0"}, ""},
        {ImportKind::Date, {Kind::Text, "3/5/2003"}, "3/5/2003"},
        {ImportKind::Date, {Kind::Number, "38000"}, ""},
        {ImportKind::TimeOfDay, {Kind::Moment, "-64800"}, "6:00:00 AM"},
        {ImportKind::Moment, {Kind::Impossible, ""}, ""},
    };
    for (const Case& c : cases) {
        const ImportedValue value = ImportValue({"Column", c.kind, {}, {}}, &c.old);
        EXPECT_EQ(value.impossible, *c.value == '\0') << c.old.text;
        EXPECT_EQ(value.impossible ? "" : value.value.ToText(), c.value) << c.old.text;
    }
}

} // namespace

} // namespace ptk
