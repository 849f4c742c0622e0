#include "platform/files/LineFile.h"

#include "support/Failures.h"
#include "support/Files.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace ptk;

namespace {

std::vector<std::string> Items(const std::string& path)
{
    const std::int32_t number = linefile::FreeNumber();
    linefile::Open(number, path, linefile::Mode::Read);
    std::vector<std::string> items;
    while (!linefile::AtEnd(number)) {
        items.push_back(linefile::ReadItem(number));
    }
    EXPECT_EQ(FailureOf([&] { (void)linefile::ReadItem(number); }), failure::InputPastEnd);
    linefile::Close(number);
    return items;
}

TEST(LineFileTest, SplitsAtCommasAndLineEnds)
{
    struct Case
    {
        const char* name;
        std::string bytes;
        std::vector<std::string> items;
    };
    const TemporaryFolder folder;
    for (const Case& c :
         {Case{"empty", "", {}}, Case{"no line end", "a", {"a"}}, Case{"comma", "a,b\r\nc\r\n", {"a", "b", "c"}},
          Case{"all line ends", "a\rb\nc\r\nd\n\re", {"a", "b", "c", "d", "", "e"}}, Case{"empty lines", "\r\n\r\n", {"", ""}},
          Case{"blanks in front", "  a \n", {"a "}}, Case{"quotes", "\"a,b\",c\n", {"a,b", "c"}},
          Case{"text after a quote", "\"a\" x,b\n", {"a", "b"}}, Case{"quote within", "a\"b\n", {"a\"b"}},
          Case{"unclosed quote", "\"a\nb", {"a\nb"}}, Case{"comma at the end", "a,\nb\n", {"a", "", "b"}},
          Case{"zero bytes", std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
          Case{"over the buffer's edge", std::string(16383, 'x') + "\r\ny", {std::string(16383, 'x'), "y"}},
          Case{"a very long line", std::string(300000, 'x'), {std::string(300000, 'x')}}}) {
        SCOPED_TRACE(c.name);
        WriteBytes(folder.Path() + "/t", c.bytes);
        EXPECT_EQ(Items(folder.Path() + "/t"), c.items);
    }
}

TEST(LineFileTest, WritesAppendsAndTruncates)
{
    using linefile::Mode;
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "\\reports\\a.txt";
    const auto write = [&](Mode mode, const char* text) {
        const std::int32_t number = linefile::FreeNumber();
        linefile::Open(number, path, mode);
        linefile::Write(number, text);
        linefile::Close(number);
    };
    write(Mode::Append, "one");
    write(Mode::Append, "two");
    EXPECT_EQ(ReadBytes(path), "onetwo");
    write(Mode::Write, "3");
    EXPECT_EQ(ReadBytes(path), "3");

    const std::int32_t number = linefile::FreeNumber();
    linefile::Open(number, path, Mode::Write);
    linefile::Write(number, "mine ");
    write(Mode::Append, "another's ");
    linefile::Write(number, "mine");
    linefile::Close(number);
    EXPECT_EQ(ReadBytes(path), "mine another's mine") << "two writers lose nothing of each other's";
}

TEST(LineFileTest, NumbersItsFailures)
{
    using linefile::Mode;
    const TemporaryFolder folder;
    ::mkfifo((folder.Path() + "/pipe").c_str(), 0600);
    struct Case
    {
        const char* name;
        std::string path;
        Mode mode;
        std::int32_t expected;
    };
    for (const Case& c : {Case{"no name", "", Mode::Read, failure::BadFileNumber},
                          Case{"no file", folder.Path() + "/none", Mode::Read, failure::FileNotFound},
                          Case{"no folder", folder.Path() + "/none/a", Mode::Write, failure::PathNotFound},
                          Case{"a folder to write", folder.Path() + "/reports", Mode::Write, failure::PathFileAccess},
                          Case{"a folder to read", folder.Path() + "/reports", Mode::Read, failure::PathFileAccess},
                          Case{"a pipe to write", folder.Path() + "/pipe", Mode::Append, failure::PathFileAccess},
                          Case{"a pipe to read", folder.Path() + "/pipe", Mode::Read, failure::PathFileAccess},
                          Case{"a device", "/dev/full", Mode::Write, failure::PathFileAccess}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(FailureOf([&] { linefile::Open(linefile::FreeNumber(), c.path, c.mode); }), c.expected);
    }
    const std::int32_t number = linefile::FreeNumber();
    linefile::Open(number, folder.Path() + "/a", Mode::Write);
    EXPECT_NE(linefile::FreeNumber(), number);
    {
        const FullDisk full;
        EXPECT_EQ(FailureOf([&] { linefile::Write(number, "x"); }), failure::DiskFull);
    }
    EXPECT_EQ(FailureOf([&] { linefile::Open(number, folder.Path() + "/a", Mode::Write); }), failure::FileAlreadyOpen);
    linefile::Close(number);
    EXPECT_EQ(FailureOf([&] { linefile::Close(number); }), failure::BadFileNumber);
    EXPECT_EQ(FailureOf([&] { linefile::Open(512, folder.Path() + "/a", Mode::Write); }), failure::BadFileNumber);
}

TEST(LineFileTest, KeepsItsFilesForTheirOwner)
{
    const TemporaryFolder folder;
    const auto open = [&](const std::string& name, linefile::Mode mode) {
        const std::int32_t number = linefile::FreeNumber();
        linefile::Open(number, folder.Path() + name, mode);
        linefile::Close(number);
        return ModeOf(folder.Path() + name);
    };
    for (const mode_t mask : {mode_t{0}, mode_t{0777}}) {
        ::umask(mask);
        EXPECT_EQ(open("/written" + std::to_string(mask), linefile::Mode::Write), 0600);
        EXPECT_EQ(open("/appended" + std::to_string(mask), linefile::Mode::Append), 0600);
    }
    ::umask(022);
    WriteBytes(folder.Path() + "/shared", "");
    EXPECT_EQ(open("/shared", linefile::Mode::Write), 0644) << "an existing one keeps its mode";
}

TEST(LineFileTest, RunsOutOfNumbersAfter511)
{
    const TemporaryFolder folder;
    std::vector<std::int32_t> taken;
    for (std::int32_t number = linefile::FreeNumber(); number != 0; number = linefile::FreeNumber()) {
        linefile::Open(number, folder.Path() + "/a", linefile::Mode::Append);
        taken.push_back(number);
    }
    EXPECT_EQ(taken.size(), 511U);
    for (const std::int32_t number : taken) {
        linefile::Close(number);
    }
    EXPECT_EQ(linefile::FreeNumber(), 1);
}

// Failures that a test cannot bring about on every machine.
TEST(FailureTest, NumbersTheSystemsErrors)
{
    for (const auto& [error, number] : {std::pair{EACCES, 70}, {EROFS, 70}, {EMFILE, 67}, {EIO, 57}, {EDQUOT, 61}, {ENOTDIR, 76}}) {
        EXPECT_EQ(Failure::FromErrno(error).Number(), number);
        EXPECT_EQ(Failure::FromErrno(error).LastSystemError(), error);
    }
}

TEST(FailureTest, IsCapturedWhileItIsHandled)
{
    EXPECT_EQ(CurrentFailure().Number(), 0);
    const auto captured = [](const auto& raise) {
        try {
            raise();
        } catch (...) {
            return CurrentFailure();
        }
        return Failure(0, "", "");
    };
    EXPECT_EQ(captured([] { throw Failure(failure::NoCurrentRecord); }).Description(), "No current record");
    EXPECT_EQ(captured([] { throw std::bad_alloc(); }).Number(), failure::OutOfMemory);
    EXPECT_EQ(captured([] { throw std::runtime_error("odd"); }).Description(), "odd");
    EXPECT_EQ(captured([] { throw 1; }).Number(), failure::InvalidProcedureCall);
}

} // namespace
