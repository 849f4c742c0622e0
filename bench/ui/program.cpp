// ptk_bench_program MODE FOLDER: the real program on a program folder, driven to one point and ended there.
//   login     until the login window is painted
//   main      from the accepted login until the main window is painted
//   generate  one click on Generate Timecard until the grid is painted
//   save      one employee changed and saved, until every list is filled again
//   viewer    a report of FOLDER (here a text file) from its first line until its viewer is painted
#include "Painted.h"
#include "platform/system/Clock.h"
#include "startup/AdminMain.h"
#include "startup/CController.h"
#include "ui/frame/QtDesktop.h"
#include "ui/frame/QtWindowFactory.h"
#include "ui/reports/ReportViewerWindow.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>

namespace {

// Time records of the measured file end on its last day, so that day is today.
class BenchClock final : public ptk::Clock
{
public:
    ptk::DateTime Now() const override { return ptk::DateTime({2026, 10, 17}, {12, 0, 0}); }
};

template <typename Widget>
Widget& Find(QWidget& window, const char* name)
{
    auto* widget = window.findChild<Widget*>(name);
    if (widget == nullptr) {
        qFatal("no %s", name);
    }
    return *widget;
}

void LogIn(QWidget& login)
{
    Find<QLineEdit>(login, "txtName").setText("administrator");
    Find<QLineEdit>(login, "txtPassword").setText("wharf271");
    Find<QPushButton>(login, "cmdLogin").click();
}

void Generate(QWidget& main)
{
    auto& names = Find<QComboBox>(main, "cboTCEmployeeName");
    names.setCurrentIndex(3);
    QApplication::processEvents();
    const bench::Time start = bench::Now();
    Find<QPushButton>(main, "cmdGenTimeRecs").click();
    auto& grid = Find<QAbstractItemView>(main, "grdTimeRecs");
    if (grid.model()->rowCount() == 0) {
        qFatal("no time records");
    }
    main.repaint();
    bench::Finish(start);
}

void Save(QWidget& main)
{
    Find<QTabBar>(main, "TabStrip").setCurrentIndex(2);
    auto& names = Find<QComboBox>(main, "cboEmployeeName");
    names.setCurrentIndex(4711);
    emit names.activated(4711);
    QApplication::processEvents();
    Find<QLineEdit>(main, "txtEmployeePhone").setText("555-0199");
    const bench::Time start = bench::Now();
    Find<QPushButton>(main, "cmdEmployeeSave").click();
    if (!Find<QLineEdit>(main, "txtEmployeePhone").text().isEmpty()) {
        qFatal("not saved");
    }
    main.repaint();
    bench::Finish(start);
}

// Line by line, as the report hands it over.
void ShowReport(const QString& file)
{
    const std::vector<std::string> lines = bench::Lines(file);
    const bench::Time start = bench::Now();
    const auto viewer = std::make_shared<ptk::ReportViewerWindow>("FReportReview");
    const bench::Painted painted(bench::Any, [&](QWidget&) { bench::Finish(start); });
    viewer->Caption("Accountant's Review");
    for (const std::string& line : lines) {
        viewer->WriteLine(line);
    }
    viewer->Show();
    QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const bench::Time started = bench::Now();
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const QString mode = argc == 3 ? argv[1] : "";
    if (mode == "viewer") {
        ShowReport(argv[2]);
    }
    bench::Time loggedIn;

    const bench::Painted login([](const QWidget& window) { return qobject_cast<const QDialog*>(&window) != nullptr; },
                               [&](QWidget& window) {
                                   if (mode == "login") {
                                       bench::Finish(started);
                                   }
                                   loggedIn = bench::Now();
                                   LogIn(window);
                               });
    const bench::Painted main([](const QWidget& window) { return qobject_cast<const QMainWindow*>(&window) != nullptr; },
                              [&](QWidget& window) {
                                  if (mode == "main") {
                                      bench::Finish(loggedIn);
                                  }
                                  if (mode == "generate") {
                                      Generate(window);
                                  }
                                  Save(window);
                              });
    ptk::QtDesktop desktop;
    const BenchClock clock;
    const std::string folder = argc == 3 ? argv[2] : ".";
    ptk::QtWindowFactory windows(folder, desktop, clock);
    ptk::AdminMain admin(folder, desktop, clock, windows, [](int) { std::_Exit(EXIT_FAILURE); });
    admin.Start();
    return QApplication::exec();
}
