#include "shell/CFile.h"

#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace ptk;

namespace {

class CFileTest : public testing::Test
{
protected:
    std::string Path(const std::string& name = "a.txt") const { return folder.Path() + "\\system\\" + name; }

    TemporaryFolder folder;
    FixedClock clock{DateTime({2003, 3, 5}, {8, 5, 9})};
    CFile file{clock};
};

TEST_F(CFileTest, OpensForReadingUnlessTheModeIsOneOrTwo)
{
    struct Case
    {
        const char* name;
        Value mode;
        const char* expected;
    };
    WriteBytes(Path(), "");
    for (const Case& c :
         {Case{"missing", {}, "0"}, Case{"7", 7, "0"}, Case{"a word", "abc", "0"}, Case{"negative", -1, "0"}, Case{"just above", 2.25, "0"},
          Case{"huge", 1e300, "0"}, Case{"true is -1", true, "0"}, Case{"a date", DateTime::FromSeconds(86400), "0"}, Case{"1", 1, "1"},
          Case{"2", std::int16_t{2}, "2"}, Case{"number text", " 1 ", "1"}}) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(file.OpenFile(Path(), c.mode));
        EXPECT_EQ(file.FileMode(), c.expected);
        EXPECT_TRUE(file.CloseFile());
        EXPECT_FALSE(file.FileOpen());
    }
}

TEST_F(CFileTest, ReadsItemsUpToCommasAndLineEnds)
{
    WriteBytes(Path(), "a,b\r\nc\r\n  \"x, y\"\r\n");
    ASSERT_TRUE(file.OpenFile(Path()));
    for (const char* expected : {"a", "b", "c", "x, y"}) {
        EXPECT_EQ(file.ReadLine(), expected);
        EXPECT_FALSE(file.EndOfFile());
    }
    EXPECT_EQ(file.ReadLine(), "EOF");
    EXPECT_TRUE(file.EndOfFile());
    EXPECT_EQ(file.ErrorNumber(), 0);
}

TEST_F(CFileTest, RefusesWhatTheModeOrAClosedFileDoesNotAllow)
{
    EXPECT_EQ(file.FileName(), "C:\\default.txt");
    EXPECT_EQ(file.ReadLine(), "");
    EXPECT_EQ(file.ErrorNumber(), 503);
    EXPECT_EQ(file.ErrorDescription(), "The file cannot be read from because it is not open.");
    EXPECT_FALSE(file.WriteLine("x"));
    EXPECT_EQ(file.ErrorNumber(), 503);
    EXPECT_EQ(file.ErrorDescription(), "The file cannot be written to because it is not open.");

    for (const int mode : {1, 2}) {
        ASSERT_TRUE(file.OpenFile(Path(), mode));
        EXPECT_EQ(file.ErrorNumber(), 0);
        EXPECT_EQ(file.ReadLine(), "");
        EXPECT_EQ(file.ErrorNumber(), 504);
        EXPECT_EQ(file.ErrorDescription(), "The file cannot be read from because it is open in write mode or append mode.");
        EXPECT_TRUE(file.CloseFile());
    }
    ASSERT_TRUE(file.OpenFile(Path(), 0));
    EXPECT_FALSE(file.WriteDateTime());
    EXPECT_EQ(file.ErrorNumber(), 505);
    EXPECT_EQ(file.ErrorDescription(), "The file cannot be written to because it is open in read-only mode.");
    EXPECT_FALSE(file.WriteHeader("x"));
    EXPECT_EQ(file.ErrorNumber(), 505);
}

TEST_F(CFileTest, WritesLinesHeadersAndTheTime)
{
    ASSERT_TRUE(file.OpenFile(Path(), 1));
    EXPECT_TRUE(file.WriteLine("one", "notes"));
    EXPECT_TRUE(file.WriteLine("two, ", "noted", true));
    EXPECT_TRUE(file.WriteHeader("PTK"));
    EXPECT_FALSE(file.WriteDateTime()) << "false although it was written";
    EXPECT_EQ(file.ErrorNumber(), 0);
    EXPECT_TRUE(file.CloseFile());
    ASSERT_TRUE(file.OpenFile(Path(), 2));
    EXPECT_TRUE(file.WriteLine("appended"));
    EXPECT_EQ(ReadBytes(Path()), "one\r\ntwo, noted\r\n\r\n[PTK]\r\n3/5/2003 8:05:09 AM\r\nappended\r\n") << "also before it is closed";

    CFile truncating;
    ASSERT_TRUE(truncating.OpenFile(Path(), 1));
    EXPECT_EQ(ReadBytes(Path()), "");
}

