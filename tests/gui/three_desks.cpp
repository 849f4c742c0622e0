// Three windows on one server: a payday on which everybody sees what the others store, and nobody loses anything.
#include "gui/GuiFixture.h"
#include "store/CJetDB.h"
#include "store/engine/RecordSet.h"
#include "store/postgres/PostgresEngine.h"
#include "store/whole/BulkWriter.h"
#include "support/ServerDatabase.h"
#include "ui/widgets/NoticeLine.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr int kCard = 1;
constexpr int kEmployees = 3;

// Ann Lee (40) with one shift on 5 March 2003, which is today.
void AddAnn(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.EmployeeActive = true;
    employee.EmployeeNumber = 7;
    employee.SSN = "1";
    employee.FirstName = "Ann";
    employee.LastName = "Lee";
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    const std::int32_t id = writer.AddEmployee(employee);
    writer.AddTimeRecord({-1, id, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
}

// A program of its own, with its window.
class Desk
{
public:
    explicit Desk(const std::string& address)
    {
        WriteBytes(m_program.configPath, "[PTK]\r\nDatabasePath=" + address + "\r\nShowLoginHelp=False\r\n");
        m_program.LogIn();
    }

    template <typename Control = QWidget>
    Control& The(const char* name)
    {
        return Find<Control>(m_program.Main(), name);
    }
    QString Text(const char* name) { return The<QLineEdit>(name).text(); }
    void Press(const char* button) { Click(m_program.Main(), button); }
    QString Said(int page) { return Find<NoticeLine>(The(fmt::format("FrameArray({})", page).c_str()), "notice").Text(); }
    void PressNotice(int page) { Click(The(fmt::format("FrameArray({})", page).c_str()), "cmdNotice"); }
    CJetDB& Database() const { return *m_program.Controller()->PTKDatabase(); }
    std::vector<ShownBox> Told() { return m_program.desktop.Take(); }
    void Answer(ptk::Answer answer) { m_program.desktop.answers = {answer}; }

    void ShowAnn()
    {
        ClickTab(m_program.Main(), kEmployees);
        auto& ids = The<QComboBox>("cboEmployeeID");
        ids.setCurrentIndex(ids.findText("40"));
        emit ids.activated(ids.currentIndex());
    }

    void ShowCard()
    {
        ClickTab(m_program.Main(), kCard);
        auto& names = The<QComboBox>("cboTCEmployeeName");
        names.setCurrentIndex(names.findText("Ann Lee"));
        emit names.activated(names.currentIndex());
        Press("cmdGenTimeRecs");
    }

    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }
    void DeleteFirstRecord()
    {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().visualRect(Grid().model()->index(0, 0)).center());
        Answer(ptk::Answer::Yes);
        Press("cmdTCDelete");
    }

private:
    GuiProgram m_program;
};

class ThreeDesksTest : public testing::Test
{
protected:
    ThreeDesksTest() { CreateDatabase(m_server.Address(), AddAnn); }

    std::string Stored(const std::string& sql)
    {
        CJetDB database("/nowhere");
        database.DatabaseName(m_server.Address());
        EXPECT_TRUE(database.OpenDB());
        return database.ExecuteSelect(sql)->TextToShow(0);
    }

    ServerDatabase m_server;
};

// What a login waits for over a slow line, the connection and the watch for others' changes apart.
TEST_F(ThreeDesksTest, ALoginAsksFewQuestions)
{
    const Desk desk(m_server.Address());
    std::int64_t trips = 0;
    ASSERT_TRUE(desk.Database().ExecuteSteps([&](Engine& engine) { trips = dynamic_cast<PostgresEngine&>(engine).RoundTrips(); }));
    EXPECT_EQ(trips, 6);
}

TEST_F(ThreeDesksTest, EverybodySeesWhatTheOthersStoreAndNothingIsLost)
{
    Desk a(m_server.Address());
    Desk b(m_server.Address());
    Desk c(m_server.Address());
    a.ShowAnn();
    b.ShowAnn();
    c.ShowCard();
    Type(a.The<QLineEdit>("txtPayRate"), "20");
    a.Press("cmdEmployeeSave");
    EXPECT_EQ(a.Said(kEmployees), "Ann Lee saved");
    QTRY_COMPARE_WITH_TIMEOUT(b.Text("txtPayRate"), "20.00", 5000);
    QTRY_COMPARE_WITH_TIMEOUT(c.Said(kCard), "Ann Lee was changed by somebody else meanwhile", 5000);
    EXPECT_EQ(c.Text("txtTCPayRate"), "10.00") << "the card is as it was made";
    c.PressNotice(kCard);
    EXPECT_EQ(c.Text("txtTCPayRate"), "20.00");

    auto& phone = b.The<QLineEdit>("txtEmployeePhone");
    phone.setFocus();
    QTest::keyClicks(&phone, "77");
    Type(a.The<QLineEdit>("txtPayRate"), "30");
    a.Press("cmdEmployeeSave");
    QTRY_COMPARE_WITH_TIMEOUT(b.Said(kEmployees), "Ann Lee was changed by somebody else meanwhile", 5000);
    EXPECT_EQ(b.Text("txtEmployeePhone") + ' ' + b.Text("txtPayRate"), "77 20.00") << "nothing changes under the hand of who types";
    b.Press("cmdEmployeeSave");
    ASSERT_EQ(b.Told().size(), 1U) << "refused";
    EXPECT_EQ(Stored("SELECT COALESCE(Phone, '') || ' ' || PayRate FROM Employee WHERE EmployeeID = 40"), "\" 30\"");
    b.PressNotice(kEmployees);
    EXPECT_EQ(b.Text("txtEmployeePhone") + ' ' + b.Text("txtPayRate"), " 30.00");
    b.PressNotice(kEmployees);
    b.Press("cmdEmployeeSave");
    EXPECT_EQ(Stored("SELECT COALESCE(Phone, '') || ' ' || PayRate FROM Employee WHERE EmployeeID = 40"), "\"77 30\"")
        << "what was typed, over it";

    a.ShowCard();
    c.ShowCard();
    c.DeleteFirstRecord();
    QTRY_COMPARE_WITH_TIMEOUT(a.Said(kCard), "Ann Lee's records were changed by somebody else meanwhile", 5000);
    EXPECT_EQ(a.Grid().model()->rowCount(), 1);
    a.Told();
    a.DeleteFirstRecord();
    EXPECT_EQ(a.Told().size(), 2U) << "asked, and refused";
    EXPECT_EQ(Stored("SELECT (SELECT COUNT(*) FROM TimeRecord) || ' ' || (SELECT COUNT(*) FROM _Change)"), "\"0 4\"");
}

} // namespace

} // namespace ptk
