// What the five reports say, as text and as data: the golden files and the tables were written by hand.
#include "reports/ReportFixture.h"

#include "model/CTimeCard.h"
#include "platform/text/Text.h"
#include "reports/CReportTimeCard.h"
#include "store/engine/StoredDate.h"

#include <array>

namespace ptk {

namespace {

const std::string kRule = std::string(72, '-') + "\r\n";
// By the order of CellType.
bool IsOf(CellType type, const Value& cell)
{
    constexpr std::array kAlternatives{7, 3, 4, 4, 4, 6, 6, 1};
    return cell.IsNull() || static_cast<int>(cell.Get().index()) == kAlternatives.at(static_cast<std::size_t>(type));
}

// The groups' lines, one at the foot marked; the columns; the rows, money with two decimals: "9 1 8f", "Name|Rate", "Ann|10.50", "Bo|-".
std::string DataOf(const ReportDocument& document)
{
    std::string text;
    for (const LineGroup& group : document.groups) {
        text += (text.empty() ? "" : " ") + std::to_string(group.lines) + (group.atFoot ? "f" : "");
    }
    char before = '\n';
    for (const ReportColumn& column : document.table.columns) {
        text += std::exchange(before, '|') + std::string(column.name);
    }
    for (const ReportRow& row : document.table.rows) {
        EXPECT_EQ(row.size(), document.table.columns.size());
        before = '\n';
        for (std::size_t i = 0; i < row.size(); ++i) {
            const CellType type = document.table.columns[i].type;
            EXPECT_TRUE(IsOf(type, row[i])) << document.table.columns[i].name;
            text += std::exchange(before, '|');
            text += row[i].IsNull() ? "-" : type == CellType::Money ? TwoDecimals(row[i].ToSingle()) : row[i].ToText();
        }
    }
    return text + "\n";
}

class ReportContentsTest : public ReportTest
{
protected:
    // The file, the last viewer and the golden text are the same bytes, and the viewer was handed over whole.
    void ExpectWritten(const Report& report, const std::string& file, const std::string& golden)
    {
        const std::string text = Golden(golden + ".txt");
        EXPECT_EQ(ReadBytes(File(file)), text);
        EXPECT_EQ(report.ReportPath(), folder.Path() + "\\reports\\" + file);
        EXPECT_EQ(report.ReportName() + "\r\n", text.substr(0, text.find('\n') + 1));
        const RememberingViewer& viewer = *viewers.made.back();
        EXPECT_EQ(viewer.text, text);
        EXPECT_EQ(viewer.caption, report.ReportName());
        EXPECT_EQ(viewer.controller.get(), &report);
        EXPECT_TRUE(viewer.shown);
        EXPECT_EQ(DataOf(report.Document()), Golden(golden + ".table"));
    }

