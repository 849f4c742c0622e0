// Every command of the console while the machine runs out of something at one call after the other. None crashes; what is stored is what
// was there or what the command was to store; a sentence and a status say so; and the same process does it right as soon as there is plenty
// again.
//
// A sample of the calls, or each PTK_SCARCE-th of them: PTK_SCARCE=1 tries them all, which takes hours.
#include "faults/Scarcity.h"
#include "console/Arguments.h"
#include "console/Program.h"
#include "store/RawDatabase.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/OldDatabase.h"
#include "support/Sources.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <iostream>
#include <ostream>
#include <streambuf>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kTriesOfSample = 4; // of each command, each want, and each way to run out
constexpr std::int64_t kMostCalls = 2'000'000;
constexpr int kRefused = 1;
constexpr std::int64_t kSlack = 20; // calls between the words as they are given and as they are read

constexpr std::array kNames{"Memory", "Read", "ShortRead", "Interrupted", "Open", "Forbidden", "Lock", "Look"}; // by Scarce

// Takes no memory.
class Fixed : public std::streambuf
{
public:
    Fixed() { Clear(); }
    void Clear() { setp(m_bytes.data(), m_bytes.data() + m_bytes.size()); }
    std::string_view Text() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }

private:
    std::array<char, 1U << 20U> m_bytes{};
};

struct Command
{
    const char* name;
    std::vector<std::string> words;
    int status = 0;
    bool writes = false; // the database
};

void PrintTo(const Command& command, std::ostream* out)
{
    *out << command.name;
}

std::vector<Command> Commands()
{
    const auto with = [](std::vector<std::string> words) {
        words.insert(words.end(), {"--from", "3/1/2026", "--to", "3/14/2026"});
        return words;
    };
    return {
        {"check", {"check"}},
        {"timecard", with({"time-card", "--employee", "Ann Lee"})},
        {"overview", with({"overview", "--format", "json", "--remedies"}), 3},
        {"history", {"history", "--format", "csv"}},
        {"review", with({"report", "review", "--format", "csv"})},
        {"pages", with({"report", "timecard", "--employee", "Ann Lee", "--format", "pdf", "-o", "out.pdf"})},
        {"close", with({"payday", "close", "--employee", "Ann Lee"}), 0, true},
        {"account", with({"payday", "account", "--format", "json"})},
        {"backup", {"backup"}},
        {"backups", {"backups"}},
        {"restore", {"restore", "sound.mdb"}, 0, true},
        {"punches", {"import-punches", "punches.csv"}, 0, true},
        {"employees", {"import-employees", "employees.csv"}, 0, true},
        {"person", {"person", "Ann Lee"}},
        {"kept", {"kept", "--years", "1"}},
        {"profiles", {"profiles"}},
    };
}

class ScarcityTest : public testing::TestWithParam<Command>
{
protected:
    ScarcityTest()
    {
        fs::copy_file(SourceFolder() + "/data/ptk_11.cfg", Path("system/ptk_11.cfg"));
        fs::current_path(m_folder.Path());
        EXPECT_EQ(Run({"create-database"}), 0);
        RawDatabase(m_database)
            .Run("INSERT INTO Employee (EmployeeNumber, SSNumber, FirstName, LastName, PayRate, OvertimePayRate, Active, AutoDeduct, "
                 "AutoDeductLunchLength, "
                 "AutoDeductBreakLength, CompanyID) VALUES (7, '1', 'Ann', 'Lee', 10, 15, 1, 0, 0, 0, 0), (8, '2', 'Bo', 'Kim', 10, 15, 1, "
                 "0, 0, 0, 0);"
                 "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2026-03-02 08:00:00', '2026-03-02 16:00:00'), "
                 "(41, '2026-03-03 08:00:00', '1899-12-30 00:00:00')");
        m_bytes = ReadBytes(m_database);
        RawDatabase(m_database).Run("UPDATE Employee SET Phone = '55'");
        fs::copy_file(m_database, Path("sound.mdb"));
        WriteBytes(Path("punches.csv"), "Number,Start,End\n7,03/04/2026 08:00,03/04/2026 17:00\n");
        WriteBytes(Path("employees.csv"), "Number,SSN,First Name,Last Name\n9,3,Cy,Day\n");
        PutBack();
    }
    ~ScarcityTest() override { Plenty(); }

    int Run(std::vector<std::string> words)
    {
        words.insert(words.begin(), {"--program-folder", m_folder.Path()});
        m_out.Clear();
        m_err.Clear();
        std::ostream out(&m_out);
        std::ostream err(&m_err);
        return RunConsole(words, m_clock, out, err);
    }

