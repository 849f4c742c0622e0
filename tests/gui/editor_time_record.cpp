// The time record editor: what it shows, what it writes into the record while the user types, and what it hands back.
#include "gui/RealBoxes.h"
#include "model/CTimeRecord.h"
#include "ui/boxes/DateTimeBox.h"
#include "ui/editors/FTimeEditor.h"
#include "ui/editors/TimeRecordReceiver.h"

namespace ptk {

namespace {

const ShownBox kWrongDate{"Error: Invalid date separator. Use : to separate time values.", "Date Format Error", Icon::Exclamation,
                          Buttons::Ok};

class Receiver final : public TimeRecordReceiver
{
public:
    bool ReturnTimeRecord(const std::shared_ptr<CTimeRecord>& thetimerecord) override
    {
        returned.push_back(thetimerecord);
        return true;
    }

    std::vector<std::shared_ptr<CTimeRecord>> returned;
};

class TimeEditorTest : public testing::Test
{
protected:
    void SetUp() override
    {
        editor.ParentWindow(&receiver);
        editor.SetAutoShiftTimes(DateTime({}, {8, 0, 0}), DateTime({}, {17, 30, 0}));
        editor.show();
    }

    std::shared_ptr<CTimeRecord> Show(DateTime start, DateTime end)
    {
        auto record = std::make_shared<CTimeRecord>();
        record->StartTime(start);
        record->EndTime(end);
        editor.TimeRecord(record);
        return record;
    }
    DateTimeBox& Box(const char* name) { return Find<DateTimeBox>(editor, name); }
    QString Texts()
    {
        return Box("dttbStartDate").text() + "|" + Box("dttbStartTime").text() + "|" + Box("dttbEndDate").text() + "|" +
               Box("dttbEndTime").text() + "|" + Find<QLineEdit>(editor, "txtTotalTime").text();
    }

