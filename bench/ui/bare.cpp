// ptk_bench_bare MODE FOLDER: windows of the same shape with nothing behind them.
//   login  a dialog with two boxes and three buttons
//   main   the five pages' forms in a window, their boxes on one shared list of the file's employees
//   viewer a text box with all of the text of FOLDER (here a file)
#include "model/CEmployeeList.h"
#include "Painted.h"
#include "store/CJetDB.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui_CardChoice.h"
#include "ui_CompanyPage.h"
#include "ui_EmployeePage.h"
#include "ui_OptionsPage.h"
#include "ui_ReportsPage.h"
#include "ui_TimeCardPage.h"

#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

namespace {

void BareLogin(bench::Time started)
{
    QDialog dialog;
    QFormLayout form(&dialog);
    QLineEdit name;
    QLineEdit password;
    password.setEchoMode(QLineEdit::Password);
    form.addRow("Username", &name);
    form.addRow("Password", &password);
    QHBoxLayout buttons;
    for (const char* caption : {"Login", "Cancel", "Help"}) {
        buttons.addWidget(new QPushButton(caption));
    }
    form.addRow(&buttons);
    const bench::Painted painted(bench::Any, [&](QWidget&) { bench::Finish(started); });
    dialog.exec();
}

template <typename Form>
void AddPage(QTabWidget& tabs, Form& form, const char* caption)
{
    auto* page = new QWidget;
    form.setupUi(page);
    tabs.addTab(page, caption);
}

void BareMain(const std::string& folder)
{
    const auto database = std::make_shared<ptk::CJetDB>(folder);
    const auto list = std::make_shared<ptk::CEmployeeList>();
    if (!list->LoadList(database)) {
        qFatal("no list");
    }
    const bench::Time start = bench::Now();
    ptk::EmployeeModels models;
    models.SetEmployees(list);
    QMainWindow window;
    QTabWidget tabs;
    Ui::TimeCardPage timeCards;
    Ui::ReportsPage reports;
    Ui::EmployeePage employees;
    Ui::CompanyPage company;
    Ui::OptionsPage options;
    AddPage(tabs, timeCards, "Timecards");
    AddPage(tabs, reports, "Reports");
    AddPage(tabs, employees, "Employees");
    AddPage(tabs, company, "Company");
    AddPage(tabs, options, "Options");
    auto* choice = new QWidget;
    Ui::CardChoice choiceForm;
    choiceForm.setupUi(choice);
    timeCards.layout->insertWidget(0, choice);
    ptk::ShowEmployees(*choiceForm.cboTCEmployeeName, models.Offered(), 14);
    ptk::ShowEmployees(*reports.lstEmployees, models.Offered());
    ptk::ShowEmployees(*employees.cboEmployeeID, models.All(ptk::EmployeeText::ID), 6);
    ptk::ShowEmployees(*employees.cboEmployeeName, models.All(ptk::EmployeeText::Name), 10);
    ptk::ShowEmployees(*employees.cboEmployeeSSN, models.All(ptk::EmployeeText::SSN), 10);
    ptk::ShowEmployees(*employees.cboEmployeeNumber, models.All(ptk::EmployeeText::Number), 10);
    window.menuBar()->addMenu("File");
    window.menuBar()->addMenu("Help");
    window.statusBar()->showMessage("Timecards");
    window.setCentralWidget(&tabs);
    window.resize(960, 660);
    window.show();
    const bench::Painted painted([&](const QWidget& widget) { return &widget == &window; }, [&](QWidget&) { bench::Finish(start); });
    QApplication::exec();
}

void BareViewer(const QString& file)
{
    QString text;
    for (const std::string& line : bench::Lines(file)) {
        text += QString::fromStdString(line) + '\n';
    }
    const bench::Time start = bench::Now();
    QPlainTextEdit box;
    box.setReadOnly(true);
    box.setLineWrapMode(QPlainTextEdit::NoWrap);
    box.setFont(QFont("Courier New"));
    box.resize(640, 560);
    const bench::Painted painted(bench::Any, [&](QWidget&) { bench::Finish(start); });
    box.setPlainText(text);
    box.show();
    QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const bench::Time started = bench::Now();
    const QApplication application(argc, argv);
    if (argc == 3 && QString(argv[1]) == "main") {
        BareMain(argv[2]);
    }
    if (argc == 3 && QString(argv[1]) == "viewer") {
        BareViewer(argv[2]);
    }
    BareLogin(started);
    return EXIT_FAILURE;
}