    // All that people are paid by, and whether the file is whole.
    std::string Stored() const
    {
        return RawDatabase(m_database)
            .Rows("SELECT EmployeeID, LastName, Phone, EmployeeNumber FROM Employee; SELECT * FROM TimeRecord; SELECT EmployeeID, FromDay, "
                  "ToDay, Gross FROM "
                  "_Payday; SELECT COUNT(*) FROM _Change; SELECT COUNT(*) FROM _Session WHERE user IS NOT NULL; PRAGMA integrity_check");
    }

    void PutBack() const
    {
        for (const char* left : {"system/ptk_11.mdb-journal", "out.pdf"}) {
            fs::remove(Path(left));
        }
        fs::remove_all(Path("backups"));
        fs::remove_all(Path("reports"));
        fs::create_directory(Path("reports"));
        WriteBytes(m_database, m_bytes);
    }

    // With the failure at that call.
    void TryAt(Scarce what, std::int64_t call, bool all, const std::string& done)
    {
        const Command& command = GetParam();
        SCOPED_TRACE(testing::Message() << kNames.at(static_cast<std::size_t>(what)) << " at call " << call
                                        << (all ? " and all behind it" : ""));
        RunOut(what, call, all);
        const int status = Run(command.words);
        Plenty();
        const std::string_view told = m_err.Text();
        EXPECT_TRUE(status == command.status || (status == kRefused && told.substr(0, 13) == "ptk-console: " && told.size() > 20))
            << status << ' ' << told;
        const std::string stored = Stored();
        EXPECT_TRUE(stored == done || (status == kRefused && stored == m_before)) << stored << status << ' ' << told;
        PutBack();
        EXPECT_EQ(Run(command.words), command.status) << m_err.Text();
        EXPECT_EQ(Stored(), done);
        PutBack();
    }

    // How many calls of that kind some work makes.
    static std::int64_t CallsOf(Scarce what, const std::function<void()>& work)
    {
        RunOut(what, kMostCalls, false);
        work();
        Plenty();
        return CallsSeen();
    }

    // Behind the reading of the command line, whose library ends the program where memory runs out.
    void TryWithout(Scarce what, const std::string& done)
    {
        std::vector<std::string> words = GetParam().words;
        const std::int64_t read = CallsOf(what, [&] { static_cast<void>(ReadArguments(words, m_clock.Today())); });
        const std::int64_t first = what == Scarce::Memory ? read + kSlack : 0;
        const std::int64_t calls = CallsOf(what, [&] { Run(words); });
        PutBack();
        const char* const wanted = std::getenv("PTK_SCARCE");
        const std::int64_t step = wanted != nullptr ? std::atoll(wanted) : std::max<std::int64_t>(1, (calls - first) / kTriesOfSample);
        int tried = 0;
        for (const bool all : {false, true}) {
            if (all && what == Scarce::Interrupted) {
                continue; // who is interrupted without end tries without end
            }
            for (std::int64_t call = first + 1 + step / 3; call <= calls && !HasFailure(); call += step) {
                TryAt(what, call, all, done);
                ++tried;
            }
        }
        std::cout << kNames.at(static_cast<std::size_t>(what)) << ": " << calls - first << " calls, " << tried << " tried\n";
    }

    std::string Path(const char* name) const { return m_folder.Path() + "/" + name; }

    FixedClock m_clock{DateTime(CalendarDate{2026, 3, 20}, TimeOfDay{9, 30, 0})};
    TemporaryFolder m_folder;
    std::string m_database = m_folder.Path() + "/system/ptk_11.mdb";
    std::string m_bytes; // of the database as it was
    std::string m_before;
    Fixed m_out;
    Fixed m_err;
};

TEST_P(ScarcityTest, SaysSoStoresAllOrNothingAndGoesOnAfterwards)
{
    m_before = Stored();
    ASSERT_EQ(Run(GetParam().words), GetParam().status) << m_err.Text();
    const std::string done = Stored();
    EXPECT_EQ(done != m_before, GetParam().writes);
    PutBack();
    for (std::size_t what = 0; what < kNames.size(); ++what) {
        TryWithout(static_cast<Scarce>(what), done);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, ScarcityTest, testing::ValuesIn(Commands()), [](const auto& of) { return of.param.name; });

} // namespace

} // namespace ptk

int main(int argc, char** argv)
{
    ptk::WatchMemoryOfEngine();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
