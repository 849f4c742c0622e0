// Pictures of every window for a person to look at: ui_screenshots OUTDIR. Each at its smallest, first and a large size, light and dark.
#include "gui/GuiProgram.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "office/business/SampleBusiness.h"
#include "office/payday/PaydayClosing.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/whole/BulkWriter.h"
#include "support/Files.h"
#include "support/OldDatabase.h"
#include "ui/boxes/DateCombo.h"
#include "ui/frame/QtDesktop.h"
#include "ui/login/FServerPassword.h"
#include "ui/safety/FFirstStart.h"
#include "ui/safety/FImport.h"
#include "ui/sheet/FImportEmployees.h"

#include <cstdio>
#include <QSettings>
#include <QTemporaryDir>

namespace ptk {

namespace {

constexpr QSize kSmallScreen(1008, 652); // what a screen of 1024 x 700 leaves for a window
constexpr QSize kLarge(1600, 1000);
const DateTime kToday(CalendarDate{2003, 3, 5});
constexpr auto kCareful = "Ann Lee";
constexpr auto kCareless = "Helen Fitzgerald"; // types wrongly, once or twice

void FillSample(BulkWriter& writer)
{
    AddSampleBusiness(writer, kToday);
}

QPalette DarkPalette()
{
    QPalette dark(QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    dark.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    dark.setColor(QPalette::PlaceholderText, QColor(0x8c, 0x8f, 0x94));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x88));
    }
    return dark;
}

class Photographer
{
public:
    Photographer(QString folder, QString theme) : m_folder(std::move(folder)), m_theme(std::move(theme)) {}

    void Take(QWidget& window, const QString& name) const
    {
        QCoreApplication::processEvents();
        const QString path = QString("%1/%2-%3.png").arg(m_folder, name, m_theme);
        if (!window.grab().save(path)) {
            throw std::runtime_error("cannot write " + path.toStdString());
        }
    }

    void TakeSizes(QWidget& window, const QString& name) const
    {
        const QSize first = window.size();
        Take(window, name + "-default");
        window.resize(1, 1); // as small as the window lets itself be made
        Take(window, name + "-smallest");
        window.resize(kSmallScreen);
        Take(window, name + "-1024");
        window.resize(kLarge);
        Take(window, name + "-large");
        window.resize(first);
    }

private:
    QString m_folder;
    QString m_theme;
};

void TakeFirstStart(const GuiProgram& program, const Photographer& photographer)
{
    FFirstStart window("/home/ann/.local/share/ptk-admin", program.clock);
    window.show();
    photographer.TakeSizes(window, "first-start");
    Find<QPushButton>(window, "cmdStart").click();
    photographer.Take(window, "first-start-refused");
    Find<QRadioButton>(window, "optFolder").click();
    photographer.Take(window, "first-start-folder");
}

void TakeServerPassword(const Photographer& photographer)
{
    FServerPassword window("postgresql://ann@books.example/ptk?sslmode=verify-full");
    window.show();
    photographer.TakeSizes(window, "server-password");
}

void TakeLogin(GuiProgram& program, const Photographer& photographer)
{
    const ModalScript login([&](QDialog& window) {
        photographer.Take(window, "login");
        const ModalScript help([&](QDialog& dialog) { photographer.Take(dialog, "login-help"); });
        Find<QPushButton>(window, "cmdHelp").click();
        Find<QLineEdit>(window, "txtName").setText("administrator");
        Find<QLineEdit>(window, "txtPassword").setText("wharf271");
        Find<QPushButton>(window, "cmdLogin").click();
    });
    program.Start();
}

// What a click opens modally.
void TakeModal(QWidget& main, const QString& button, const Photographer& photographer, const QString& name)
{
    const ModalScript script([&](QDialog& window) { photographer.Take(window, name); });
    Find<QAbstractButton>(main, button).click();
}

void TakeAbout(FController& main, const Photographer& photographer)
{
    const ModalScript script([&](QDialog& window) { photographer.Take(window, "about"); });
    Find<QAction>(main, "mnuHelpAbout").trigger();
}

void TakeShortcuts(FController& main, const Photographer& photographer)
{
    const ModalScript script([&](QDialog& window) { photographer.TakeSizes(window, "shortcuts"); });
    Find<QAction>(main, "mnuHelpShortcuts").trigger();
}

