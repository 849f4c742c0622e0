// The accountant's table: the bytes of each profile, its sums against the cards, and how profiles are kept, on a file and, in the server's
// tests, on a server.
#include "model/CDateRange.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "office/business/SampleBusiness.h"
#include "office/profile/Profiles.h"
#include "office/profile/ProfileTable.h"
#include "office/profile/ProfileText.h"
#include "platform/Failure.h"
#include "platform/text/CsvReader.h"
#include "platform/text/DecimalSum.h"
#include "platform/text/Text.h"
#include "reports/forms/CellText.h"
#include "reports/ReportCards.h"
#include "store/CJetDB.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/whole/BulkWriter.h"
#include "support/EitherDatabase.h"
#include "support/Execute.h"
#include "support/Failures.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace ptk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const PayPeriod kFirstFortnight{DateTime(CalendarDate{2026, 3, 1}), DateTime(CalendarDate{2026, 3, 14})};

// 80:20 regular and 2:05 overtime hours at 10.00 and 15.50: 32.24 for overtime, singles and all.
PaidPerson Person(const std::string& first, const std::string& last, std::int32_t number = 7)
{
    EmployeeRow row;
    row.EmployeeID = 40;
    row.EmployeeNumber = number;
    row.FirstName = first;
    row.LastName = last;
    row.PayRate = 10;
    row.OvertimePayRate = 15.5F;
    row.HireDate = DateTime(CalendarDate{2020, 12, 5});
    return {std::make_shared<CEmployee>(row),
            kFirstFortnight,
            {"80.33", 4820},
            {"2.08", 125},
            {"0.50", 30},
            "803.34",
            "32.24",
            "835.58",
            std::nullopt};
}

Profile With(const char* definition)
{
    return ReadProfile("test", definition);
}

std::string BytesOf(const Profile& profile, const PaidPerson& person)
{
    return TableFileOf(profile, std::vector{person}).bytes;
}

TEST(ProfileTableTest, IsWrittenByteByByte)
{
    const std::string plain = "Employee Number,First Name,Last Name,From,To,Regular Hours,Regular Pay Rate,Overtime Hours,Overtime Pay "
                              "Rate,Break Hours,Regular Pay,Overtime Pay,Gross Pay\r\n";
    std::string semicolons = plain;
    std::replace(semicolons.begin(), semicolons.end(), ',', ';');
    const auto ready = ReadyProfiles();
    EXPECT_EQ(BytesOf(ready[0], Person("Ann", "Lee")),
              plain + "7,Ann,Lee,2026-03-01,2026-03-14,80.33,10.00,2.08,15.50,0.50,803.34,32.24,835.58\r\n");
    EXPECT_EQ(BytesOf(ready[1], Person("Ann", "Lee")), "Employee Number,First Name,Last Name,From,To,Kind,Hours,Pay Rate,Pay\r\n"
                                                       "7,Ann,Lee,2026-03-01,2026-03-14,Regular,80.33,10.00,803.34\r\n"
                                                       "7,Ann,Lee,2026-03-01,2026-03-14,Overtime,2.08,15.50,32.24\r\n");
    EXPECT_EQ(BytesOf(ready[2], Person("Ann", "Lee")),
              "\xEF\xBB\xBF" + semicolons + "7;Ann;Lee;2026-03-01;2026-03-14;80,33;10,00;2,08;15,50;0,50;803,34;32,24;835,58\r\n");
}

