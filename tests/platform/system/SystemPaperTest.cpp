#include "platform/system/SystemPaper.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace ptk;

namespace {

TEST(SystemPaperTest, IsWhatTheVariableOrTheFileNames)
{
    const TemporaryFolder folder;
    const std::string file = folder.Path() + "/papersize";
    struct Case
    {
        const char* variable;
        const char* file;
        PaperSize paper;
    };
    for (const Case& c :
         {Case{"letter", "a4", PaperSize::Letter}, Case{"A4", "letter", PaperSize::A4}, Case{"", "a4\n", PaperSize::A4},
          Case{"", "# paper of the office\n\n Letter \t# as ever\n", PaperSize::Letter}, Case{"foolscap", "letter", PaperSize::Letter}}) {
        WriteBytes(file, c.file);
        ::setenv("PAPERSIZE", c.variable, 1);
        ::setenv("PAPERCONF", file.c_str(), 1);
        EXPECT_EQ(SystemPaper(), c.paper) << c.variable << ", " << c.file;
    }
    ::unsetenv("PAPERSIZE");
    ::unsetenv("PAPERCONF");
}

} // namespace