void TakePages(FController& main, const Photographer& photographer)
{
    Find<QComboBox>(main, "cboTCEmployeeName").setCurrentIndex(1);
    emit Find<QComboBox>(main, "cboTCEmployeeName").activated(1);
    Find<QPushButton>(main, "cmdPeriodBack").click();
    Find<QPushButton>(main, "cmdGenTimeRecs").click();
    const QStringList names{"timecards", "reports", "employees", "company", "options"};
    for (int page = 0; page < names.size(); ++page) {
        Find<QTabBar>(main, "TabStrip").setCurrentIndex(page);
        photographer.TakeSizes(main, "main-" + names[page]);
    }
    Find<QTabBar>(main, "TabStrip").setCurrentIndex(0);
}

// The table for everybody, and a profile of one's own.
void TakeAccountant(FController& main, const Photographer& photographer)
{
    Find<QTabBar>(main, "TabStrip").setCurrentIndex(1);
    Find<QComboBox>(main, "cboReports").setCurrentText("Accountants Review");
    Find<QPushButton>(main, "cmdSelectAll").click();
    photographer.TakeSizes(main, "main-reports-review");
    const ModalScript script([&](QDialog& window) {
        photographer.TakeSizes(window, "accountant");
        const ModalScript editor([&](QDialog& profile) { photographer.TakeSizes(profile, "profile"); });
        Find<QPushButton>(window, "cmdNew").click();
    });
    Find<QPushButton>(main, "cmdAccountant").click();
    Find<QTabBar>(main, "TabStrip").setCurrentIndex(0);
}

// Three of three days, the one in the middle damaged; checked first, then the list without any.
void TakeRestore(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    const QString folder = QString::fromStdString(program.folder.Path()) + "/backups";
    QDir(folder).removeRecursively();
    const auto take = [&](const QString& name) {
        const ModalScript script([&](QDialog& window) {
            while (!Find<QTableWidget>(window, "grdBackups").findItems("checking...", Qt::MatchExactly).empty()) {
                QCoreApplication::processEvents();
            }
            photographer.TakeSizes(window, name);
        });
        Find<QAction>(main, "mnuFileRestore").trigger();
    };
    take("restore-none");
    for (const int days : {-2, -1, 0}) {
        program.clock.now = DateTime(kToday.AddDays(days).Date(), {17, 4, 9});
        Find<QAction>(main, "mnuFileBackUp").trigger();
    }
    QFile::resize(folder + "/ptk_11-2003-03-04-170409.mdb", 30000);
    take("restore");
}

// Of somebody with problems, the list of them open; on the smallest window also what one comes to by scrolling.
void TakeFindings(FController& main, const Photographer& photographer)
{
    auto& employees = Find<QComboBox>(main, "cboTCEmployeeName");
    employees.setCurrentIndex(employees.findText(kCareless));
    emit employees.activated(employees.currentIndex());
    Find<QPushButton>(main, "cmdGenTimeRecs").click();
    auto& line = Find<QToolButton>(main, "cmdFindings");
    line.click();
    auto& list = Find<QListView>(main, "lstFindings");
    for (int row = 0; row < list.model()->rowCount() && !Find<QPushButton>(main, "cmdRemedy1").isVisible(); ++row) {
        list.setCurrentIndex(list.model()->index(row, 0)); // one that something can be done about
    }
    photographer.TakeSizes(main, "timecards-findings");
    const QSize first = main.size();
    main.resize(1, 1);
    QCoreApplication::processEvents();
    for (QWidget* parent = &list; parent != nullptr; parent = parent->parentWidget()) {
        if (auto* scroll = qobject_cast<QScrollArea*>(parent)) {
            scroll->ensureWidgetVisible(&list);
        }
    }
    photographer.Take(main, "timecards-findings-scrolled");
    main.resize(first);
    line.click();
}

