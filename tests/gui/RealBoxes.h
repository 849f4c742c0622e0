// For tests that go through windows with real message boxes: these are shown, and answered by keys as the window system delivers them.
#pragma once

#include "gui/GuiFixture.h"
#include "ui/frame/QtDesktop.h"

#include <deque>
#include <QtTest>

namespace ptk {

// Shows what the recording desktop only notes, and notes it as well; documents still go nowhere.
class ShowingDesktop final : public RecordingDesktop
{
public:
    Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override
    {
        boxes.push_back({text, title, icon, buttons});
        return m_real.MessageBox(text, title, icon, buttons);
    }

    Answer AskWithReason(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine& line) override
    {
        boxes.push_back({text, title, icon, buttons});
        return m_real.AskWithReason(text, title, icon, buttons, line);
    }

    void SetPointer(Pointer shape) override
    {
        pointer = shape;
        m_real.SetPointer(shape);
    }

private:
    QtDesktop m_real;
};

struct KeyPress
{
    const char* window; // class of the modal window that the key is meant for, "QMessageBox" for a box
    Qt::Key key;
    int reads = 0;                   // milliseconds that the user reads before the key
    std::function<void()> sees = {}; // called just before the key
};

// Presses one key after the other, each as soon as the window that it is meant for takes keys. A window that another one blocks never does:
// ten seconds after the start every modal window is closed, and the test has failed.
class KeyPresses
{
public:
    explicit KeyPresses(std::deque<KeyPress> presses) : m_presses(std::move(presses))
    {
        m_sinceStart.start();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { Look(); });
        m_timer.start(5);
    }
    ~KeyPresses() { EXPECT_TRUE(m_presses.empty()) << "no key could be pressed in a " << m_presses.front().window; }

private:
    void Look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        if (m_sinceStart.elapsed() > 10000) {
            return dialog->reject();
        }
        const bool takesKeys = dialog->isActiveWindow() || QApplication::activeWindow() == nullptr;
        if (takesKeys && !m_presses.empty() && dialog->inherits(m_presses.front().window) && IsRead()) {
            PressNext(*dialog);
        }
    }

    bool IsRead()
    {
        if (!m_sinceShown.isValid()) {
            m_sinceShown.start();
        }
        return m_sinceShown.elapsed() >= m_presses.front().reads;
    }

    void PressNext(QDialog& dialog)
    {
        const KeyPress press = m_presses.front();
        m_presses.pop_front();
        m_sinceShown.invalidate();
        if (press.sees) {
            press.sees();
        }
        if (dialog.isVisible()) {
            QTest::keyClick(dialog.windowHandle(), press.key);
        }
    }

    std::deque<KeyPress> m_presses;
    QTimer m_timer;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};

} // namespace ptk
