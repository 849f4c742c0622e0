// The date combo and the time box under a user's hands.
#include "gui/GuiFixture.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/DateTimeBox.h"

namespace ptk {

namespace {

class DateComboTest : public testing::Test
{
protected:
    DateComboTest()
    {
        box.SetClock(clock);
        QObject::connect(&box, &DateCombo::Changed, [this] { ++changes; });
        box.show();
        QApplication::setActiveWindow(&box);
        box.setFocus();
    }
    void Keys(const QString& text) { QTest::keyClicks(box.lineEdit(), text); }
    std::string Leave()
    {
        QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        return box.currentText().toStdString();
    }

    FixedClock clock;
    DateCombo box;
    int changes = 0;
};

TEST_F(DateComboTest, CompletesADateOnLeavingAndKeepsWhatIsNone)
{
    Keys("3/7");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(box.Text(), "03/07/2003");
    EXPECT_EQ(box.currentText(), "3/7");
    EXPECT_EQ(Leave(), "03/07/2003");
    box.SetText("next week");
    EXPECT_EQ(Leave(), "next week");
    box.SetText("");
    EXPECT_EQ(Leave(), "");
    EXPECT_EQ(changes, 3);
}

TEST_F(DateComboTest, StepsADayWithinItsRangeAndNeverInsideAHalfTypedDate)
{
    box.SetText("2/28/2003");
    Keys("+");
    EXPECT_EQ(box.currentText(), "03/01/2003");
    Keys("-");
    EXPECT_EQ(box.currentText(), "02/28/2003");
    EXPECT_EQ(changes, 2);
    box.SetText("12/31/2100");
    Keys("+");
    EXPECT_EQ(box.currentText(), "12/31/2100");
    box.SetText("");
    Keys("3-5-2003");
    EXPECT_EQ(Leave(), "03/05/2003");
}

TEST_F(DateComboTest, HoldsNoDateOutsideItsRange)
{
    for (const char* text : {"12/31/1899", "1/1/2101", "", "3/32"}) {
        box.SetText(text);
        EXPECT_FALSE(box.Date()) << text;
        EXPECT_EQ(box.Text(), text);
    }
    box.SetText("1/1/1900");
    EXPECT_EQ(box.Date(), DateTime(CalendarDate{1900, 1, 1}));
}

TEST_F(DateComboTest, TakesADayFromTheCalendar)
{
    box.showPopup();
    auto& calendar = Find<QCalendarWidget>(box, "calendar");
    EXPECT_EQ(calendar.selectedDate(), QDate(2003, 3, 5));
    emit calendar.clicked(QDate(2003, 3, 31));
    EXPECT_EQ(box.Text(), "03/31/2003");
    EXPECT_EQ(changes, 1);
}

class DateTimeBoxTest : public testing::Test
{
protected:
    DateTimeBoxTest()
    {
        box.show();
        QObject::connect(&box, &DateTimeBox::Changed, [this] { ++changes; });
        QObject::connect(&box, &DateTimeBox::Typed, [this] { ++times; });
        QObject::connect(&box, &DateTimeBox::KeyEntered, [this] { ++keys; });
    }
    void Keys(const QString& text)
    {
        box.Clear();
        QTest::keyClicks(&box, text);
    }
    std::string Leave()
    {
        QTest::keyClick(&box, Qt::Key_Return);
        QCoreApplication::processEvents(); // it tells when the key is done with
        return box.text().toStdString();
    }

    DateTimeBox box;
    int changes = 0;
    int keys = 0;
    int times = 0;
};

TEST_F(DateTimeBoxTest, TellsOfEveryTimeWhileTypingAndPutsItRightOnLeaving)
{
    Keys("8:30"); // readable at "8", "8:3" and "8:30"
    EXPECT_EQ(keys, 4);
    EXPECT_EQ(times, 3);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box.Text(), "08:30:00 AM");
    EXPECT_EQ(Leave(), "08:30:00 AM");
    EXPECT_EQ(changes, 1);
}

TEST_F(DateTimeBoxTest, TellsOnceOfWhatIsNoTimeAndKeepsIt)
{
    Keys("x8");
    EXPECT_EQ(times + changes, 0);
    EXPECT_EQ(Leave(), "x8");
    EXPECT_EQ(Leave(), "x8");
    EXPECT_EQ(changes, 1);
}

TEST_F(DateTimeBoxTest, ShowsWhatItIsGivenInItsFormatAndTellsNothing)
{
    box.SetDisplayFormat("hh:mm AM/PM");
    box.SetText("17:05:30");
    EXPECT_EQ(box.text(), "05:05 PM");
    box.SetText("soon");
    EXPECT_EQ(box.text(), "soon");
    const FixedClock clock;
    box.SetDateMode(clock);
    box.SetText("3/7");
    EXPECT_EQ(box.text(), "03/07/2003");
    EXPECT_EQ(changes + keys, 0);
}

TEST_F(DateTimeBoxTest, SurvivesWhateverIsPasted)
{
    for (const QString& text : {QString(10000, 'x'), QString("8\x01:\x02"), QString::fromUtf8("\xF0\x9F\x95\x92 8:30")}) {
        box.SetText(text);
        EXPECT_EQ(box.Text(), box.text());
    }
}

} // namespace

} // namespace ptk
