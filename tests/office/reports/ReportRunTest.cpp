#include "office/reports/ReportRun.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(ReportRunTest, TellsHowManyOfHowMany)
{
    struct Case
    {
        ReportRun run;
        const char* told;
    };
    for (const Case& c : {Case{{}, "Nobody is selected"},
                          {{1, 1, 0}, "1 report written"},
                          {{3, 3, 0}, "3 reports written"},
                          {{1, 1, 1}, "0 of 1 report complete, 1 failed"},
                          {{3, 3, 2}, "1 of 3 reports complete, 2 failed"},
                          {{11, 3, 0}, "Cancelled: 3 of 11 reports written"},
                          {{11, 3, 1}, "Cancelled: 2 of 11 reports complete, 1 failed"},
                          {{2, 0, 0}, "Cancelled: 0 of 2 reports written"}}) {
        EXPECT_EQ(DescribeRun(c.run), c.told);
    }
    EXPECT_EQ(DescribeRun({5, 5, 1, {}, {"a", "b", "c", "d", "e"}}), "4 of 5 reports complete, 1 failed; a; b; c; and 2 more");
    EXPECT_EQ(DescribePrinting(0, 0), "No report is open");
    EXPECT_EQ(DescribePrinting(1, 1), "1 report printed");
    EXPECT_EQ(DescribePrinting(2, 11), "2 of 11 reports printed, the next one was refused");
}

TEST(ReportRunTest, NamesReasonsOnce)
{
    ReportRun run{3, 3};
    for (const char* reason : {"no records", "", "no records"}) {
        NoteFailure(run, reason);
    }
    EXPECT_EQ(DescribeRun(run), "0 of 3 reports complete, 3 failed: no records");
    NoteFailure(run, "in use");
    EXPECT_EQ(run.reasons, (std::vector<std::string>{"no records", "in use"}));
}

TEST(ReportRunTest, TellsWhatOneReportLacks)
{
    EXPECT_EQ(DescribeReport(0, "", {3, 3}), "1 report written");
    EXPECT_EQ(DescribeReport(0, "", {0, 0}), "Nobody is selected: the report written is empty");
    EXPECT_EQ(DescribeReport(711, "", {11, 3}), "Cancelled after 3 of 11 employees");
    EXPECT_EQ(DescribeReport(710, "without Al: in use", {3, 3}), "The report is not complete: error 710, without Al: in use");
    EXPECT_EQ(DescribeReport(503, "", {0, 0}), "The report was not written: error 503");
    EXPECT_EQ(DescribeGaps(0, ""), "");
    EXPECT_EQ(DescribeGaps(702, ""), "This report is not complete: error 702.");
    EXPECT_EQ(DescribeGaps(710, "without Al: in use"), "This report is not complete: error 710. Without Al: in use.");
}

} // namespace

} // namespace ptk
