// Reports really printed: through the system's own print command, a scheduler started for the test, and a printer that makes PDF files.
#include "platform/system/SystemShell.h"
#include "reports/ReportFixture.h"

#include <pwd.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <sstream>
#include <thread>

namespace ptk {

namespace {

using namespace std::chrono_literals;

class PrintingDesktop final : public RecordingDesktop
{
public:
    std::int32_t Print(const DesktopWindow&, const std::string& path, const std::string& title) override
    {
        return RunSystemShell(ShellVerb::Print, path, title, refusal);
    }
};

class PrintScheduler
{
public:
    PrintScheduler()
    {
        running = std::system((SourceFolder() + "/tests/printing/start_cups.sh " + folder.Path()).c_str()) == 0;
        setenv("CUPS_SERVER", (folder.Path() + "/cups.sock").c_str(), 1);
    }
    ~PrintScheduler()
    {
        unsetenv("CUPS_SERVER");
        pid_t pid = 0;
        if (std::ifstream(folder.Path() + "/pid") >> pid && pid > 1) {
            kill(pid, SIGTERM);
        }
    }
    PrintScheduler(const PrintScheduler&) = delete;
    PrintScheduler& operator=(const PrintScheduler&) = delete;

    bool running = false;

private:
    TemporaryFolder folder;
};

std::string OutputOf(const std::string& command)
{
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
        output += static_cast<char>(c);
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

// The lines that are not empty, as a reader of the paper reads them: any room between two words is one blank. Rules are drawn, not written.
std::vector<std::string> ReadLines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string raw; std::getline(in, raw);) {
        std::istringstream words(raw);
        std::string line;
        for (std::string word; words >> word;) {
            line += (line.empty() ? "" : " ") + word;
        }
        if (!line.empty() && line.find_first_not_of('-') != std::string::npos) {
            lines.push_back(line);
        }
    }
    return lines;
}

// With the foot of the one page.
std::vector<std::string> Printed(const std::string& text)
{
    return ReadLines(text + "Printed 3/20/2003 Page 1 of 1");
}

class PrintingTest : public ReportTest
{
protected:
    std::shared_ptr<Report> NewPrintable(ReportKind kind)
    {
        return EntryOf(kind).make({folder.Path(), printer, clock, viewers, factory, &window});
    }

    static std::set<std::filesystem::path> Printouts()
    {
        const std::filesystem::path printouts = std::filesystem::path(getpwuid(getuid())->pw_dir) / "PDF";
        std::set<std::filesystem::path> files;
        if (std::filesystem::is_directory(printouts)) {
            files.insert(std::filesystem::directory_iterator(printouts), {});
        }
        return files;
    }

    // What came out of the printer, as text; the file is removed.
    std::string PrintedText(Report& report)
    {
        const auto before = Printouts();
        EXPECT_TRUE(report.PrintReport());
        for (int tries = 0; tries < 300; ++tries, std::this_thread::sleep_for(100ms)) {
            for (const auto& file : Printouts()) {
                if (before.count(file) != 0 || file.extension() != ".pdf") {
                    continue;
                }
                std::this_thread::sleep_for(300ms); // the printer may still be writing it
                EXPECT_EQ(file.filename().string().find("Employee_"), 0U) << "it goes by the report's title: " << file;
                std::string text = OutputOf("pdftotext -layout '" + file.string() + "' -");
                std::filesystem::remove(file);
                return text;
            }
        }
        ADD_FAILURE() << "nothing was printed";
        return "";
    }

    PrintingDesktop printer;
};

TEST_F(PrintingTest, APrintedReportHoldsItsLinesUncut)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "the PDF printer's backend runs as root only";
    }
    const PrintScheduler scheduler;
    ASSERT_TRUE(scheduler.running);

    AddShifts();
    const auto card = NewPrintable(ReportKind::TimeCard);
    ASSERT_TRUE(card->Generate(Of({ann})));
    EXPECT_EQ(ReadLines(PrintedText(*card)), Printed(Golden("time_card.txt")));

    ann->Address1(std::string(31, 'W') + "!");  // a right column that reaches character 72
    zorn->Address1(std::string(40, 'M') + "!"); // and beyond it, as far as either paper holds
    const auto book = NewPrintable(ReportKind::PhoneBook);
    ASSERT_TRUE(book->Generate(Of({jose, ann, ann, zorn})));
    EXPECT_EQ(ReadLines(PrintedText(*book)), Printed(viewers.made.back()->text));
    EXPECT_TRUE(printer.boxes.empty());
}

TEST_F(PrintingTest, WithoutASchedulerItFailsSoonAndQuietly)
{
    setenv("CUPS_SERVER", (folder.Path() + "/nobody.sock").c_str(), 1);
    const auto report = NewPrintable(ReportKind::Employee);
    ASSERT_TRUE(report->Generate(Of({ann})));
    const auto started = std::chrono::steady_clock::now();
    EXPECT_FALSE(report->PrintReport());
    EXPECT_EQ(report->Refusal(), "the print scheduler is not running");
    EXPECT_LT(std::chrono::steady_clock::now() - started, 10s);
    EXPECT_TRUE(printer.boxes.empty());
    unsetenv("CUPS_SERVER");
}

} // namespace

} // namespace ptk