// Of somebody whose period was paid and who got an hour more afterwards: the card, the editor asking why, and the question before a
// deletion.
void TakePaid(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    const auto generate = [&] {
        auto& employees = Find<QComboBox>(main, "cboTCEmployeeName");
        employees.setCurrentIndex(employees.findText(kCareful));
        emit employees.activated(employees.currentIndex());
        Find<QPushButton>(main, "cmdGenTimeRecs").click();
    };
    const auto database = program.Controller()->PTKDatabase();
    const auto id = program.Controller()->EmployeeList()->GetEmployeeByName(kCareful)->EmployeeID();
    generate();
    const auto day = [&](const char* box) { return ToDateTime(Find<DateCombo>(main, box).Text().toStdString()); };
    if (ClosePayday(database, {{day("dttbTCFrom"), day("dttbTCTo")}, {id}, program.clock.Now()}).empty()) {
        throw std::runtime_error("not paid");
    }
    generate();
    photographer.TakeSizes(main, "timecards-paid");
    Find<QTableView>(main, "grdTimeRecs").selectRow(0);
    main.EventSource(eventsource::TimeRecordGrid);
    const ModalScript script([&](QDialog& window) {
        Find<QLineEdit>(window, "dttbEndTime").setText("18:00");
        Find<QPushButton>(window, "cmdSave").click();
        photographer.Take(window, "time-editor-paid");
        Find<QComboBox>(window, "cboReason").setEditText("stayed for the delivery");
        Find<QPushButton>(window, "cmdSave").click();
    });
    Find<QPushButton>(main, "cmdTCEdit").click();
    Find<QToolButton>(main, "cmdFindings").click();
    Find<QListView>(main, "lstFindings").setCurrentIndex(Find<QListView>(main, "lstFindings").model()->index(0, 0));
    photographer.TakeSizes(main, "timecards-changed");
    Find<QToolButton>(main, "cmdFindings").click();
    const ModalScript asked([&](QDialog& window) { photographer.Take(window, "delete-paid"); });
    ReasonLine line{{"stayed for the delivery"}, true, {}};
    QtDesktop().AskWithReason("Deleting will remove this time record from the database permanently. Continue?", "Delete Time Record?",
                              Icon::Question, Buttons::YesNo, line);
}

QWidget& TopLevel(const char* name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name) {
            return *window;
        }
    }
    throw std::runtime_error(std::string("no ") + name);
}

QWidget& ReadOverview(FController& main)
{
    Find<QAction>(main, "mnuViewOverview").trigger();
    QWidget& window = TopLevel("OverviewWindow");
    while (Find<QWidget>(window, "cmdStop").isVisible()) {
        QCoreApplication::processEvents();
    }
    return window;
}

void TakeOverview(FController& main, const Photographer& photographer)
{
    QWidget& window = ReadOverview(main);
    photographer.TakeSizes(window, "overview");
    Find<QCheckBox>(window, "chkOnlyProblems").setChecked(true);
    Find<QTableView>(window, "grdOverview").selectRow(0);
    photographer.Take(window, "overview-problems");
    Find<QCheckBox>(window, "chkOnlyProblems").setChecked(false);
    Find<QTableView>(window, "grdOverview").clearSelection();
    window.close();
}

// Mending, a shift for several people, the closed payday and its account, with somebody inactive who worked.
void TakePayday(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    const auto database = std::make_shared<CJetDB>(program.folder.Path());
    database->DatabaseName(NativePath(program.databasePath).string());
    const auto run = [&](const char* sql) {
        if (!database->ExecuteAction(sql)) {
            throw database->LastFailure();
        }
    };
    run("DELETE FROM _Payday"); // of the pictures before
    run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT EmployeeID, #3/3/2003 8:00 AM#, #3/3/2003 4:30 PM# FROM Employee "
        "WHERE "
        "LastName = 'Lindqvist'");
    run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 77, #3/3/2003 8:00 AM#, #3/3/2003 4:30 PM#");
    QWidget& window = ReadOverview(main);
    photographer.TakeSizes(window, "payday-left-out");
    Find<QPushButton>(window, "cmdTakeIn").click();
    {
        const ModalScript mend([&](QDialog& dialog) { photographer.TakeSizes(dialog, "mend-several"); });
        Find<QPushButton>(window, "cmdMend").click();
    }
    {
        const ModalScript add([&](QDialog& dialog) {
            Find<QPushButton>(dialog, "cmdAutoShift").click();
            photographer.TakeSizes(dialog, "add-shift");
        });
        Find<QAction>(window, "mnuAddShift").trigger();
    }
    Find<QMenu>(window, "mnuMore").popup(window.mapToGlobal(QPoint()));
    photographer.Take(Find<QMenu>(window, "mnuMore"), "payday-more");
    Find<QMenu>(window, "mnuMore").close();
    Find<QPushButton>(window, "cmdClosePayday").click();
    ReadOverview(main);
    photographer.TakeSizes(window, "payday-closed");
    {
        const ModalScript lines([&](QDialog& dialog) { photographer.Take(dialog, "payday-lines"); });
        Find<QToolButton>(window, "cmdNotice").click();
    }
    run("UPDATE TimeRecord SET EndTime = datetime(EndTime, '+30 minutes') WHERE TimeRecordID IN (SELECT MAX(TimeRecordID) FROM TimeRecord "
        "WHERE EmployeeID IN (SELECT EmployeeID FROM _Payday) GROUP BY EmployeeID)");
    Find<QAction>(window, "mnuAccount").trigger();
    QWidget& account = TopLevel("AccountWindow");
    photographer.TakeSizes(account, "account");
    account.close();
    window.close();
}

