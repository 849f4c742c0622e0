// Pages as PDF files, read back by another program.
#include "reports/forms/PdfRenderer.h"
#include "reports/ReportFixture.h"

#include <algorithm>
#include <cstdio>

namespace ptk {

namespace {

// Each page's text, laid out as on the paper.
std::vector<std::string> PagesOf(const std::string& pdf, const TemporaryFolder& folder, const std::string& reader = "pdftotext -layout")
{
    const std::string file = folder.Path() + "/pages.pdf";
    WriteBytes(file, pdf);
    std::string output;
    FILE* pipe = popen((reader + " " + file + (reader == "pdfinfo" ? "" : " -")).c_str(), "r");
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
        output += static_cast<char>(c);
    }
    EXPECT_EQ(pclose(pipe), 0);
    std::vector<std::string> pages;
    for (std::size_t end = output.find('\f'); end != std::string::npos; end = output.find('\f')) {
        pages.push_back(output.substr(0, end));
        output.erase(0, end + 1);
    }
    pages.push_back(output);
    return pages;
}

std::size_t Count(const std::string& text, const std::string& words)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1)) {
        ++count;
    }
    return count;
}

class PdfRendererTest : public ReportTest
{
protected:
    std::string Pdf(const Report& report, PaperSize paper = PaperSize::Letter) const
    {
        return PdfOf({&report.Document(), 1}, paper, clock.Now());
    }

    std::vector<std::string> Read(const Report& report) const
    {
        auto pages = PagesOf(Pdf(report), folder);
        EXPECT_EQ(pages.back(), "");
        pages.pop_back();
        return pages;
    }
};

TEST_F(PdfRendererTest, ACardOfAYearHasItsHeadingOnEachPageAndItsTotalUnderItsLastShifts)
{
    for (int day = 0; day < 120; ++day) {
        const DateTime start = DateTime({2003, 1, 1}, {8, 0, 0}).AddDays(day);
        AddShift(*ann, start, DateTime::FromSeconds(start.Seconds() + 14400));
    }
    const auto report = New(ReportKind::TimeCard);
    ReportRequest request = Of({ann});
    request.to = DateTime({2003, 5, 1});
    ASSERT_TRUE(report->Generate(request));
    const auto pages = Read(*report);
    ASSERT_EQ(pages.size(), 3U);
    std::size_t shifts = 0;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_EQ(pages[i].find("Employee Time Card : Ann Lee : 1/1/2003 - 4/30/2003\n"), 0U) << pages[i];
        EXPECT_EQ(Count(pages[i], "\n        Start Time "), 1U) << pages[i];
        EXPECT_NE(pages[i].find("Printed 3/20/2003"), std::string::npos);
        EXPECT_NE(pages[i].find("Page " + std::to_string(i + 1) + " of 3\n"), std::string::npos);
        EXPECT_EQ(Count(pages[i], "Gross Pay:"), i == 2 ? 1U : 0U);
        EXPECT_EQ(Count(pages[i], "Manager Signature"), i == 2 ? 1U : 0U);
        shifts += Count(pages[i], "2003 08:00 AM");
    }
    EXPECT_EQ(shifts, 120U);
    EXPECT_GT(Count(pages[2], "2003 08:00 AM"), 0U);
}

TEST_F(PdfRendererTest, NoEmployeeOfAReviewIsTorn)
{
    std::vector<std::shared_ptr<CEmployee>> staff;
    for (int i = 1; i <= 40; ++i) {
        staff.push_back(Named(i, "Employee", std::to_string(1000 + i)));
        AddShift(*staff.back(), DateTime({2003, 1, 2}, {8, 0, 0}), DateTime({2003, 1, 2}, {8 + i % 9, 30, 0}));
    }
    const auto report = New(ReportKind::Review);
    ASSERT_TRUE(report->Generate(Of(staff)));
    std::size_t told = 0;
    for (const std::string& page : Read(*report)) {
        const std::size_t names = Count(page, "Name: Employee 10");
        EXPECT_EQ(names, told < 39 ? 3U : 1U) << page;
        EXPECT_EQ(Count(page, "Gross Pay:"), names) << page;
        told += names;
    }
    EXPECT_EQ(told, 40U);
}

TEST_F(PdfRendererTest, HoldsNamesOfAnyScriptInTheirColumns)
{
    std::vector<std::pair<std::string, std::string>> names{{"Мария", "Кузнецова"}, {"Γιώργος", "Παπαδόπουλος"}, {"José", "Ünsal"}};
    if (std::system("fc-list :lang=zh-cn | grep -q .") == 0) {
        names.emplace_back("伟", "张"); // needs a typeface that a small machine does not have
    }
    for (const auto& [given, family] : names) {
        const auto report = New(ReportKind::PhoneBook);
        ASSERT_TRUE(report->Generate(Of({Named(1, given, family), ann})));
        const std::string page = Read(*report).front();
        EXPECT_EQ(page.find(family), page.find(given) - family.size() - 2) << page;
        const auto columns = [&](const std::string& words) { return page.find(words) - page.rfind('\n', page.find(words)); };
        EXPECT_EQ(columns("12 Oak Street"), columns("Springfield")) << page;
    }
}

TEST_F(PdfRendererTest, IsMadeOfItsDocumentsAndTheMomentAlone)
{
    AddShifts();
    const auto card = New(ReportKind::TimeCard);
    ASSERT_TRUE(card->Generate(Of({ann})));
    const std::string pdf = Pdf(*card);
    EXPECT_EQ(pdf, Pdf(*card));
    EXPECT_NE(pdf, Pdf(*card, PaperSize::A4));
    const std::string letter = PagesOf(pdf, folder, "pdfinfo").front();
    EXPECT_NE(letter.find("Title:           Employee Time Card : Ann Lee : 1/1/2003 - 1/15/2003\n"), std::string::npos) << letter;
    EXPECT_NE(letter.find("CreationDate:    Thu Mar 20 09:30:00 2003"), std::string::npos) << letter;
    EXPECT_NE(letter.find("612 x 792 pts (letter)"), std::string::npos) << letter;
    EXPECT_NE(PagesOf(Pdf(*card, PaperSize::A4), folder, "pdfinfo").front().find("(A4)"), std::string::npos);
    ::setenv("SOURCE_DATE_EPOCH", "1047940200", 1);
    const std::string reproducible = PagesOf(Pdf(*card), folder, "pdfinfo").front();
    ::unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_NE(reproducible.find("CreationDate:    Mon Mar 17 22:30:00 2003"), std::string::npos) << reproducible;

    const auto other = New(ReportKind::TimeCard);
    ASSERT_TRUE(other->Generate(Of({zorn})));
    const auto pages = PagesOf(PdfOf(std::vector{card->Document(), other->Document()}, PaperSize::Letter, clock.Now()), folder);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_NE(pages[1].find("Page 1 of 1"), std::string::npos) << "each card is a paper of its own";
}

} // namespace

} // namespace ptk
