#include "ui/frame/SecondStart.h"
#include "ui/work/WindowPlace.h"

#include <algorithm>
#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QSocketNotifier>

namespace ptk {

namespace {

// The name of the program in this folder, the same for all names that lead to the folder.
std::string ProgramIn(const std::string& folder)
{
    const QString whole = QFileInfo(QString::fromStdString(folder)).canonicalFilePath();
    return "ptk-admin " + (whole.isEmpty() ? folder : whole.toStdString());
}

QWidget* WindowInUse()
{
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    const auto windows = QApplication::topLevelWidgets();
    const auto main = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const QMainWindow*>(window) != nullptr;
    });
    return main == windows.end() ? nullptr : *main;
}

} // namespace

SecondStart::SecondStart(const std::string& folder) : m_program(ProgramIn(folder))
{
    if (m_program.Number() < 0) {
        return;
    }
    m_calls = std::make_unique<QSocketNotifier>(m_program.Number(), QSocketNotifier::Read);
    connect(m_calls.get(), &QSocketNotifier::activated, this, [this] {
        if (m_program.TakeCall()) {
            RaiseProgram();
        }
    });
}

SecondStart::~SecondStart() = default;

void RaiseProgram()
{
    if (QWidget* window = WindowInUse()) {
        BringForward(*window);
    }
}

} // namespace ptk