// After a record was deleted, and after it is back.
void TakeEditMenu(FController& main, RecordingDesktop& desktop, const Photographer& photographer)
{
    desktop.answers = {Answer::Yes};
    Find<QTableView>(main, "grdTimeRecs").setCurrentIndex(Find<QTableView>(main, "grdTimeRecs").model()->index(0, 0));
    main.EventSource(eventsource::TimeRecordGrid);
    Find<QPushButton>(main, "cmdTCDelete").click();
    auto& menu = Find<QMenu>(main, "mnuEdit");
    menu.popup(main.mapToGlobal(QPoint()));
    photographer.Take(menu, "edit-menu");
    menu.close();
    Find<QAction>(main, "mnuEditUndo").trigger();
    photographer.Take(main, "timecards-undone");
}

QWidget& History()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "HistoryWindow") {
            return *window;
        }
    }
    throw std::runtime_error("no history");
}

// Some weeks of corrections by three people and another program, dated as if they were made one after the other.
void MakeEdits(const GuiProgram& program)
{
    const auto database = std::make_shared<CJetDB>(program.folder.Path());
    database->DatabaseName(NativePath(program.databasePath).string());
    const auto by = [&](const char* person, const char* name, const std::string& sql) {
        database->StoredBy({person, name});
        if (!database->ExecuteAction(sql)) {
            throw database->LastFailure();
        }
    };
    const std::string some =
        " WHERE TimeRecordID IN (SELECT TimeRecordID FROM TimeRecord WHERE EndTime > StartTime ORDER BY StartTime DESC LIMIT ";
    by("Susan Whitcombe-Harrington", "ptk-admin", "UPDATE TimeRecord SET StartTime = datetime(StartTime, '-15 minutes')" + some + "300)");
    by("administrator", "ptk-admin", "UPDATE TimeRecord SET EndTime = datetime(EndTime, '+1 hour')" + some + "12)");
    by("root", "ptk-console",
       "UPDATE Employee SET PayRate = PayRate + 0.5, Phone = '555-0199', City = 'Springfield' WHERE EmployeeID < 44");
    by("", "", "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 41, #3/4/2003 8:00 AM#, #3/4/2003 5:00 PM#");
    by("administrator", "ptk-admin", "UPDATE _System SET period_length = 13");
    by("administrator", "ptk-admin", "UPDATE Company SET Phone = '555-0142'");
    by("administrator", "ptk-admin", "DELETE FROM TimeRecord" + some + "3)");
    by("administrator", "ptk-admin",
       "UPDATE _Change SET ChangedAt = datetime('2003-03-05 08:05:00', '-' || (((SELECT MAX(ChangeID) FROM _Change) - ChangeID) * 11) "
       "|| ' minutes')");
}

void TakeHistory(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    Find<QAction>(main, "mnuViewHistory").trigger();
    photographer.Take(History(), "history-empty");
    History().close();
    MakeEdits(program);
    Find<QAction>(main, "mnuViewHistory").trigger();
    Find<QTableView>(History(), "grdHistory").selectRow(7);
    photographer.TakeSizes(History(), "history");
    Find<QPushButton>(main, "cmdGenTimeRecs").click();
    Find<QAction>(main, "mnuViewCardHistory").trigger();
    photographer.TakeSizes(History(), "history-card");
    History().close();
}

