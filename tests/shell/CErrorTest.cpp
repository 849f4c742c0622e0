#include "shell/CError.h"

#include "support/RecordingDesktop.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ptk;

namespace {

template <typename Raised>
CError Caught(Desktop& desktop, const Raised& raised)
{
    try {
        throw raised;
    } catch (...) {
        return CError(desktop);
    }
}

TEST(CErrorTest, CapturesTheFailureBeingHandled)
{
    RecordingDesktop desktop;
    const CError failed = Caught(desktop, Failure(5, "SQLite", "database is locked", 11));
    EXPECT_EQ(failed.ErrorNumber(), 5);
    EXPECT_EQ(failed.ErrorSource(), "SQLite");
    EXPECT_EQ(failed.ErrorDescription(), "database is locked");
    EXPECT_EQ(failed.LastSystemError(), 11);

    const CError foreign = Caught(desktop, std::runtime_error("odd"));
    EXPECT_EQ(foreign.ErrorNumber(), 5);
    EXPECT_EQ(foreign.ErrorDescription(), "odd");

    const CError outside(desktop);
    EXPECT_EQ(outside.ErrorNumber(), 0);
    EXPECT_EQ(outside.ErrorSource() + outside.ErrorDescription(), "");
    EXPECT_EQ(outside.HelpContext(), 0);
}

TEST(CErrorTest, AppendsToTheDescription)
{
    RecordingDesktop desktop;
    CError error(desktop);
    error.ErrorDescription("x");
    error.ErrorDescription("y");
    error.ErrorDescription("");
    EXPECT_EQ(error.ErrorDescription(), "xy");

    CError empty(desktop);
    empty.ErrorDescription("");
    EXPECT_EQ(empty.ErrorDescription(), "No Error Description Available");

    error.ModuleName("");
    EXPECT_EQ(error.ModuleName(), "No module name available");
    EXPECT_FALSE(error.LogMessage());
}

TEST(CErrorTest, ShowsWhatItKnows)
{
    RecordingDesktop desktop;
    CError error = Caught(desktop, Failure(53, "PTK", "File not found"));
    error.MessageBox();
    error.ModuleName("Start");
    error.AdditionalDescription("More.");
    error.MessageBox();
    CError(desktop).MessageBox();
    ASSERT_EQ(desktop.boxes.size(), 3U);
    EXPECT_EQ(desktop.boxes[0].text, "The following error ocurred in module \r\nError Source: PTK\r\n53: File not found");
    EXPECT_EQ(desktop.boxes[0].title, "Error Number: 53");
    EXPECT_EQ(desktop.boxes[1].text, "The following error ocurred in module Start\r\nError Source: PTK\r\n53: File not found\r\nMore.");
    EXPECT_EQ(desktop.boxes[2].text, "The following error ocurred in module \r\n0: ");
    EXPECT_EQ(desktop.boxes[2].title, "Error Number: 0");
}

TEST(CErrorTest, TakesIconAndButtonsWhenTheyAreNumbers)
{
    struct Case
    {
        const char* name;
        Value icon, buttons;
        Icon shownIcon;
        Buttons shownButtons;
    };
    for (const Case& c : {Case{"none", {}, {}, Icon::Exclamation, Buttons::Ok}, Case{"critical", 16, 0, Icon::Critical, Buttons::Ok},
                          Case{"number text", "32", "4", Icon::Question, Buttons::YesNo},
                          Case{"a word", "critical", 1, Icon::Exclamation, Buttons::OkCancel},
                          Case{"a date", DateTime::FromSeconds(1382400), {}, Icon::Exclamation, Buttons::Ok},
                          Case{"the whole style as icon", 68, 0, Icon::Information, Buttons::YesNo}}) {
        SCOPED_TRACE(c.name);
        RecordingDesktop desktop;
        CError(desktop).MessageBox(c.icon, c.buttons);
        ASSERT_EQ(desktop.boxes.size(), 1U);
        EXPECT_EQ(desktop.boxes[0].icon, c.shownIcon);
        EXPECT_EQ(desktop.boxes[0].buttons, c.shownButtons);
    }
}

TEST(CErrorTest, AnswersTheButtonAndRaisesOnlyAStyleThatDoesNotFit)
{
    RecordingDesktop desktop;
    desktop.answers = {Answer::No};
    desktop.SetPointer(Pointer::Busy);
    CError error(desktop);
    EXPECT_EQ(error.MsgBoxRetVal(), 0);
    EXPECT_EQ(error.MessageBox(32, 4), 7);
    EXPECT_EQ(error.MsgBoxRetVal(), 7);
    EXPECT_EQ(desktop.pointer, Pointer::Default);

    EXPECT_THROW(error.MessageBox(32767, 1), Failure);
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(error.MsgBoxRetVal(), 7);
}

} // namespace
