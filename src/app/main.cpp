// The main function of ptk-admin: hands the windows to the start-up.
#include "platform/files/ProgramFolder.h"
#include "platform/system/Clock.h"
#include "platform/system/Process.h"
#include "platform/system/Version.h"
#include "shell/CError.h"
#include "startup/AdminMain.h"
#include "store/postgres/line/ServerAddress.h"
#include "ui/frame/EndFromOutside.h"
#include "ui/frame/LastWindow.h"
#include "ui/frame/QtDesktop.h"
#include "ui/frame/QtWindowFactory.h"
#include "ui/frame/SecondStart.h"
#include "ui/login/FServerPassword.h"
#include "ui/safety/FFirstStart.h"
#include "ui/work/PaintMeanwhile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <QApplication>
#include <QCommandLineParser>
#include <string_view>
#include <utility>

namespace {

constexpr auto kFolderOption = "program-folder";

// Shows the failures that leave an event handler, after which the program goes on.
class AdminApplication final : public QApplication
{
public:
    AdminApplication(int& argc, char** argv, ptk::Desktop& desktop) : QApplication(argc, argv), m_desktop(desktop) {}

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (ptk::PostponesClose(*receiver, *event)) {
            return true;
        }
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            ShowFailure();
            return false;
        }
    }

private:
    // Shows one box at a time: otherwise a failure to paint would show the next box while the first is open.
    void ShowFailure()
    {
        ptk::CError error(m_desktop);
        if (std::exchange(m_showing, true)) {
            return;
        }
        error.MessageBox(static_cast<std::int16_t>(ptk::Icon::Critical), static_cast<std::int16_t>(ptk::Buttons::Ok));
        m_showing = false;
    }

    ptk::Desktop& m_desktop;
    bool m_showing = false;
};

void DescribeOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription("Keeps companies and employees, corrects time records, pays and reports.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({kFolderOption, "Work beside the data in DIR instead of the program's own folder.", "DIR"});
}

// Prints the help or the version and ends the process where the command line asks for it: neither needs a display.
void AnswerWithoutDisplay(int argc, char** argv)
{
    const auto asked = [&](std::initializer_list<std::string_view> words) {
        return std::find_first_of(argv, argv + argc, words.begin(), words.end()) != argv + argc;
    };
    const bool version = asked({"-v", "--version"});
    if (!version && !asked({"-h", "--help", "--help-all"})) {
        return;
    }
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    DescribeOptions(parser);
    parser.parse(QCoreApplication::arguments());
    if (version) {
        parser.showVersion();
    }
    parser.showHelp();
}

// Ends a failed start with a status: without a display, Qt itself would end the process with a core dump.
void EndFailedStart(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    std::fputs(qPrintable(qFormatLogMessage(type, context, text) + '\n'), stderr);
    if (type == QtFatalMsg) {
        std::_Exit(EXIT_FAILURE);
    }
}

std::string ProgramFolderOption(const QApplication& application)
{
    QCommandLineParser parser;
    DescribeOptions(parser);
    parser.process(application);
    return parser.value(kFolderOption).toStdString();
}

// The program folder, chosen at the first start where there is none yet; empty where the user cancels that.
std::string FolderToWorkIn(const ptk::ProgramFolder& found, const ptk::Clock& clock)
{
    if (found.named || ptk::HoldsConfiguration(found.path)) {
        return found.path;
    }
    ptk::QtWindowFactory::DressWindows();
    ptk::FFirstStart first(found.path, clock);
    return first.exec() == QDialog::Accepted ? first.Folder() : std::string();
}

int Run(const QApplication& application, ptk::Desktop& desktop)
{
    const ptk::SystemClock clock;
    // Between login and main window no window is open, and this must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    const ptk::EndFromOutside end;
    const std::string folder = FolderToWorkIn(ptk::FindProgramFolder(ProgramFolderOption(application)), clock);
    if (folder.empty()) {
        return EXIT_FAILURE;
    }
    const ptk::SecondStart start(folder);
    if (start.IsSecond()) {
        return EXIT_SUCCESS;
    }
    ptk::AskForPasswordsWith(ptk::FServerPassword::Ask);
    ptk::PaintWhileWaiting();
    ptk::QtWindowFactory windows(folder, desktop, clock);
    ptk::AdminMain admin(folder, desktop, clock, windows, [](int status) { std::_Exit(status); });

    admin.Start();
    if (!ptk::IsAnyWindowShown()) {
        return EXIT_FAILURE; // the start-up has already told why
    }
    const ptk::LastWindow last([] { QApplication::exit(); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    ptk::SettleProcess();
    QCoreApplication::setOrganizationName("PTK");
    QCoreApplication::setApplicationName("ptk-admin");
    QCoreApplication::setApplicationVersion(ptk::Version());
    QApplication::setDesktopFileName("ptk-admin");
    AnswerWithoutDisplay(argc, argv);
    ptk::QtDesktop desktop;
    qInstallMessageHandler(EndFailedStart);
    const AdminApplication application(argc, argv, desktop);
    qInstallMessageHandler(nullptr);
    return Run(application, desktop);
}