TEST(ProfileTableTest, KeepsTextsTextsAndFiguresFigures)
{
    struct Case
    {
        const char* name;
        const char* definition;
        const char* last;
        const char* bytes;
    };
    for (const Case& c : {
             Case{"both kinds together", "column=Hours\tH\ncolumn=Pay\tP\ncolumn=Pay Rate\tR\ncolumn=Code\tC\n", "Lee",
                  "H,P,R,C\r\n82.41,835.58,,\r\n"},
             Case{"codes, figures of a person once",
                  "rows=kind\nregular code=100\novertime code=-2\nheading=no\ncolumn=Code\tC\n"
                  "column=Gross Pay\tG\ncolumn=Overtime Hours\tO\ncolumn=Regular Pay\tR\n",
                  "Lee", "100,835.58,,803.34\r\n'-2,,2.08,\r\n"},
             Case{"hours and minutes", "hours=h:mm\ncolumn=Regular Hours\tR\ncolumn=Overtime Hours\tO\ncolumn=Hours\tH\n", "Lee",
                  "R,O,H\r\n80:20,2:05,82:25\r\n"},
             Case{"a decimal comma between commas", "decimal=comma\ncolumn=Gross Pay\tG\ncolumn=Hours\tH\n", "Lee",
                  "G,H\r\n\"835,58\",\"82,41\"\r\n"},
             Case{"a formula", "column=Last Name\t=Name\ntext=+1\tT\n", "=1+1", "'=Name,T\r\n'=1+1,'+1\r\n"},
             Case{"an address of a sheet", "column=Last Name\tN\n", "@A1", "N\r\n'@A1\r\n"},
             Case{"a tab first", "separator=semicolon\ncolumn=Last Name\tN\n", "\tx", "N\r\n'\tx\r\n"},
             Case{"a return first", "column=Last Name\tN\n", "\rx", "N\r\n\"'\rx\"\r\n"},
             Case{"no formula within", "column=Last Name\tN\n", "a=1", "N\r\na=1\r\n"},
             Case{"separator, quotes and lines", "separator=bar\ncolumn=Last Name\tN,|\n", "a|\"b\"\nc",
                  "\"N,|\"\r\n\"a|\"\"b\"\"\nc\"\r\n"},
             Case{"tabs between", "separator=tab\ncolumn=Last Name\tN\ntext=a,b\tT\n", "x\ty", "N\tT\r\n\"x\ty\"\ta,b\r\n"},
             Case{"nothing in the only column", "heading=no\ncolumn=Phone\tP\n", "Lee", "\"\"\r\n"},
             Case{"days", "dates=dd.mm.yyyy\ncolumn=Hire Date\tH\ncolumn=Release Date\tR\n", "Lee", "H,R\r\n05.12.2020,\r\n"},
             Case{"short days", "dates=m/d/yyyy\ncolumn=To\tT\n", "Lee", "T\r\n3/14/2026\r\n"},
             Case{"digits", "dates=yyyymmdd\ncolumn=To\tT\n", "Lee", "T\r\n20260314\r\n"},
             Case{"another tool's bytes", "column=Last Name\tN\n", "a\xFF", "N\r\na\xEF\xBF\xBD\r\n"},
             Case{"a western encoding", "encoding=windows-1252\ncolumn=Last Name\tNúñez €\n", "Þór \xC5\x81uk",
                  "N\xFA\xF1"
                  "ez \x80\r\n\xDE\xF3r ?uk\r\n"},
             Case{"a mark", "encoding=utf-8-mark\nheading=no\ntext=ü\tT\n", "Lee", "\xEF\xBB\xBFü\r\n"},
         }) {
        EXPECT_EQ(BytesOf(With(c.definition), Person("Ann", c.last)), c.bytes) << c.name;
    }
    const TableFile lost = TableFileOf(With("encoding=windows-1252\ncolumn=Last Name\tN\n"), std::vector{Person("", "Łódź")});
    EXPECT_THAT(TableNotices(lost), ElementsAre("2 characters are not in Windows 1252: question marks stand there"));
    PaidPerson debtor = Person("", "Lee", -7);
    debtor.gross = "-5.00";
    EXPECT_EQ(BytesOf(With("column=Employee Number\tE\ncolumn=Gross Pay\tG\n"), debtor), "E,G\r\n-7,-5.00\r\n") << "no formulas";
}

TEST(ProfileTableTest, TellsWhatTheOverviewKnows)
{
    PaidPerson person = Person("Ann", "Lee");
    person.overview.emplace();
    person.overview->check.problems = 2;
    person.overview->check.weeks = {{kFirstFortnight.from, 2525, 125}};
    person.overview->check.changed = PaidDifference{"+0.25", "-1.00", std::nullopt};
    person.overview->paid = Closing{};
    person.overview->paid->paidAt = DateTime(CalendarDate{2026, 3, 16}, TimeOfDay{9, 0, 0});
    person.overview->paid->paidBy = "=Bob";
    person.overview->paid->regular = "80.08";
    person.overview->paid->gross = "=much";
    const Profile profile = With("hours=h:mm\nheading=no\ncolumn=Longest Week\t\ncolumn=Problems\t\ncolumn=Clocked In\t\ncolumn=Paid On\t\n"
                                 "column=Paid By\t\ncolumn=Paid Regular Hours\t\ncolumn=Paid Gross\t\ncolumn=Changed Regular Hours\t\n"
                                 "column=Changed Overtime Hours\t\ncolumn=Changed Gross\t\n");
    EXPECT_TRUE(NeedsOverview(profile));
    EXPECT_FALSE(NeedsOverview(NewProfile()));
    EXPECT_EQ(BytesOf(profile, person), "42:05,2,false,2026-03-16,'=Bob,80:05,'=much,0:15,-1:00,\r\n");
}

