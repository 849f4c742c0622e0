// Every command of the console while the machine runs out of something at one call after the other. None crashes; what is stored is what
// was there or what the command was to store; a sentence and a status say so; and the same process does it right as soon as there is plenty
// again.
//
// A sample of the calls, or each PTK_SCARCE-th of them: PTK_SCARCE=1 tries them all, which takes hours.
#include "console/Arguments.h"
#include "console/Program.h"
#include "faults/ScarceBusiness.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <streambuf>

namespace ptk {

namespace {

constexpr std::int64_t kTriesOfSample = 1; // of each command, each want, and each way to run out
constexpr int kRefused = 1;
constexpr std::int64_t kSlack = 20; // calls between the words as they are given and as they are read

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
        std::filesystem::copy_file(m_business.Database(), m_business.Path("sound.mdb"));
        RawDatabase(m_business.Path("sound.mdb")).Run("UPDATE Employee SET Phone = '55'");
        WriteBytes(m_business.Path("punches.csv"), "Number,Start,End\n7,03/04/2026 08:00,03/04/2026 17:00\n");
        WriteBytes(m_business.Path("employees.csv"), "Number,SSN,First Name,Last Name\n9,3,Cy,Day\n");
        m_business.PutBack();
    }

    std::vector<std::string> Words() const
    {
        std::vector<std::string> words = GetParam().words;
        words.insert(words.begin(), {"--program-folder", m_business.Folder()});
        return words;
    }

    int Run()
    {
        const std::vector<std::string> words = Words();
        m_out.Clear();
        m_err.Clear();
        std::ostream out(&m_out);
        std::ostream err(&m_err);
        return RunConsole(words, m_business.Clock(), out, err);
    }

    void TryAt(Scarce what, std::int64_t call, bool all, const std::string& done)
    {
        const Command& command = GetParam();
        RunOut(what, call, all);
        const int status = Run();
        Plenty();
        const std::string_view told = m_err.Text();
        EXPECT_TRUE(status == command.status || (status == kRefused && told.substr(0, 13) == "ptk-console: " && told.size() > 20))
            << status << ' ' << told;
        const std::string stored = m_business.Stored();
        EXPECT_TRUE(stored == done || (status == kRefused && stored == m_before)) << stored << status << ' ' << told;
        m_business.PutBack();
        EXPECT_EQ(Run(), command.status) << m_err.Text();
        EXPECT_EQ(m_business.Stored(), done);
        m_business.PutBack();
    }

    // Behind the reading of the command line, whose library ends the program where memory runs out.
    void TryWithout(Scarce what, const std::string& done)
    {
        const std::vector<std::string> words = Words();
        const std::int64_t read = CallsOf(what, [&] { static_cast<void>(ReadArguments(words, m_business.Clock().Today())); });
        const std::int64_t calls = CallsOf(what, [&] { Run(); });
        m_business.PutBack();
        TryCalls(what, what == Scarce::Memory ? read + kSlack : 0, calls, kTriesOfSample,
                 [&](std::int64_t call, bool all) { TryAt(what, call, all, done); });
    }

    ScarceBusiness m_business;
    std::string m_before;
    Fixed m_out;
    Fixed m_err;
};

TEST_P(ScarcityTest, SaysSoStoresAllOrNothingAndGoesOnAfterwards)
{
    m_before = m_business.Stored();
    ASSERT_EQ(Run(), GetParam().status) << m_err.Text();
    const std::string done = m_business.Stored();
    EXPECT_EQ(done != m_before, GetParam().writes);
    m_business.PutBack();
    for (std::size_t what = 0; what < kScarceNames.size(); ++what) {
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
