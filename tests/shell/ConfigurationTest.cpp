#include "platform/Failure.h"
#include "shell/CDatabaseLocator.h"
#include "shell/CFileAdaptor.h"
#include "support/Files.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace ptk;

namespace {

using Strings = std::vector<std::string>;

class ConfigurationTest : public testing::Test
{
protected:
    void Read(const std::string& bytes)
    {
        WriteBytes(path, bytes);
        ASSERT_TRUE(config->ReadFile(path));
    }

    Strings Lines()
    {
        Strings lines;
        for (std::int16_t position = 1; position <= config->FileLineCount(); ++position) {
            lines.push_back(config->GetLine(position));
        }
        return lines;
    }

    TemporaryFolder folder;
    std::string path = folder.Path() + "\\system\\ptk_11.cfg";
    std::shared_ptr<CFileAdaptor> config = std::make_shared<CFileAdaptor>(folder.Path());
};

TEST_F(ConfigurationTest, ReadsWhatCanBeReadAndCallsItASuccess)
{
    struct Case
    {
        const char* name;
        std::string bytes;
        Strings lines;
    };
    const std::string longValue(100000, 'x');
    for (const Case& c :
         {Case{"as shipped", "[PTK]\r\nA=<app.path>\\b\r\nShowLoginHelp=True\r\n", {"[PTK]", "A=<app.path>\\b", "ShowLoginHelp=True"}},
          Case{"a comma ends a line", "K=a,b\r\n", {"K=a", "b"}}, Case{"a line EOF is dropped", "a\r\nEOF\r\nb\r\n", {"a", "b"}},
          Case{"empty lines stay", "a\r\n\r\nb", {"a", "", "b"}}, Case{"any line end", "a\rb\nc", {"a", "b", "c"}},
          Case{"NUL bytes stay", std::string("a\0=b\r\n", 6), {std::string("a\0=b", 4)}},
          Case{"unclosed quote", "\"a\r\nb=1", {"a\r\nb=1"}}, Case{"empty file", "", {}},
          Case{"very long line", "K=" + longValue, {"K=" + longValue}}}) {
        SCOPED_TRACE(c.name);
        config = std::make_shared<CFileAdaptor>(folder.Path());
        Read(c.bytes);
        EXPECT_EQ(Lines(), c.lines);
    }
}

TEST_F(ConfigurationTest, AMissingFileReadsAsEmptyAndAMissingNameIsRefused)
{
    EXPECT_EQ(config->FileName(), path);
    EXPECT_TRUE(config->ReadFile(folder.Path() + "\\none.cfg"));
    EXPECT_EQ(config->FileName(), folder.Path() + "\\none.cfg");
    EXPECT_EQ(config->FileLineCount(), 0);
    EXPECT_EQ(config->FindKeyValue("DatabasePath"), "");
    EXPECT_TRUE(config->WriteFile(folder.Path() + "\\no folder\\none.cfg"));
    EXPECT_FALSE(config->ReadFile(""));
    EXPECT_FALSE(config->WriteFile(""));
    EXPECT_FALSE(config->PrintFile());
}

TEST_F(ConfigurationTest, ASecondReadingGoesInFrontOfTheFirst)
{
    Read("a\r\nb\r\n");
    Read("c\r\nEOF\r\nd\r\n");
    EXPECT_EQ(Lines(), (Strings{"c", "a", "d", "b"})) << "the dropped line counts as a position";
}

TEST_F(ConfigurationTest, ParsesTheLineItFetches)
{
    struct Case
    {
        const char* line;
        const char *header, *key, *value;
    };
    for (const Case& c : {Case{"[Section]", "Section", "", ""}, Case{"Key=1", "", "Key", "1"}, Case{"A=B=C", "", "A", "B=C"},
                          Case{"[]", "", "", ""}, Case{"[", "", "", ""}, Case{"[a=b]", "a=b", "[a", "b]"}, Case{"=", "", "", ""},
                          Case{" K = v ", "", " K ", " v "}, Case{"[open", "", "", ""}, Case{"free text", "", "", ""}}) {
        SCOPED_TRACE(c.line);
        config = std::make_shared<CFileAdaptor>(folder.Path());
        config->Header("old");
        config->KeyString("old");
        config->KeyValue("old");
        ASSERT_TRUE(config->InsertLine(c.line, 1));
        EXPECT_EQ(config->GetLine(1), c.line);
        EXPECT_EQ(config->Header(), c.header);
        EXPECT_EQ(config->KeyString(), c.key);
        EXPECT_EQ(config->KeyValue(), c.value);
    }
}

TEST_F(ConfigurationTest, FindsTextAnywhereButKeysExactly)
{
    Read("[Path]\r\nMyKey=Key\r\nKey=1\r\nKey=2\r\nlast\r\n");
    EXPECT_EQ(config->FindLine("Path"), 1);
    EXPECT_EQ(config->FindLine("Key"), 2);
    EXPECT_EQ(config->FindLine("key"), -1);
    EXPECT_EQ(config->FindKeyValue("Key"), "1");
    EXPECT_EQ(config->KeyString(), "Key");
    EXPECT_EQ(config->FindKeyValue("key"), "");
    EXPECT_EQ(config->KeyString(), "") << "describes the last line after a search in vain";

    EXPECT_TRUE(config->ReplaceLine("Key", "3"));
    EXPECT_EQ(Lines(), (Strings{"[Path]", "Key=3", "Key=1", "Key=2", "last"})) << "the first line that merely holds the text";
    EXPECT_FALSE(config->ReplaceLine("Other", "1"));
    EXPECT_EQ(config->FileLineCount(), 5);
}

TEST_F(ConfigurationTest, AddsBeforeTheLastLineAndInsertsAtAClampedPosition)
{
    EXPECT_TRUE(config->AddLine("first"));
    EXPECT_TRUE(config->InsertLine("second", 9));
    EXPECT_TRUE(config->InsertLine("third", 9));
    EXPECT_TRUE(config->AddLine("added"));
    EXPECT_EQ(Lines(), (Strings{"first", "second", "added", "third"}));
    EXPECT_TRUE(config->InsertLine("front", -3));
    EXPECT_TRUE(config->RemoveLine(2));
    EXPECT_FALSE(config->RemoveLine(0));
    EXPECT_FALSE(config->RemoveLine(5));
    EXPECT_EQ(Lines(), (Strings{"front", "second", "added", "third"}));
    EXPECT_EQ(config->GetLine(0), "");
    EXPECT_EQ(config->GetLine(5), "");
}

TEST_F(ConfigurationTest, WritesEveryLineBack)
{
    Read("[PTK]\nK=a,b\n\nfree text");
    EXPECT_TRUE(config->ReplaceLine("K", "c"));
    EXPECT_TRUE(config->WriteFile(path));
    EXPECT_EQ(ReadBytes(path), "K=c\r\nK=a\r\nb\r\n\r\nfree text\r\n")
        << "the header contains the key's text and is the first line that does";
}

TEST_F(ConfigurationTest, AFileThatCannotBeReplacedStaysWhole)
{
    Read("[PTK]\r\nKey=True\r\n");
    EXPECT_TRUE(config->ReplaceLine("Key", "False"));
    {
        const FullDisk full;
        EXPECT_TRUE(config->WriteFile(path)) << "whatever came of it";
    }
    EXPECT_EQ(config->LastFailure().Number(), 61);
    EXPECT_EQ(ReadBytes(path), "[PTK]\r\nKey=True\r\n");
    EXPECT_TRUE(config->WriteFile(path));
    EXPECT_EQ(config->LastFailure().Number(), 0);
    EXPECT_EQ(ReadBytes(path), "[PTK]\r\nKey=False\r\n");
    EXPECT_TRUE(config->ReadFile(folder.Path()));
    EXPECT_EQ(config->LastFailure().Number(), 75) << "a folder";
}

TEST_F(ConfigurationTest, HoldsAsManyLinesAsAPositionCanCount)
{
    std::string lines;
    for (int i = 0; i < 32765; ++i) {
        lines += "x\n";
    }
    Read(lines);
    EXPECT_EQ(config->FileLineCount(), 32765);

    WriteBytes(path, "a\nb\nc\n");
    EXPECT_TRUE(config->ReadFile(path));
    EXPECT_THROW((void)config->FileLineCount(), Failure);
    EXPECT_THROW((void)config->FindLine("x"), Failure);
    EXPECT_FALSE(config->WriteFile(path));

    config = std::make_shared<CFileAdaptor>(folder.Path());
    WriteBytes(path, lines + "x\nx\nx\n");
    EXPECT_FALSE(config->ReadFile(path)) << "the position after the last line no longer fits";
}

TEST_F(ConfigurationTest, LocatesTheDatabase)
{
    struct Case
    {
        const char* line;
        std::string expected;
    };
    const std::string app = folder.Path();
    for (const Case& c : {Case{"DatabasePath=<app.path>\\system\\ptk_11.mdb", app + "\\system\\ptk_11.mdb"},
                          Case{"DatabasePath=lost<app.path>x", app + "x"}, Case{"DatabasePath=a>b<app.path>c", app + "b<app.path>c"},
                          Case{"DatabasePath=<APP.PATH>\\x", "<APP.PATH>\\x"}, Case{"DatabasePath=/data/ptk.mdb", "/data/ptk.mdb"},
                          Case{"databasepath=x", ""}, Case{"DatabasePath=", ""}}) {
        SCOPED_TRACE(c.line);
        config = std::make_shared<CFileAdaptor>(app);
        ASSERT_TRUE(config->InsertLine(c.line, 1));
        CDatabaseLocator locator(app);
        locator.ConfigFile(config);
        locator.ConfigFile(nullptr);
        EXPECT_EQ(locator.ConfigFile(), config) << "none is ignored";
        EXPECT_TRUE(locator.GetDatabasePath());
        EXPECT_EQ(locator.DatabasePath(), c.expected);
    }
    CDatabaseLocator unconfigured(app);
    EXPECT_TRUE(unconfigured.GetDatabasePath());
    EXPECT_EQ(unconfigured.DatabasePath(), "");
}

} // namespace
