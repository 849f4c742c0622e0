// What people do in the windows while the database's engine gets no memory, or reads, opens, locks and looks at files fail, at one call
// after the other. Each ends in what was wanted, or in what was there before and a box or a line that says so; done again it works. The
// windows' own memory is left out: the toolkit ends a program that has none.
#include "faults/ScarceCalls.h"
#include "gui/PageFixture.h"
#include "ui/widgets/NoticeLine.h"

#include <fmt/format.h>

namespace ptk {

namespace {

const bool kWatched = (WatchMemoryOfEngine(), true); // before the engine is asked for anything

constexpr std::int64_t kTriesOfSample = 2; // of each action, each want, and each way to run out

void AddScarceStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    employee.EmployeeActive = true;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Cy", "Orr"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        employee.SSN = first;
        employee.EmployeeNumber++;
        writer.AddEmployee(employee);
    }
    for (const std::int16_t day : {std::int16_t{18}, std::int16_t{19}, std::int16_t{20}}) {
        writer.AddTimeRecord({-1, 40, DateTime({2003, 2, day}, {8, 0, 0}), DateTime({2003, 2, day}, {16, 30, 0})});
    }
}

class ScarceWindowsTest : public PageTest
{
public:
    ScarceWindowsTest() : PageTest(AddScarceStaff) { Press("cmdPeriodBack"); } // 18 February to 4 March

    ~ScarceWindowsTest() override { Plenty(); }

protected:
    struct Action
    {
        std::function<void()> prepare; // with plenty
        std::function<void()> act;
        std::function<std::string()> outcome;
        std::function<std::string()> wanted;
    };

    // Boxes and lines.
    std::string Said()
    {
        std::string text;
        for (const ShownBox& box : Told()) {
            text += box.title + ": " + box.text + "\n";
        }
        for (const NoticeLine* line : Main().findChildren<NoticeLine*>()) {
            text += line->isVisible() && !line->Text().isEmpty() ? line->Text().toStdString() + "\n" : "";
        }
        return text;
    }

    void Try(const Action& action)
    {
        for (const Scarce what : {Scarce::EngineMemory, Scarce::Read, Scarce::Open, Scarce::Forbidden, Scarce::Lock, Scarce::Look}) {
            action.prepare();
            const std::int64_t calls = CallsOf(what, action.act);
            ASSERT_EQ(action.outcome(), action.wanted());
            const std::string usual = Said();
            TryCalls(what, 0, calls, kTriesOfSample, [&](std::int64_t call, bool all) { TryAt(action, what, {call, all}, usual); });
        }
    }

    void TryAt(const Action& action, Scarce what, const std::pair<std::int64_t, bool>& fault, const std::string& usual)
    {
        action.prepare();
        Said();
        const std::string before = action.outcome();
        RunOut(what, fault.first, fault.second);
        action.act();
        Plenty();
        const std::string after = action.outcome();
        const std::string said = Said();
        if (after != action.wanted()) {
            EXPECT_TRUE(after == before || after.empty()) << after;
            EXPECT_TRUE(!said.empty() && said != usual) << said;
            action.act();
            EXPECT_EQ(action.outcome(), action.wanted()) << said << Said();
        }
    }

    std::string Only(const std::string& sql) { return Stored(sql).at(0); }

    std::string Grid()
    {
        const QAbstractItemModel& rows = *The<QTableView>("grdTimeRecs").model();
        QStringList cells;
        for (int row = 0; row < rows.rowCount(); ++row) {
            for (int column = 0; column < rows.columnCount(); ++column) {
                cells << rows.index(row, column).data().toString();
            }
        }
        return cells.join("|").toStdString();
    }

    void Generate(const QString& name)
    {
        Pick(The<QComboBox>("cboTCEmployeeName"), name);
        Press("cmdGenTimeRecs");
    }

    int m_turn = 0;
};

// Where the employees were saved but could not be read again, the line offers to.
TEST_F(ScarceWindowsTest, AnEmployeeIsSaved)
{
    ClickTab(Main(), 3);
    auto& names = The<QComboBox>("cboEmployeeName");
    Try({[&] {
             if (names.findText("Ann Lee") < 0) {
                 Click(Find(Main(), "FrameArray(3)"), "cmdNotice");
             }
             Pick(names, "Ann Lee");
             Type(The<QLineEdit>("txtEmployeePhone"), QString("555-%1").arg(++m_turn));
         },
         [&] { Press("cmdEmployeeSave"); }, [&] { return Only("SELECT Phone AS x FROM Employee WHERE EmployeeID = 40"); },
         [&] { return fmt::format("555-{}", m_turn); }});
}

TEST_F(ScarceWindowsTest, ACardIsGenerated)
{
    Generate("Ann Lee");
    std::string shown = Grid();
    EXPECT_NE(shown, "");
    Try({[&] { Generate("Cy Orr"); }, [&] { Generate("Ann Lee"); }, [&] { return Grid(); }, [&] { return shown; }});
}

TEST_F(ScarceWindowsTest, AChangeIsUndoneAndDoneAgain)
{
    const auto records = [&] { return Only("SELECT COUNT(*) AS x FROM TimeRecord"); };
    Generate("Ann Lee");
    program.desktop.answers = {Answer::Yes};
    The<QTableView>("grdTimeRecs").selectRow(0);
    Press("cmdTCDelete");
    ASSERT_EQ(records(), "2") << Said();
    auto& undo = The<QAction>("mnuEditUndo");
    auto& redo = The<QAction>("mnuEditRedo");
    Try({[&] {
             if (records() == "3") {
                 redo.trigger();
             }
         },
         [&] { undo.trigger(); }, records, [] { return std::string("3"); }});
}

} // namespace

} // namespace ptk
