// Takes a started program through a payday and measures how long its windows are deaf in each action.
#pragma once

#include "gui/deaf/Deafness.h"
#include "gui/GuiFixture.h"
#include "store/whole/BulkWriter.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/DateTimeBox.h"

#include <fmt/format.h>

#include <functional>
#include <string>
#include <vector>

namespace ptk {

// Adds twenty people who worked each day from 24 February to 4 March 2003, which is yesterday, and on each of the `daysBefore` days before
// that. 03 Kim has not ended the shift of 3 March, 05 Kim one of 21 February.
inline void AddDeafStaff(BulkWriter& writer, int daysBefore)
{
    EmployeeRow employee;
    employee.EmployeeActive = true;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    employee.LastName = "Kim";
    employee.SSN = "1";
    for (int person = 0; person < 20; ++person) {
        employee.FirstName = fmt::format("{:02}", person);
        const std::int32_t id = writer.AddEmployee(employee);
        constexpr std::int64_t kHour = 3600;
        constexpr std::int64_t kDay = 24 * kHour;
        const std::int64_t last = DateTime({2003, 3, 4}).Seconds();
        for (int day = -daysBefore - 8; day <= 0; ++day) {
            const DateTime start = DateTime::FromSeconds(last + day * kDay + 8 * kHour);
            const bool isOpen = (person == 3 && day == -1) || (person == 5 && day == -11);
            writer.AddTimeRecord({-1, id, start, isOpen ? DateTime() : DateTime::FromSeconds(start.Seconds() + 9 * kHour)});
        }
        if (person == 5 && daysBefore == 0) {
            writer.AddTimeRecord({-1, id, DateTime({2003, 2, 21}, {8, 0, 0}), DateTime()});
        }
    }
}

class DeafDesk
{
public:
    struct Heard
    {
        const char* action;
        std::chrono::milliseconds longest;
    };

    // `before` is called before each action. With an address the program works on the database there, else on its own file.
    DeafDesk(int daysBefore, std::function<void(const std::string& file)> before, const std::string& address = "")
        : m_program([=](BulkWriter& writer) { AddDeafStaff(writer, daysBefore); }), m_before(std::move(before))
    {
        if (!address.empty()) {
            WriteBytes(m_program.configPath, "[PTK]\r\nDatabasePath=" + address + "\r\nShowLoginHelp=False\r\n");
        }
        Measure("start, log in", [this] { m_program.LogIn(); });
    }

    // Does the actions in the order of a payday: all, or a few for a short trial.
    void GoThrough(bool all)
    {
        ShowCard();
        Store();
        if (all) {
            FillAndUndo();
            KeepRecords();
            Oversee();
            Report();
            SetOptions();
            Import();
            if (The<QAction>("mnuFileRestore").isEnabled()) { // not on a server
                GoBackToABackup();
            }
        }
        Measure("back up", [this] { Find<QAction>(Main(), "mnuFileBackUp").trigger(); });
        Measure("exit", [this] { m_program.Controller()->UnloadControllerWindow(); });
    }

    void Measure(const char* action, const std::function<void()>& work)
    {
        SCOPED_TRACE(action);
        m_before(NativePath(m_program.databasePath).string());
        m_deafness.Begin();
        work();
        m_heard.push_back({action, m_deafness.Longest()});
        for (const ShownBox& box : m_program.desktop.Take()) {
            EXPECT_TRUE(box.buttons == Buttons::YesNo) << action << ": " << box.text;
        }
    }

    [[nodiscard]] const std::vector<Heard>& AllHeard() const { return m_heard; }
    FController& Main() { return m_program.Main(); }
    GuiProgram& Program() { return m_program; }

private:
    static constexpr int kReports = 2;
    static constexpr int kEmployees = 3;
    static constexpr int kCompanies = 4;
    static constexpr int kOptions = 5;

    template <typename Control>
    Control& The(const char* name)
    {
        return Find<Control>(Main(), name);
    }
    void Press(const char* button) { Click(Main(), button); }
    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }

    static void Pick(QComboBox& box, int row)
    {
        box.setCurrentIndex(row);
        emit box.activated(row);
    }