TEST(ProfileTextTest, IsReadBackAsItWasOrRefused)
{
    Profile own = NewProfile();
    own.name = "Böhm & Co";
    for (const ProfileOption& option : ProfileOptions()) {
        option.set(own, option.choices.size() - 1);
    }
    own.regularCode = "=1";
    own.overtimeCode = "";
    own.cells.push_back({"", "a=b", ""});
    EXPECT_EQ(ReadProfile(own.name, ProfileText(own)), own);
    struct Case
    {
        const char* name;
        const char* text;
        const char* refusal;
    };
    for (const Case& c : {
             Case{"x", "rows=person\ncolour=red\ncolumn=Pay\tP\n", "its line \"colour=red\" is not known to this version"},
             Case{"x", "separator=colon\ncolumn=Pay\tP\n", "its line \"separator=colon\" is not known to this version"},
             Case{"x", "nonsense", "its line \"nonsense\" is not known to this version"},
             Case{"x", "column=Password\tP\n", "There is no column \"Password\""},
             Case{"x", "", "The table needs at least one column"},
             Case{" ", "column=Pay\tP\n", "The profile needs a name"},
             Case{"Plain", "column=Pay\tP\n", "\"Plain\" is the name of a profile that is always there"},
             Case{"x\ny", "column=Pay\tP\n", "Names, headings and texts have at most 100 characters"},
             Case{"x", "column=Pay\tP\r\n", "Names, headings and texts have at most 100 characters"},
         }) {
        EXPECT_THAT(FailureTextOf([&] { static_cast<void>(ReadProfile(c.name, c.text)); }), HasSubstr(c.refusal));
    }
}

class ProfilesTest : public testing::Test
{
protected:
    ProfilesTest()
    {
        m_database->DatabaseName(m_own.Name());
        m_database->StoredBy({"office", "ptk-console"});
    }

    std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        for (const KnownProfile& known : ReadProfiles(m_database)) {
            names.push_back(known.name + (known.profile ? "" : "?"));
        }
        return names;
    }

    KnownProfile Known(const std::string& name)
    {
        const auto all = ReadProfiles(m_database);
        return *std::find_if(all.begin(), all.end(), [&](const KnownProfile& known) { return known.name == name; });
    }

    static Profile Named(const char* name)
    {
        Profile profile = NewProfile();
        profile.name = name;
        return profile;
    }

    // What is on the cards, found by another way than the table's.
    void ExpectSumsOfTheCards(const PayPeriod& period);

    EitherDatabase m_own;
    std::shared_ptr<CJetDB> m_database = std::make_shared<CJetDB>(m_own.Folder());
};

TEST_F(ProfilesTest, AreKeptChangedAndDeletedUnlessSomebodyElseWasThere)
{
    if (!m_own.IsOnServer()) {
        Execute(*m_own.Open(), "DROP TABLE _Profile"); // as in a file that never had one
    }
    EXPECT_THAT(Names(), ElementsAre("plain", "kinds", "semicolons"));
    SaveProfile(m_database, Named("Payroll"));
    SaveProfile(m_database, Named("böhm"));
    EXPECT_THAT(Names(), ElementsAre("plain", "kinds", "semicolons", "böhm", "Payroll"));

    const KnownProfile read = Known("Payroll");
    Profile changed = *read.profile;
    changed.separator = Separator::Tab;
    SaveProfile(m_database, changed, &read);
    EXPECT_EQ(RequireProfile(m_database, "Payroll"), changed);
    EXPECT_THAT(FailureTextOf([&] { SaveProfile(m_database, *read.profile, &read); }), HasSubstr("\"Payroll\" was changed or deleted"));
    EXPECT_THAT(FailureTextOf([&] { DeleteProfile(m_database, read); }), HasSubstr("\"Payroll\" was changed or deleted"));
    EXPECT_THAT(FailureTextOf([&] { SaveProfile(m_database, Named("PAYROLL")); }), HasSubstr("there is a profile \"Payroll\" already"));
    EXPECT_THAT(FailureTextOf([&] { SaveProfile(m_database, Named("Kinds")); }), HasSubstr("always there"));
    DeleteProfile(m_database, Known("Payroll"));
    EXPECT_THAT(FailureTextOf([&] { static_cast<void>(RequireProfile(m_database, "Payroll")); }),
                HasSubstr("there is no profile \"Payroll\""));

    Execute(*m_own.Open(), "INSERT INTO _Profile (Name, Definition) VALUES ('later', 'colour=red')");
    EXPECT_THAT(Names(), ElementsAre("plain", "kinds", "semicolons", "böhm", "later?"));
    EXPECT_THAT(FailureTextOf([&] { static_cast<void>(RequireProfile(m_database, "later")); }), HasSubstr("cannot be read: its line"));
    EXPECT_EQ(m_own.Open()->Select("SELECT COUNT(*) FROM _Change")->Int64At(0), 0) << "no figures: no change of any";
}

