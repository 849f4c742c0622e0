// The forms of documents that other programs read, to the byte.
#include "platform/text/Text.h"
#include "reports/forms/CellText.h"
#include "reports/forms/ReportDocument.h"
#include "reports/forms/ReportForms.h"

#include <gtest/gtest.h>

#include <vector>

namespace ptk {

namespace {

constexpr ReportColumn kColumns[] = {{"Employee Number", CellType::WholeNumber},
                                     {"Last Name", CellType::Text},
                                     {"From", CellType::Date},
                                     {"Start Time", CellType::DateTime},
                                     {"Hours", CellType::Hours},
                                     {"ZIP Code", CellType::Text},
                                     {"Gross Pay", CellType::Money},
                                     {"Active", CellType::Boolean}};

const DateTime kNow({2003, 3, 20}, {9, 30, 0});
const DateTime kDay(CalendarDate{2003, 1, 2});

ReportDocument Made(const std::string& title, std::vector<ReportRow> rows)
{
    ReportDocument document{title, "5_time_card.txt"};
    document.BeginGroup();
    document.Add(title);
    document.Add("a\r\nb");
    document.table = {kColumns, std::move(rows)};
    return document;
}

TEST(DataFormsTest, HoursAreToldAsOnAClockAndRatesWhole)
{
    EXPECT_EQ(CellText(CellType::Rate, 7.8333335F) + ' ' + CellText(CellType::Rate, 12.5F) + ' ' + CellText(CellType::Rate, 8.0F),
              "7.8333335 12.5 8");
    EXPECT_EQ(ClockText(0.0F) + ' ' + ClockText(-0.25F) + ' ' + ClockText(0.992F) + ' ' + ClockText(100.5F), "0:00 -0:15 1:00 100:30");
}

TEST(DataFormsTest, AreTheSameToTheByte)
{
    const ReportRow plain{5, "Lee", kDay, DateTime({2003, 1, 2}, {8, 5, 9}), 17.583334F, "62701", 1672.855F, true};
    const ReportRow odd{-1, "=Sum(\"a\"),\r\nb", Value(), Value(), -1.004F, "", -0.5F, false};
    ReportDocument second = Made("\"B\"", {odd, {6, "\t-x", kDay, kDay, Value(), "+1", 0.0F, Value()}});
    second.Fail(710);
    second.AddGap("it rained", "Bo");
    const std::vector documents{Made("A", {plain}), second};
    EXPECT_EQ(FileOf(ReportForm::Text, documents, kNow), "A\r\na\r\nb\r\n\r\n\"B\"\r\na\r\nb\r\n");
    EXPECT_EQ(FileOf(ReportForm::Csv, documents, kNow),
              "\xEF\xBB\xBF"
              "Employee Number,Last Name,From,Start Time,Hours,Hours (h:mm),ZIP Code,Gross Pay,Active\r\n"
              "5,Lee,2003-01-02,2003-01-02T08:05:09,17.58,17:35,62701,1672.86,true\r\n"
              "-1,\"'=Sum(\"\"a\"\"),\r\nb\",,,-1.00,-1:00,,-0.50,false\r\n"
              "6,'\t-x,2003-01-02,2003-01-02T00:00:00,,,'+1,0.00,\r\n");
    EXPECT_EQ(
        FileOf(ReportForm::Json, documents, kNow),
        "{\"made\":\"2003-03-20T09:30:00\",\"reports\":[\r\n"
        "{\"title\":\"A\",\"complete\":true,\"missing\":null,\"rows\":[\r\n"
        "{\"employeeNumber\":5,\"lastName\":\"Lee\",\"from\":\"2003-01-02\",\"startTime\":\"2003-01-02T08:05:09\",\"hours\":\"17.58\","
        "\"hoursAsTime\":\"17:35\",\"zipCode\":\"62701\",\"grossPay\":\"1672.86\",\"active\":true}]},\r\n"
        "{\"title\":\"\\\"B\\\"\",\"complete\":false,\"missing\":\"without Bo: it rained\",\"rows\":[\r\n"
        "{\"employeeNumber\":-1,\"lastName\":\"=Sum(\\\"a\\\"),\\u000d\\u000ab\",\"from\":null,\"startTime\":null,\"hours\":\"-1.00\","
        "\"hoursAsTime\":\"-1:00\",\"zipCode\":\"\",\"grossPay\":\"-0.50\",\"active\":false},\r\n"
        "{\"employeeNumber\":6,\"lastName\":\"\\u0009-x\",\"from\":\"2003-01-02\",\"startTime\":\"2003-01-02T00:00:00\",\"hours\":null,"
        "\"hoursAsTime\":null,\"zipCode\":\"+1\",\"grossPay\":\"0.00\",\"active\":null}]}\r\n]}\r\n");
    EXPECT_EQ(FileOf(ReportForm::Json, {}, kNow), "{\"made\":\"2003-03-20T09:30:00\",\"reports\":[\r\n]}\r\n");
    EXPECT_EQ(FileNameFor(second, ReportForm::Csv), "5_time_card.csv");
}

TEST(DataFormsTest, AFormOfNothingAndOfSeveral)
{
    const DateTime made = ToDateTime("3/16/2026 9:30");
    EXPECT_EQ(FileOf(ReportForm::Text, {}, made), "");
    EXPECT_EQ(FileOf(ReportForm::Csv, {}, made), kByteOrderMark);
    EXPECT_EQ(FileOf(ReportForm::Json, {}, made), "{\"made\":\"2026-03-16T09:30:00\",\"reports\":[\r\n]}\r\n");
    std::vector<ReportDocument> two(2);
    for (ReportDocument& document : two) {
        document.BeginGroup();
        document.Add("line");
    }
    EXPECT_EQ(FileOf(ReportForm::Text, two, made), "line\r\n\r\nline\r\n") << "an empty line between";
    EXPECT_EQ(CellText(CellType::Money, Value()), "") << "nothing is no amount";
    std::string endings;
    for (const ReportForm form : {ReportForm::Text, ReportForm::Csv, ReportForm::Json, ReportForm::Pdf}) {
        endings += EndingOf(form);
    }
    EXPECT_EQ(endings, ".txt.csv.json.pdf");
}

} // namespace

} // namespace ptk
