// The whole program with its real windows, on a real database in a temporary folder; only message boxes and the shell are recorded.
#pragma once

#include "platform/files/ProgramFolder.h"
#include "startup/AdminMain.h"
#include "startup/CController.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"
#include "ui/frame/FController.h"
#include "ui/frame/QtWindowFactory.h"

#include <functional>
#include <QtWidgets>
#include <stdexcept>
#include <string>

namespace ptk {

// The control of that name. Raises a runtime_error with the name where there is none, which ends the test.
template <typename Control = QWidget>
Control& Find(const QWidget& window, const QString& name)
{
    auto* control = window.findChild<Control*>(name);
    if (control == nullptr) {
        throw std::runtime_error("no such control: " + name.toStdString());
    }
    return *control;
}

// What a user does in the next modal window. The script is run as soon as the window is up and must close it; one left open is rejected.
class ModalScript
{
public:
    explicit ModalScript(std::function<void(QDialog&)> script) : m_script(std::move(script))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { Look(); });
        m_timer.start(0);
    }

    bool WasRun() const { return m_run; }
    bool LeftOpen() const { return m_leftOpen; }

private:
    void Look()
    {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        m_run = true;
        m_timer.stop();
        m_script(*dialog);
        m_leftOpen = dialog != nullptr && dialog->isVisible();
        if (m_leftOpen) {
            dialog->reject();
        }
    }

    std::function<void(QDialog&)> m_script;
    QTimer m_timer;
    bool m_run = false;
    bool m_leftOpen = false;
};

// The program on a desktop of the test's choice. Today is Wednesday, 5 March 2003, 8:05:09 AM unless the test sets the clock before Start.
template <typename ItsDesktop>
class GuiProgramOn
{
public:
    explicit GuiProgramOn(const std::function<void(BulkWriter&)>& fill = {})
    {
        WriteBytes(configPath, "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=True\r\n");
        CreateDatabase(NativePath(databasePath).string(), fill);
    }

    ~GuiProgramOn()
    {
        if (m_main.Controller() != nullptr) {
            m_main.Controller()->UnloadControllerWindow();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    GuiProgramOn(const GuiProgramOn&) = delete;
    GuiProgramOn& operator=(const GuiProgramOn&) = delete;

    void Start() { m_main.Start(); }

    // Starts the program and logs in with the administrator's account.
    void LogIn()
    {
        const ModalScript login([](QDialog& window) {
            Find<QLineEdit>(window, "txtName").setText("administrator");
            Find<QLineEdit>(window, "txtPassword").setText("wharf271");
            Find<QPushButton>(window, "cmdLogin").click();
        });
        Start();
    }

    std::shared_ptr<CController> Controller() const { return m_main.Controller(); } // nullptr after the end routine
    FController& Main() const { return dynamic_cast<FController&>(*Controller()->ControllerWindow()); }

    TemporaryFolder folder;
    std::string configPath = folder.Path() + "\\system\\ptk_11.cfg";
    std::string databasePath = folder.Path() + "\\system\\ptk_11.mdb";
    std::string logPath = folder.Path() + "\\system\\errorlog.txt";
    ItsDesktop desktop;
    FixedClock clock;
    int ended = 0; // how often the end routine ran

private:
    QtWindowFactory m_windows{folder.Path(), desktop, clock};
    AdminMain m_main{folder.Path(), desktop, clock, m_windows, [this](int) { ++ended; }};
};

using GuiProgram = GuiProgramOn<RecordingDesktop>;

} // namespace ptk