// The columns that add up, and what they add up to.
using Sums = std::map<std::string, DecimalSum>;

std::string Hundredths(const std::string& cell)
{
    std::string text = cell.empty() ? "0.00" : cell;
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

// Minutes as an amount with two decimals: the sum is exact for both.
std::string Minutes(const std::string& clock)
{
    if (clock.empty()) {
        return "0.00";
    }
    const std::size_t colon = clock.find(':');
    const std::int32_t minutes = ToInt32(clock.substr(colon + 1)) + 60 * std::abs(ToInt32(clock.substr(0, colon)));
    return fmt::format("{}{}.00", clock.starts_with('-') ? "-" : "", minutes);
}

Sums SumsOf(const Profile& profile, const std::string& bytes)
{
    CsvReader reader(bytes, SignOf(profile.separator));
    CsvRecord heading;
    EXPECT_TRUE(reader.Next(heading));
    Sums sums;
    for (CsvRecord row; reader.Next(row);) {
        EXPECT_EQ(row.cells.size(), heading.cells.size());
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const std::string& name = heading.cells[i];
            const bool hours = name.ends_with("Hours");
            if (hours || name.ends_with("Pay")) {
                sums[name].Add(hours && profile.hours == HoursForm::Clock ? Minutes(row.cells[i]) : Hundredths(row.cells[i]));
            }
        }
    }
    return sums;
}

void ProfilesTest::ExpectSumsOfTheCards(const PayPeriod& period)
{
    CEmployeeList all;
    ASSERT_TRUE(all.LoadList(m_database));
    const PayTableOrder order{m_database, OfferedEmployees(all), period, DateTime(CalendarDate{2026, 3, 20}), true};
    const PayTable table = ReadPayTable(order).value();
    ASSERT_GT(table.people.size(), 5U) << order.people.size() << table.missing;
    Sums decimal;
    Sums clock;
    const auto factory = std::make_shared<CTimeRecordFactory>();
    factory->PTKDatabase(m_database);
    CDateRange days;
    days.ValidateRange(period.from, period.to);
    for (const auto& employee : order.people) {
        CTimeCard card(factory);
        card.PTKDatabase(m_database);
        if (GenerateTimeCard(card, employee, days)) {
            const ReportRow row = PayRow(card, days);
            for (const auto& [column, at] :
                 {std::pair("Regular Hours", 5U), {"Overtime Hours", 7U}, {"Break Hours", 9U}, {"Gross Pay", 10U}}) {
                decimal[column].Add(CellText(PayColumns()[at].type, row[at]));
                clock[column].Add(Minutes(ClockText(row[at])));
            }
        }
    }
    for (std::size_t i = 0; i < ReadyProfiles().size() * 2; ++i) {
        Profile profile = ReadyProfiles()[i / 2];
        profile.hours = i % 2 == 0 ? HoursForm::Decimal : HoursForm::Clock;
        profile.encoding = TableEncoding::Utf8;
        for (const char* further : {"Regular Hours", "Overtime Hours", "Break Hours", "Gross Pay", "Longest Week", "Problems"}) {
            profile.cells.push_back({further, "", further}); // beside one another they count once as well
        }
        Sums sums = SumsOf(profile, TableFileOf(profile, table.people).bytes);
        Sums& expected = i % 2 == 0 ? decimal : clock;
        const int times = profile.rows == TableRows::Person ? 2 : 1;
        for (auto& [column, sum] : expected) {
            DecimalSum wanted;
            for (int time = 0; time < times; ++time) {
                wanted.Add(column == "Gross Pay" ? decimal[column].Text() : sum.Text());
            }
            EXPECT_EQ(sums[column].Text(), wanted.Text()) << profile.name << ' ' << column;
        }
        if (profile.rows == TableRows::KindOfHours) {
            DecimalSum hours = expected["Regular Hours"];
            hours.Add(expected["Overtime Hours"].Text());
            EXPECT_EQ(sums["Hours"].Text(), hours.Text());
            EXPECT_EQ(sums["Pay"].Text(), decimal["Gross Pay"].Text());
        } else {
            DecimalSum pay = sums["Regular Pay"];
            pay.Add(sums["Overtime Pay"].Text());
            EXPECT_EQ(pay.Text(), decimal["Gross Pay"].Text());
        }
    }
}

