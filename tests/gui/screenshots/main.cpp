// Pictures of every window for a person to look at: ui_screenshots OUTDIR. Each at its smallest, first and a large size, light and dark.
#include "console/SampleBusiness.h"
#include "gui/GuiProgram.h"
#include "store/BulkWriter.h"

#include <cstdio>
#include <QSettings>
#include <QTemporaryDir>

namespace ptk {

namespace {

constexpr QSize kSmallScreen(1008, 652); // what a screen of 1024 x 700 leaves for a window
constexpr QSize kLarge(1600, 1000);
const DateTime kToday(CalendarDate{2003, 3, 5});
constexpr auto kCareless = "Helen Fitzgerald"; // types wrongly, once or twice

void FillSample(BulkWriter& writer)
{
    for (const CompanyRow& company : SampleCompanies()) {
        writer.AddCompany(company);
    }
    for (const SampleEmployee& employee : SampleEmployees(kToday)) {
        const std::int32_t id = writer.AddEmployee(employee.row);
        std::vector<TimeRecordRow> shifts = SampleShifts(employee, id, kToday);
        AddIrregularities(employee, shifts, kToday);
        for (const TimeRecordRow& shift : shifts) {
            writer.AddTimeRecord(shift);
        }
    }
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

// Three of three days, the one in the middle damaged; checked first, then the list without any.
void TakeRestore(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
    const QString folder = QString::fromStdString(program.folder.Path()) + "/backups";
    QDir(folder).removeRecursively();
    const auto take = [&](const QString& name) {
        const ModalScript script([&](QDialog& window) {
            while (Find<QTableWidget>(window, "grdBackups").findItems("checking...", Qt::MatchExactly).size() > 0) {
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
    list.setCurrentIndex(list.model()->index(0, 0));
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

void TakeOverview(FController& main, const Photographer& photographer)
{
    Find<QAction>(main, "mnuViewOverview").trigger();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != "OverviewWindow") {
            continue;
        }
        while (Find<QWidget>(*window, "cmdStop").isVisible()) {
            QCoreApplication::processEvents();
        }
        photographer.TakeSizes(*window, "overview");
        Find<QCheckBox>(*window, "chkOnlyProblems").setChecked(true);
        Find<QTableView>(*window, "grdOverview").selectRow(0);
        photographer.Take(*window, "overview-problems");
        window->close();
    }
}

void TakeViewers(GuiProgram& program, const Photographer& photographer)
{
    FController& main = program.Main();
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
    TakeLogin(program, photographer);
    FController& main = program.Main();
    TakePages(main, photographer);
    TakeModal(main, "cmdTCNew", photographer, "time-editor");
    TakeModal(main, "cmdFill", photographer, "auto-fill");
    TakeAbout(main, photographer);
    TakeRestore(program, photographer);
    TakeFindings(main, photographer);
    TakeOverview(main, photographer);
    TakeViewers(program, photographer);
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