void TakeImport(GuiProgram& program, const Photographer& photographer)
{
    const std::string old = program.folder.Path() + "/old.mdb";
    WriteOldDatabase(old, 2);
    FImport window(&program.Main(), [&](ImportOrder order, const ImportProgress& progress) {
        order.database = program.folder.Path() + "/system/new.mdb";
        order.programFolder = program.folder.Path();
        return ImportOldDatabase(order, progress);
    });
    window.show();
    photographer.TakeSizes(window, "import-empty");
    Find<QLineEdit>(window, "txtFile").setText(QString::fromStdString(old));
    Find<QPushButton>(window, "cmdRead").click();
    photographer.TakeSizes(window, "import-damaged");
    Find<QCheckBox>(window, "chkAccept").click();
    Find<QPushButton>(window, "cmdImport").click();
    photographer.Take(window, "import-done");
}

void TakeImportEmployees(GuiProgram& program, const Photographer& photographer)
{
    const auto database = program.Main().Controller()->PTKDatabase();
    FImportEmployees window(&program.Main(),
                            [&](const EmployeeOrder& order, const GoesOn& goesOn) { return ImportEmployees(database, order, goesOn); });
    const auto read = [&](const std::string& text) {
        const std::string file = program.folder.Path() + "/employees.csv";
        WriteBytes(file, text);
        Find<QLineEdit>(window, "txtFile").setText(QString());
        Find<QLineEdit>(window, "txtFile").setText(QString::fromStdString(file));
        Find<QPushButton>(window, "cmdRead").click();
    };
    window.show();
    photographer.TakeSizes(window, "import-employees-empty");
    read("Number,Last Name,SSN,Shoe Size\n103,,1,44\n900,Fox,,41\n");
    photographer.Take(window, "import-employees-refused");
    read("Number,Last Name,SSN,Phone,Address 1,Regular Pay Rate\n900,Fox,1,,,9\n"
         "103,Fitzgerald-Montgomery,2,555-0100,1200 North Lake Shore Drive and a very long way,15.75\n105,Lee,3,555-0101,,16\n");
    Find<QTableView>(window, "grdDifferences")
        .model()
        ->setData(Find<QTableView>(window, "grdDifferences").model()->index(1, 0), Qt::Checked, Qt::CheckStateRole);
    photographer.TakeSizes(window, "import-employees");
    Find<QPushButton>(window, "cmdSave").click();
    photographer.Take(window, "import-employees-done");
}

void TakeViewers(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    auto& employees = Find<QComboBox>(main, "cboTCEmployeeName");
    employees.setCurrentIndex(employees.findText(kCareful));
    emit employees.activated(employees.currentIndex());
    Find<QPushButton>(main, "cmdGenTimeRecs").click();
    Find<QPushButton>(main, "cmdTCPrint").click();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->findChild<QWidget*>("txtReport") != nullptr) {
            photographer.TakeSizes(*window, "viewer");
            program.desktop.shellCodes = {ShellNoProgram};
            program.desktop.refusal = "no program is set up for this kind of document";
            Find<QPushButton>(*window, "cmdOpenPdf").click();
            photographer.TakeSizes(*window, "viewer-notice");
        }
    }
}

void TakeAll(const QString& folder, const QString& theme)
{
    const Photographer photographer(folder, theme);
    GuiProgram program(FillSample);
    TakeFirstStart(program, photographer);
    TakeServerPassword(photographer);
    TakeLogin(program, photographer);
    FController& main = program.Main();
    TakePages(main, photographer);
    TakeModal(main, "cmdTCNew", photographer, "time-editor");
    TakeModal(main, "cmdFill", photographer, "auto-fill");
    TakeAbout(main, photographer);
    TakeShortcuts(main, photographer);
    TakeAccountant(main, photographer);
    TakeRestore(program, photographer);
    TakeImport(program, photographer);
    TakeImportEmployees(program, photographer);
    TakeFindings(main, photographer);
    TakePaid(program, photographer);
    TakeOverview(main, photographer);
    TakeViewers(program, photographer);
    TakeHistory(program, photographer);
    TakeEditMenu(main, program.desktop, photographer);
    TakePayday(program, photographer);
}

int Run(int argc, char** argv)
{
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QApplication::setOrganizationName("PTK");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc != 2) {
        std::fputs("usage: ui_screenshots OUTDIR\n", stderr);
        return 2;
    }
    QDir().mkpath(argv[1]);
    TakeAll(argv[1], "light");
    QApplication::setPalette(DarkPalette());
    TakeAll(argv[1], "dark");
    return 0;
}

} // namespace

} // namespace ptk

int main(int argc, char** argv)
{
    return ptk::Run(argc, argv);
}
