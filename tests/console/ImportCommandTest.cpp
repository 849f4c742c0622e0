#include "console/ConsoleFixture.h"
#include "support/OldDatabase.h"

#include <algorithm>

namespace ptk {

namespace {

class ImportCommandTest : public ConsoleTest
{
protected:
    std::string Old() const { return (Folder() / "old.mdb").string(); }

    // Its words behind the file, and what it answers with.
    void Expect(std::vector<std::string> words, int status, const std::string& err)
    {
        words.insert(words.begin(), {"import", Old()});
        const Answer answer = Run(words);
        EXPECT_EQ(answer.status, status) << answer.err;
        EXPECT_EQ(answer.err, err);
    }
};

TEST_F(ImportCommandTest, EndsWithTheStatusThatTellsWhatBecameOfIt)
{
    const char* const damaged =
        "ptk-console: the file shows signs of damage (1); nothing was changed. What can still be read is only taken "
        "where that is accepted (--accept-damaged)\n";
    Expect({}, 1, "ptk-console: " + Old() + ": there is no such file\n");
    WriteOldDatabase(Old(), 2);
    Expect({"--dry-run"}, 1, damaged);
    Expect({}, 1, damaged);
    Expect({"--dry-run", "--accept-damaged"}, 3, "");
    EXPECT_FALSE(std::filesystem::exists(Database()));
    Expect({"--accept-damaged"}, 3, "");
    std::filesystem::remove(Database());
    WriteOldDatabase(Old(), 1);
    Expect({"--dry-run"}, 0, "");
    Expect({"--code-page", "437"}, 0, "");
    EXPECT_NE(Run({"report", "phonebook"}).out.find("Jos\u0398, Jos\u0398"), std::string::npos);
    // Six hours and the break's part.
    EXPECT_NE(Run({"time-card", "--employee", "Jos\u0398 Jos\u0398", "--from", "1/14/2004", "--to", "1/14/2004"}).out.find("5.97"),
              std::string::npos);
    Expect({}, 1,
           "ptk-console: the database already holds companies, employees, time records or paydays; an older database can only be brought "
           "along into "
           "one that is still empty\n");
    for (const char* page : {"1", "437x", "99999999999", ""}) {
        EXPECT_EQ(Run({"import", Old(), "--code-page", page}).status, 2) << page;
    }
    EXPECT_EQ(Run({"import"}).status, 2);
}

TEST_F(ImportCommandTest, PrintsTheAccountThatItKeeps)
{
    WriteOldDatabase(Old(), 1);
    std::string printed = Run({"import", Old(), "--dry-run"}).out;
    EXPECT_EQ(Run({"import", Old()}).out, printed);
    EXPECT_NE(printed.find("TimeRecord from TimeRecord: found 1, taken 1, left out 0\n"), std::string::npos) << printed;
    EXPECT_NE(printed.find("_System from (no such table): found 0, taken 0, left out 0\n"), std::string::npos) << printed;
    std::string kept = ReadBytes((Folder() / "reports" / "Import_2026-03-20_093000.txt").string());
    EXPECT_EQ(std::erase(kept, '\r'), std::count(printed.begin(), printed.end(), '\n'));
    EXPECT_EQ(kept, printed);
}

} // namespace

} // namespace ptk