    static QWidget& TopLevel(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && window->isVisible()) {
                return *window;
            }
        }
        throw std::runtime_error(std::string("no ") + name);
    }

    // Waits until the window hides its Stop button, which it shows as long as it reads or saves. It begins that once it is there.
    static void WaitUntilRead(const char* window)
    {
        QTest::qWait(20);
        EXPECT_TRUE(QTest::qWaitFor([=] { return !Find(TopLevel(window), "cmdStop").isVisible(); }, 60000));
    }

    void ShowCard()
    {
        Press("cmdPeriodBack");
        Measure("generate a card", [this] {
            Pick(The<QComboBox>("cboTCEmployeeName"), 0);
            Press("cmdGenTimeRecs");
        });
        EXPECT_GT(Grid().model()->rowCount(), 5);
    }

    void Store()
    {
        Measure("edit, save", [this] {
            Grid().selectRow(0);
            const ExpectedModal editor([](QDialog& window) {
                Type(Find<DateTimeBox>(window, "dttbEndTime"), "430p");
                Click(window, "cmdSave");
            });
            Press("cmdTCEdit");
        });
    }

    void FillAndUndo()
    {
        Measure("delete", [this] {
            Grid().selectRow(1);
            m_program.desktop.answers = {Answer::Yes};
            Press("cmdTCDelete");
        });
        Measure("undo", [this] { The<QAction>("mnuEditUndo").trigger(); });
        Measure("auto fill", [this] {
            const ExpectedModal window([](QDialog& fill) {
                Type(*Find<DateCombo>(fill, "dttbTCFrom").lineEdit(), "2/20");
                Type(*Find<DateCombo>(fill, "dttbTCTo").lineEdit(), "2/22");
                Click(fill, "cmdAutoShift");
                Click(fill, "cmdSave");
            });
            Press("cmdFill");
        });
        Measure("undo the fill", [this] { The<QAction>("mnuEditUndo").trigger(); });
    }

    void KeepRecords()
    {
        Measure("show an employee", [this] {
            ClickTab(Main(), kEmployees);
            Pick(The<QComboBox>("cboEmployeeID"), 1);
        });
        Measure("save an employee", [this] {
            Type(The<QLineEdit>("txtPayRate"), "20");
            Press("cmdEmployeeSave");
        });
        Measure("save a company", [this] {
            ClickTab(Main(), kCompanies);
            Press("cmdCompanyNew");
            Type(*The<QComboBox>("cboCompanyName").lineEdit(), "Harbour");
            Press("cmdCompanySave");
        });
        Measure("history", [this] {
            The<QAction>("mnuViewHistory").trigger();
            WaitUntilRead("HistoryWindow");
        });
    }

    void Oversee()
    {
        Measure("overview", [this] {
            The<QAction>("mnuViewOverview").trigger();
            WaitUntilRead("OverviewWindow");
        });
        Measure("mend several", [] {
            const ExpectedModal mending([](QDialog& window) {
                EXPECT_GT(Find<QTableView>(window, "grdMend").model()->rowCount(), 0);
                window.reject();
            });
            Click(TopLevel("OverviewWindow"), "cmdMend");
            WaitUntilRead("OverviewWindow");
        });
        Measure("mend, save", [] {
            const ExpectedModal mending([](QDialog& window) { Click(window, "cmdSave"); });
            Click(TopLevel("OverviewWindow"), "cmdMend");
            WaitUntilRead("OverviewWindow");
        });
        Measure("add a shift", [] {
            const ExpectedModal adding([](QDialog& window) {
                Find<DateCombo>(window, "dttbShiftDay").SetText("3/1/2003");
                Find<QLineEdit>(window, "dttbShiftStart").setText("8");
                Find<QLineEdit>(window, "dttbShiftEnd").setText("12");
                Click(window, "cmdSave");
            });
            Find<QAction>(TopLevel("OverviewWindow"), "mnuAddShift").trigger();
            WaitUntilRead("OverviewWindow");
        });
        Measure("close the payday", [this] {
            m_program.desktop.answers = {Answer::Yes};
            Click(TopLevel("OverviewWindow"), "cmdClosePayday");
            WaitUntilRead("OverviewWindow");
        });
        Measure("account", [] {
            Find<QAction>(TopLevel("OverviewWindow"), "mnuAccount").trigger();
            EXPECT_GT(Find<QTableView>(TopLevel("AccountWindow"), "grdAccount").model()->rowCount(), 0);
        });
    }

    void Report()
    {
        Measure("reports", [this] {
            ClickTab(Main(), kReports);
            The<QListView>("lstEmployees")
                .selectionModel()
                ->select(The<QListView>("lstEmployees").model()->index(1, 0), QItemSelectionModel::Select);
            Press("cmdGenerate");
        });
        Measure("for accountant", [this] {
            The<QComboBox>("cboReports").setCurrentText("Accountants Review");
            Press("cmdSelectAll");
            const ExpectedModal table([](QDialog& window) { Click(window, "cmdClose"); });
            Press("cmdAccountant");
        });
    }

    void SetOptions()
    {
        Measure("options", [this] {
            ClickTab(Main(), kOptions);
            Type(The<QLineEdit>("txtPeriodLength"), "13");
            Press("cmdApplyOptions");
        });
    }

    void Import()
    {
        const std::string file = m_program.folder.Path() + "/sheet.csv";
        const auto import = [&](const char* action, const char* save) {
            const ExpectedModal sheet([&](QDialog& window) {
                Type(Find<QLineEdit>(window, "txtFile"), QString::fromStdString(file));
                Click(window, "cmdRead");
                Click(window, save);
                Click(window, "cmdCancel");
            });
            The<QAction>(action).trigger();
        };
        std::string punches = "ID,Start,End\n";
        std::string people = "Number,First Name,Last Name,SSN\n";
        for (int line = 0; line < 300; ++line) {
            punches += fmt::format("{},2003-02-{:02} 08:00,2003-02-{:02} 17:00\n", 40 + line % 20, 1 + line / 20, 1 + line / 20);
            people += fmt::format("{},Ann,Lee {},{}\n", 1000 + line, line, 1000 + line);
        }
        WriteBytes(file, punches);
        Measure("import punches", [&] { import("mnuFilePunches", "cmdImport"); });
        WriteBytes(file, people);
        Measure("import employees", [&] { import("mnuFileEmployees", "cmdSave"); });
    }

    void GoBackToABackup()
    {
        Measure("back up, restore", [this] {
            The<QAction>("mnuFileBackUp").trigger();
            m_program.desktop.answers = {Answer::Yes};
            const ExpectedModal choice([](QDialog& window) {
                const auto& list = Find<QTableWidget>(window, "grdBackups");
                EXPECT_TRUE(QTest::qWaitFor([&] { return list.findItems("checking...", Qt::MatchExactly).isEmpty(); }, 60000));
                Find<QPushButton>(window, "cmdRestore").click();
            });
            The<QAction>("mnuFileRestore").trigger();
        });
    }

    GuiProgram m_program;
    std::function<void(const std::string& file)> m_before;
    Deafness m_deafness;
    std::vector<Heard> m_heard;
};

} // namespace ptk
