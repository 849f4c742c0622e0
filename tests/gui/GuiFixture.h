// The started program for tests of its windows.
#pragma once

#include "gui/GuiProgram.h"

#include <gtest/gtest.h>
#include <QtTest>

namespace ptk {

// A script for a modal window. The test fails where it was not run or left the window open.
class ExpectedModal final : public ModalScript
{
public:
    using ModalScript::ModalScript;
    ~ExpectedModal()
    {
        EXPECT_TRUE(WasRun()) << "no modal window came up";
        EXPECT_FALSE(LeftOpen()) << "the modal window stayed open";
    }
};

inline void Click(const QWidget& window, const QString& button)
{
    QTest::mouseClick(&Find<QAbstractButton>(window, button), Qt::LeftButton);
}

// Replaces what a box holds by typing, as a user does, and leaves the box by Tab.
inline void Type(QLineEdit& box, const QString& text)
{
    QApplication::setActiveWindow(box.window());
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, text);
    QTest::keyClick(&box, Qt::Key_Tab);
}

inline void ClickTab(const QWidget& main, int tab)
{
    auto& strip = Find<QTabBar>(main, "TabStrip");
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(tab - 1).center());
}

inline std::string StatusText(const QWidget& main)
{
    return Find<QLabel>(main, "StatusBarPanel2").text().toStdString();
}

} // namespace ptk
