// ptk-admin: the windows over the start-up.
#include "platform/Clock.h"
#include "platform/ProgramFolder.h"
#include "shell/CError.h"
#include "startup/AdminMain.h"
#include "ui/LastWindow.h"
#include "ui/QtDesktop.h"
#include "ui/QtWindowFactory.h"

#include <cstdlib>
#include <QApplication>
#include <QCommandLineParser>
#include <utility>

namespace {

// What an event handler lets through is shown, and the program goes on.
class AdminApplication final : public QApplication
{
public:
    AdminApplication(int& argc, char** argv, ptk::Desktop& desktop) : QApplication(argc, argv), m_desktop(desktop) {}

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            ShowFailure();
            return false;
        }
    }

private:
    // One box at a time: a failure to paint would otherwise bring up the next while the first is open.
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

std::string ProgramFolderOption(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Keeps companies and employees, corrects time records, pays and reports.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"program-folder", "Work beside the data in DIR instead of the program's own folder.", "DIR"});
    parser.process(application);
    return parser.value("program-folder").toStdString();
}

int Run(const QApplication& application, ptk::Desktop& desktop)
{
    const std::string folder = ptk::FindProgramFolder(ProgramFolderOption(application));
    const ptk::SystemClock clock;
    ptk::QtWindowFactory windows(folder, desktop, clock);
    ptk::AdminMain admin(folder, desktop, clock, windows, [] { std::_Exit(EXIT_SUCCESS); });

    // Between the login and the main window there is no window, and the program must not take that for its end.
    QApplication::setQuitOnLastWindowClosed(false);
    admin.Start();
    if (!ptk::IsAnyWindowShown()) {
        return EXIT_SUCCESS; // the start-up has told why by then
    }
    const ptk::LastWindow last([] { QApplication::exit(); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setOrganizationName("PTK");
    QApplication::setApplicationName("ptk-admin");
    QApplication::setApplicationVersion("1.0");
    QApplication::setDesktopFileName("ptk-admin");
    ptk::QtDesktop desktop;
    const AdminApplication application(argc, argv, desktop);
    return Run(application, desktop);
}
