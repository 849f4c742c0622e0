#include "ui/QtDesktop.h"

#include "platform/SystemShell.h"

#include <QApplication>
#include <QMessageBox>

namespace ptk {

namespace {

QMessageBox::Icon ToQt(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQt(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Answer ToAnswer(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

Answer QtDesktop::MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons)
{
    QMessageBox box(ToQt(icon), QString::fromStdString(title), QString(), ToQt(buttons), QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    if (buttons == Buttons::YesNo) {
        box.setDefaultButton(QMessageBox::No); // whoever presses Enter without reading loses nothing
        box.setEscapeButton(QMessageBox::No);
    }
    return ToAnswer(box.exec());
}

void QtDesktop::SetPointer(Pointer pointer)
{
    const bool busy = pointer == Pointer::Busy;
    if (busy == m_busy) {
        return;
    }
    m_busy = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

std::int32_t QtDesktop::Shell(const DesktopWindow&, ShellVerb verb, const std::string& path)
{
    return RunSystemShell(verb, path);
}

} // namespace ptk