    RecordingDesktop desktop;
    FixedClock clock;
    Receiver receiver;
    FTimeEditor editor{desktop, clock};
};

TEST_F(TimeEditorTest, ShowsARecord)
{
    struct Case
    {
        const char* name;
        DateTime start;
        DateTime end;
        const char* texts;
    };
    for (const Case& c :
         {Case{"a day's shift",
               {{2003, 2, 3}, {8, 5, 0}},
               {{2003, 2, 3}, {16, 35, 0}},
               "02/03/2003|08:05:00 AM|02/03/2003|04:35:00 PM|8.50"},
          {"seconds are left out",
           {{2003, 2, 3}, {8, 5, 40}},
           {{2003, 2, 3}, {12, 5, 59}},
           "02/03/2003|08:05:00 AM|02/03/2003|12:05:00 PM|4.00"},
          {"midnight is an empty time", {{2003, 2, 3}}, {{2003, 2, 3}, {6, 0, 0}}, "02/03/2003||02/03/2003|06:00:00 AM|6.00"},
          {"still clocked in: today", {{2003, 2, 3}, {8, 0, 0}}, {}, "02/03/2003|08:00:00 AM|03/05/2003||0.00"},
          {"a new record: today", {}, {}, "03/05/2003||03/05/2003||0.00"}}) {
        Show(c.start, c.end);
        EXPECT_EQ(Texts(), c.texts) << c.name;
    }
    editor.TimeRecord(nullptr);
    EXPECT_EQ(Texts(), "||||");
}

TEST_F(TimeEditorTest, OpensWithItsFirstTextChosenAndWarnsOfALongShift)
{
    editor.hide();
    Show({{2003, 2, 20}, {8, 0, 0}}, {});
    editor.WarnAbove(16);
    editor.show();
    QTest::keyClicks(editor.focusWidget(), "2/21");
    EXPECT_EQ(Box("dttbStartDate").Text(), "02/21/2003") << "in the place of what stood there";
    Type(Box("dttbEndTime"), "420p");
    EXPECT_EQ(Find<QLabel>(editor, "lblWarning").text(), "This shift has 296:20 hours, more than the longest usual one of 16. ");
    Type(Box("dttbEndDate"), "2/21");
    EXPECT_EQ(Find<QLabel>(editor, "lblWarning").text(), "");
}

TEST_F(TimeEditorTest, TypingChangesTheRecordAtOnceAndCancelKeepsThat)
{
    const auto record = Show({{2003, 2, 3}, {8, 0, 0}}, {{2003, 2, 3}, {16, 0, 0}});
    Type(Box("dttbStartTime"), "930");
    EXPECT_EQ(Find<QLineEdit>(editor, "txtTotalTime").text(), "6.50");
    Click(editor, "cmdCancel");
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(record->StartTime(), DateTime({2003, 2, 3}, {9, 30, 0}));
    EXPECT_TRUE(receiver.returned.empty());
    EXPECT_TRUE(desktop.Take().empty());
}

TEST_F(TimeEditorTest, ATimeAloneIsNotYetReadAndMidnightIsSavedAsTheDateAlone)
{
    const auto record = Show({{2003, 2, 3}}, {});
    Type(Box("dttbStartTime"), "8");
    EXPECT_EQ(record->StartTime(), DateTime({2003, 2, 3})) << "the end is empty";
    Type(Box("dttbStartTime"), "");
    Type(Box("dttbEndDate"), "2/4");
    Type(Box("dttbEndTime"), "6");
    Click(editor, "cmdSave");
    EXPECT_EQ(record->StartTime(), DateTime({2003, 2, 3}));
    EXPECT_EQ(record->EndTime(), DateTime({2003, 2, 4}, {6, 0, 0}));
    EXPECT_EQ(receiver.returned, std::vector{record});
}

TEST_F(TimeEditorTest, UnreadableTextsAreToldAndTheRecordGoesBackAllTheSame)
{
    const auto record = Show({{2003, 2, 3}, {8, 0, 0}}, {{2003, 2, 3}, {16, 0, 0}});
    Type(Box("dttbStartTime"), "9");
    Type(Box("dttbEndTime"), "late");
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.Take(), std::vector{kWrongDate});
    EXPECT_EQ(Box("dttbEndTime").text(), "late");
    Click(editor, "cmdSave");
    EXPECT_EQ(desktop.Take(), std::vector{kWrongDate});
    EXPECT_EQ(receiver.returned, std::vector{record});
    EXPECT_EQ(record->StartTime(), DateTime({2003, 2, 3}, {9, 0, 0}));
    EXPECT_EQ(record->EndTime(), DateTime({2003, 2, 3}, {16, 0, 0}));
    EXPECT_FALSE(editor.isVisible());
}

TEST_F(TimeEditorTest, WithoutARecordItMakesOne)
{
    editor.TimeRecord(nullptr);
    Type(Box("dttbStartDate"), "3/1/2003");
    Type(Box("dttbEndDate"), "3/1/2003");
    Click(editor, "cmdAutoShift");
    EXPECT_EQ(Texts(), "03/01/2003|08:00:00 AM|03/01/2003|05:30:00 PM|9.50");
    QTest::keyClick(&Box("dttbEndTime"), Qt::Key_Return);
    ASSERT_EQ(receiver.returned.size(), 1U);
    EXPECT_EQ(receiver.returned[0]->EndTime(), DateTime({2003, 3, 1}, {17, 30, 0}));
    EXPECT_EQ(receiver.returned[0], editor.TimeRecord());
}

// With boxes that really open.
TEST(WrongTimeTest, IsToldOnceAndAfterWhatLeftItWasDone)
{
    struct Case
    {
        const char* to; // empty: Enter in the box itself
        int told;
        bool closes;
        std::size_t returned;
    };
    for (const Case& c : {Case{"dttbStartDate", 1, false, 0}, {"cmdCancel", 0, true, 0}, {"cmdSave", 1, true, 1}, {"", 1, true, 1}}) {
        SCOPED_TRACE(c.to);
        ShowingDesktop desktop;
        const FixedClock clock;
        Receiver receiver;
        FTimeEditor editor(desktop, clock);
        editor.ParentWindow(&receiver);
        const auto record = std::make_shared<CTimeRecord>();
        record->StartTime(DateTime({2003, 2, 3}, {8, 0, 0}));
        editor.TimeRecord(record);
        editor.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
        auto& box = Find<DateTimeBox>(editor, "dttbEndTime");
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::keyClicks(&box, "late");
        const KeyPresses keys(std::deque<KeyPress>(static_cast<std::size_t>(c.told), {"QMessageBox", Qt::Key_Return}));
        if (*c.to == 0) {
            QTest::keyClick(&box, Qt::Key_Return);
        } else {
            auto& target = Find(editor, c.to);
            QTest::mousePress(&target, Qt::LeftButton);
            QCoreApplication::processEvents();
            EXPECT_TRUE(desktop.boxes.empty()) << "the button is still down";
            QTest::mouseRelease(&target, Qt::LeftButton);
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(desktop.Take(), std::vector<ShownBox>(static_cast<std::size_t>(c.told), kWrongDate));
        EXPECT_EQ(editor.isVisible(), !c.closes);
        EXPECT_EQ(receiver.returned.size(), c.returned);
    }
}

} // namespace

} // namespace ptk