    std::shared_ptr<CTimeCard> Card(const std::shared_ptr<CEmployee>& employee, DateTime from, DateTime to)
    {
        auto card = std::make_shared<CTimeCard>(factory);
        card->PTKDatabase(database);
        EXPECT_TRUE(card->GenerateTimecard(employee, from, to));
        return card;
    }
};

TEST_F(ReportContentsTest, SayWhatTheyAlwaysSaid)
{
    struct Case
    {
        ReportKind kind;
        ReportRequest request;
        std::int32_t error;
        const char* file;
        const char* golden;
    };
    AddShifts();
    const auto longName = Named(9, "Maxim", "Featherstonehaugh-Cholmondeley-Marjori");
    ReportRequest year = Of({ann});
    year.to = clock.Today();
    for (const Case& c : {Case{ReportKind::TimeCard, Of({ann}), 0, "5_0101_0116_2003_time_card.txt", "time_card"},
                          Case{ReportKind::TimeCard, Of({jose}), 605, "8_0101_0116_2003_time_card.txt", "time_card_empty"},
                          Case{ReportKind::Review, Of({ann, jose, zorn}), 710, "salary_review_0101_0116_2003.txt", "review"},
                          Case{ReportKind::YTDTotals, year, 0, "5_0101_0320_2003_ytd_totals.txt", "ytd_totals"},
                          Case{ReportKind::Employee, Of({ann, zorn}), 0, "employee_records.txt", "employee_records"},
                          Case{ReportKind::PhoneBook, Of({ann, zorn, longName, ann, jose}), 0, "phone_book.txt", "phone_book"}}) {
        SCOPED_TRACE(c.golden);
        const auto report = New(c.kind);
        EXPECT_EQ(report->Generate(c.request), c.error == 0);
        EXPECT_EQ(report->ErrorNumber(), c.error);
        EXPECT_EQ(report->Document().Code(), c.error);
        ExpectWritten(*report, c.file, c.golden);
    }
}

TEST_F(ReportContentsTest, ATimeCardAlreadyOnScreenIsWrittenAsItStands)
{
    AddShifts();
    const auto report = std::make_shared<CReportTimeCard>(Context());
    const auto card = Card(ann, first, DateTime({2003, 1, 16}, {23, 0, 0}));
    EXPECT_TRUE(report->WriteTimeCardReport(card));
    EXPECT_EQ(report->TimeCard(), card);
    ExpectWritten(*report, "5_0101_0116_2003_time_card.txt", "time_card");

    EXPECT_TRUE(report->WriteTimeCardReport(Card(zorn, first, last)));
    EXPECT_TRUE(DataOf(report->Document()).starts_with("17 8f\n")) << "one shift stays with its total";

    const auto blank = std::make_shared<CTimeCard>(std::make_shared<CTimeRecordFactory>());
    blank->Employee(jose);
    EXPECT_TRUE(report->WriteTimeCardReport(blank));
    EXPECT_TRUE(DataOf(report->Document()).starts_with("16 8f\n")) << "without shifts";

    EXPECT_TRUE(report->GenerateReport(database, ann, first, last));
    EXPECT_EQ(report->TimeCard()->EndDate(), DateTime({2003, 1, 17}));
}

TEST_F(ReportContentsTest, ATimeCardEndsWithWhatWasPaid)
{
    AddShifts();
    ASSERT_TRUE(database->ExecuteAction("INSERT INTO _Payday (EmployeeID, FromDay, ToDay, PaidAt, PaidBy, Regular, Overtime, Gross) VALUES "
                                        "(1, '" +
                                        StoredText(first) + "', '" + StoredText(last) +
                                        "', '2003-01-17 09:30:00', 'Bo', '16.00', '0.75', '171.25')"));
    ASSERT_TRUE(New(ReportKind::TimeCard)->Generate(Of({ann})));
    EXPECT_TRUE(viewers.made.back()->text.ends_with("Paid on 01/17/2003 09:30 AM by Bo: 16.00 + 0.75 hours, 171.25\r\n"));
}

TEST_F(ReportContentsTest, OpenAndBackwardShiftsAreDataAsOnPaper)
{
    AddShift(*jose, DateTime({2003, 1, 2}, {8, 0, 0}), DateTime());
    AddShift(*jose, DateTime({2003, 1, 3}, {8, 0, 0}), DateTime({2003, 1, 3}, {6, 30, 0}));
    const auto report = New(ReportKind::TimeCard);
    EXPECT_TRUE(report->Generate(Of({jose})));
    const std::string data = DataOf(report->Document());
    EXPECT_EQ(data.substr(data.find("8|")),
              "8|José|Ünsal|1/2/2003 8:00:00 AM|-|0\n8|José|Ünsal|1/3/2003 8:00:00 AM|1/3/2003 6:30:00 AM|-1.5\n");
}

TEST_F(ReportContentsTest, WithoutShiftsOrEmployeesTheHeaderRemains)
{
    const auto written = [this](ReportKind kind, const std::vector<std::shared_ptr<CEmployee>>& employees) {
        const auto report = New(kind);
        EXPECT_EQ(report->Generate(Of(employees)), employees.empty());
        EXPECT_TRUE(report->Document().table.rows.empty());
        return ReadBytes(File(report->Document().fileName));
    };
    EXPECT_EQ(written(ReportKind::YTDTotals, {jose}),
              "Employee Year-To-Date Totals : José Ünsal : 1/1/2003 - 1/16/2003\r\n" + kRule + "\r\n");
    EXPECT_EQ(written(ReportKind::Review, {}), "Accountant's Review : 1/1/2003 - 1/16/2003\r\n" + kRule + "\r\n");
    EXPECT_EQ(written(ReportKind::Employee, {}), "Employee Records\r\n" + kRule + "\r\n");
    EXPECT_EQ(written(ReportKind::PhoneBook, {}), "Employee Phone Book\r\n" + kRule);
}

TEST_F(ReportContentsTest, NamesOfFilesAndTitles)
{
    struct Case
    {
        const char* firstName;
        const char* lastName;
        std::int32_t number;
        DateTime from;
        DateTime to;
        const char* days;
        const char* cardTitle;
        const char* totalsTitle;
    };
    for (const Case& c :
         {Case{"Ann", "Lee", 5, DateTime({2003, 12, 16}), DateTime({2004, 1, 1}), "5_1216_0101_2003_", "Ann Lee : 12/16/2003 - 12/31/2003",
               "Ann Lee : 12/16/2003 - 1/1/2004"},
          Case{"", "Zorn", 17, DateTime({2003, 3, 1}), DateTime({2003, 3, 1}), "17_0301_0301_2003_", " Zorn : 3/1/2003 - 2/28/2003",
               " Zorn : 3/1/2003 - 3/1/2003"},
          Case{"../..", "a\\b:c?\n", -1, DateTime({1899, 12, 31}), DateTime({2150, 10, 9}, {23, 0, 0}), "-1_1231_1009_1899_",
               "../.. a\\b:c?\n : 12/31/1899 - 10/8/2150", "../.. a\\b:c?\n : 12/31/1899 - 10/9/2150"},
          Case{"B", "C", 2147483647, DateTime({2004, 3, 1}), DateTime({2004, 1, 1}), "2147483647_0301_0101_2004_",
               "B C : 3/1/2004 - 12/31/2003", "B C : 3/1/2004 - 1/1/2004"}}) {
        const ReportRequest request{database, Named(c.number, c.firstName, c.lastName), nullptr, c.from, c.to};
        const auto card = New(ReportKind::TimeCard);
        const auto totals = New(ReportKind::YTDTotals);
        card->Generate(request);
        totals->Generate(request);
        EXPECT_EQ(card->ReportName(), std::string("Employee Time Card : ") + c.cardTitle);
        EXPECT_EQ(totals->ReportName(), std::string("Employee Year-To-Date Totals : ") + c.totalsTitle);
        for (const char* ending : {"time_card.txt", "ytd_totals.txt"}) {
            EXPECT_TRUE(std::filesystem::is_regular_file(File(std::string(c.days) + ending))) << c.days << ending;
        }
    }
}

} // namespace

} // namespace ptk