TEST_F(ProfilesTest, AddUpToTheReviewOfTheSampleBusiness)
{
    {
        const auto engine = m_own.Open();
        engine->BeginMany();
        engine->WithoutTrail([&] {
            BulkWriter writer(*engine);
            AddSampleBusiness(writer, DateTime(CalendarDate{2026, 3, 20}));
        });
        engine->Commit();
    }
    ExpectSumsOfTheCards({DateTime(CalendarDate{2026, 3, 1}), DateTime(CalendarDate{2026, 3, 20})});
}

TEST_F(ProfilesTest, AddUpToTheReviewWhateverWasWorkedAndPaid)
{
    std::mt19937 random(23); // NOLINT: the same cases every time
    const auto below = [&](std::uint32_t limit) { return static_cast<std::uint32_t>(random() % limit); };
    std::vector<std::string> statements;
    for (std::uint32_t person = 0; person < 40; ++person) {
        statements.push_back(
            fmt::format("INSERT INTO Employee (EmployeeNumber, LastName, Active, PayRate, OvertimePayRate, AutoDeduct, "
                        "AutoDeductLunchLength, AutoDeductBreakLength) VALUES ({0}, 'P{0}', '1', '{1}', '{2}', '{3}', '{4}', '{5}')",
                        person, below(9000) / 100.0, below(20000) / 1000.0, below(2), below(90), below(20)));
        for (std::uint32_t shift = below(20); shift-- > 0;) {
            const DateTime start = DateTime::FromSeconds(kFirstFortnight.from.Seconds() + below(14 * 86400));
            statements.push_back(fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES ({}, #{}#, #{}#)", 40 + person,
                                             GeneralText(start), GeneralText(DateTime::FromSeconds(start.Seconds() + below(14 * 3600)))));
        }
    }
    ASSERT_TRUE(ExecuteAll(*m_database, statements)) << m_database->LastFailure().Description();
    ExpectSumsOfTheCards(kFirstFortnight);
}

TEST_F(ProfilesTest, WhoHasNoCardIsNamedAndWhoStandsTwiceIsTold)
{
    Execute(*m_own.Open(), "INSERT INTO Employee (EmployeeNumber, FirstName, LastName, Active, PayRate, OvertimePayRate, AutoDeduct, "
                           "AutoDeductLunchLength, AutoDeductBreakLength) VALUES (7, 'Ann', 'Lee', '1', 10, 15, '0', 0, 0), "
                           "(8, 'Ann', 'Lee', '1', 20, 30, '0', 0, 0), (9, 'Bo', 'Kim', '1', 10, 15, '0', 0, 0)");
    Execute(*m_own.Open(),
            "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-02 08:00:00', '2026-03-02 16:00:00')");
    CEmployeeList all;
    ASSERT_TRUE(all.LoadList(m_database));
    std::vector<std::string> doubled;
    PayTableOrder order{m_database, PeopleOfReview(all, {"Ann Lee", "Ann Lee", "Bo Kim"}, doubled), kFirstFortnight, kFirstFortnight.to};
    const PayTable table = ReadPayTable(order).value();
    EXPECT_EQ(BytesOf(With("column=Employee Number\tE\ncolumn=Gross Pay\tG\n"), table.people.at(1)), "E,G\r\n7,80.00\r\n");
    EXPECT_EQ(table.people.size(), 2U);
    EXPECT_EQ(table.missing, "without Bo Kim: there are no time records in this period");
    EXPECT_THAT(doubled, ElementsAre("Ann Lee stands 2 times, each with the card of the first employee of that name"));
    EXPECT_FALSE(ReadPayTable(order, [](std::size_t done) { return done == 0; })) << "ended";
}

} // namespace

} // namespace ptk
