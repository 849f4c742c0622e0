// Auto fill: one record a day over a range of dates.
#include "gui/GuiFixture.h"
#include "model/CTimeRecordList.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/DateTimeBox.h"
#include "ui/editors/FAutoFill.h"

namespace ptk {

namespace {

const ShownBox kWrongRange{"Incorrect date format or invalid date range.", "Date Range Error", Icon::Exclamation, Buttons::Ok};
const ShownBox kWrongPeriod{"Cannot create time records for the given time period.", "Date Range Error", Icon::Exclamation, Buttons::Ok};

class AutoFillTest : public testing::Test
{
protected:
    void SetUp() override
    {
        window.AutoShiftStartTime(DateTime({}, {22, 0, 0}));
        window.AutoShiftEndTime(DateTime({}, {6, 0, 0}));
        window.EmployeeID(40);
        window.PeriodLength(14);
        window.TimeRecordList(list);
        window.show();
    }

    QString Text(const char* name) { return Find<DateCombo>(window, name).Text(); }
    void TypeDate(const char* name, const QString& text) { Type(*Find<DateCombo>(window, name).lineEdit(), text); }
    DateTimeBox& Time(const char* name) { return Find<DateTimeBox>(window, name); }

    RecordingDesktop desktop;
    FixedClock clock;
    std::shared_ptr<CTimeRecordList> list = std::make_shared<CTimeRecordList>();
    FAutoFill window{desktop, clock};
};

TEST_F(AutoFillTest, MakesARecordForEveryDayOfTheRange)
{
    struct Case
    {
        const char* from;
        const char* to;
        std::int32_t records;
        std::vector<ShownBox> told;
    };
    for (const Case& c : {Case{"2/27/2003", "3/1/2003", 3, {}},
                          {"3/1/2003", "3/2/2003", 2, {}},
                          {"3/1/2003", "3/1/2003", 0, {kWrongPeriod}},
                          {"3/2/2003", "3/1/2003", 0, {kWrongPeriod}},
                          {"3/1/2003", "soon", 0, {kWrongRange}},
                          {"", "3/1/2003", 0, {kWrongRange}},
                          {"12/31/2100", "1/1/2101", 0, {kWrongRange}}}) {
        SCOPED_TRACE(std::string(c.from) + " to " + c.to);
        list->Destroy();
        TypeDate("dttbTCFrom", c.from);
        TypeDate("dttbTCTo", c.to);
        EXPECT_EQ(window.LoadTimeRecordList(), c.records > 0);
        EXPECT_EQ(list->Count(), c.records);
        EXPECT_EQ(desktop.Take(), c.told);
    }
}

TEST_F(AutoFillTest, GivesEveryDayTheSameTimesEvenThroughTheNight)
{
    window.StartDate(DateTime({2003, 2, 28}));
    window.EndDate(DateTime({2003, 3, 1}));
    Click(window, "cmdAutoShift");
    EXPECT_EQ(Time("dttbStartTime").text(), "10:00:00 PM");
    Click(window, "cmdSave");
    EXPECT_TRUE(window.OKClick());
    EXPECT_FALSE(window.isVisible());
    ASSERT_EQ(list->Count(), 2);
    const CTimeRecord& last = list->RecordAt(2);
    EXPECT_EQ(last.StartTime(), DateTime({2003, 3, 1}, {22, 0, 0}));
    EXPECT_EQ(last.EndTime(), DateTime({2003, 3, 1}, {6, 0, 0}));
    EXPECT_EQ(last.EmployeeID(), 40);
    EXPECT_EQ(last.ObjectState(), state::New);
}

TEST_F(AutoFillTest, ProposesTheLastDayOnlyWhenTheFirstIsChanged)
{
    EXPECT_EQ(Text("dttbTCTo"), "03/05/2003");
    TypeDate("dttbTCFrom", "3/1");
    EXPECT_EQ(Text("dttbTCTo"), "03/15/2003");
    TypeDate("dttbTCTo", "3/3");
    EXPECT_EQ(Text("dttbTCFrom"), "03/01/2003");
}

TEST_F(AutoFillTest, AShiftFromOrToMidnightIsNoShift)
{
    Type(Time("dttbStartTime"), "9");
    window.AutoShiftEndTime(DateTime());
    Click(window, "cmdAutoShift");
    EXPECT_EQ(Time("dttbStartTime").text(), "09:00:00 AM");
    EXPECT_EQ(Time("dttbEndTime").text(), "");
}

TEST_F(AutoFillTest, MakesNothingOfATimeThatIsNoneAndSaysSoBeforehand)
{
    window.Announce("For Ann Lee", DayNumbers{DateTime({2003, 3, 6}).DayNumber()});
    window.EndDate(DateTime({2003, 3, 6}));
    Click(window, "cmdAutoShift");
    EXPECT_EQ(Find<QLabel>(window, "lblForecast").text(), "2 records, none on Saturdays and Sundays, 1 on days that already have records. "
                                                          "They end before they start and count 0 hours.");
    Type(Time("dttbEndTime"), "late");
    EXPECT_EQ(Find<QLabel>(window, "lblForecast").text(), "No records: a time cannot be read.");
    Click(window, "cmdSave");
    EXPECT_FALSE(window.OKClick());
    EXPECT_EQ(list->Count(), 0);
    EXPECT_TRUE(desktop.Take().empty());
}

TEST_F(AutoFillTest, CancelMakesNothing)
{
    window.EndDate(DateTime({2003, 3, 6}));
    QTest::keyClick(&Time("dttbEndTime"), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(window.OKClick());
    EXPECT_EQ(list->Count(), 0);
}

} // namespace

} // namespace ptk