TEST_F(CFileTest, TellsThePlatformsFailures)
{
    EXPECT_FALSE(file.OpenFile(Path("missing.txt"), 0));
    EXPECT_EQ(file.ErrorNumber(), 53);
    EXPECT_EQ(file.ErrorDescription(), "There has been an error opening the file.\r\n\r\nError Number: 53\r\nError: File not found");
    EXPECT_EQ(file.FileName(), Path("missing.txt"));
    EXPECT_FALSE(file.FileOpen());

    EXPECT_FALSE(file.OpenFile(Path("missing\\a.txt"), 1));
    EXPECT_EQ(file.ErrorNumber(), 76);

    EXPECT_FALSE(file.CloseFile());
    EXPECT_EQ(file.ErrorNumber(), 52);
    EXPECT_TRUE(file.ErrorDescription().starts_with("There has been an error closing the file.\r\n\r\nError Number: 52\r\nError: "));

    EXPECT_FALSE(file.OpenFile("/dev/null", 1));
    EXPECT_EQ(file.ErrorNumber(), 75) << "no regular file";

    ASSERT_TRUE(file.OpenFile(Path(), 1));
    EXPECT_EQ(file.ReadLine(), "");
    EXPECT_EQ(file.ErrorNumber(), 504);
    EXPECT_TRUE(file.CloseFile());
    EXPECT_EQ(file.ErrorNumber(), 0) << "what went wrong before is not the closing's";

    ASSERT_TRUE(file.OpenFile(Path(), 1));
    const FullDisk full;
    EXPECT_FALSE(file.WriteLine("x"));
    EXPECT_EQ(file.ErrorNumber(), 61) << "a full disk is told by the write that meets it";
    EXPECT_TRUE(file.ErrorDescription().starts_with("There has been an error opening the file.\r\n\r\nError Number: 61\r\nError: "));

    std::string path = "untouched";
    EXPECT_FALSE(file.GetTempFile(path));
    EXPECT_EQ(path, "untouched");
    EXPECT_EQ(file.ErrorNumber(), 61) << "the one operation that keeps the last error";
}

TEST_F(CFileTest, GivesItsNumberBackWhenDestroyedOrReopened)
{
    const auto numberOfAFreshFile = [this] {
        CFile fresh;
        EXPECT_TRUE(fresh.OpenFile(Path(), 1));
        return fresh.FileNumber();
    };
    const std::int32_t number = numberOfAFreshFile();
    EXPECT_EQ(numberOfAFreshFile(), number);

    ASSERT_TRUE(file.OpenFile(Path("first.txt"), 1));
    ASSERT_TRUE(file.OpenFile(Path("second.txt"), 1));
    EXPECT_NE(file.FileNumber(), number);
    EXPECT_EQ(numberOfAFreshFile(), number) << "the first file's number is free again";
    EXPECT_TRUE(file.WriteLine("x"));
    EXPECT_EQ(ReadBytes(Path("second.txt")), "x\r\n");
}

TEST_F(CFileTest, IsClosedEvenWhenClosingFails)
{
    const int next = ::dup(STDERR_FILENO); // the lowest free descriptor, which the file is to get
    ::close(next);
    ASSERT_TRUE(file.OpenFile(Path(), 1));
    ::close(next);
    EXPECT_FALSE(file.CloseFile());
    EXPECT_EQ(file.ErrorNumber(), 57);
    EXPECT_FALSE(file.FileOpen());

    CFile other;
    ASSERT_TRUE(other.OpenFile(Path("other.txt"), 1));
    EXPECT_EQ(other.FileNumber(), file.FileNumber());
    EXPECT_FALSE(file.WriteLine("astray"));
    EXPECT_EQ(file.ErrorNumber(), 503);
    EXPECT_FALSE(file.CloseFile());
    EXPECT_EQ(file.ErrorNumber(), 52);
    EXPECT_TRUE(other.WriteLine("kept"));
    EXPECT_EQ(ReadBytes(Path("other.txt")), "kept\r\n");
}

TEST_F(CFileTest, AnswersWhenNoFileNumberIsLeft)
{
    std::vector<std::unique_ptr<CFile>> files;
    do {
        files.push_back(std::make_unique<CFile>());
    } while (files.size() < 600 && files.back()->OpenFile(Path(), 2));
    EXPECT_EQ(files.size(), 512U);
    EXPECT_EQ(files.back()->ErrorNumber(), 503);
}

} // namespace
