#include "ui/frame/QtDesktop.h"

#include "platform/system/SystemShell.h"
#include "platform/Waiting.h"
#include "ui/boxes/ReasonBox.h"
#include "ui/work/ProgramEnd.h"
#include "ui/work/WindowPlace.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <optional>

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
    case Buttons::SaveDiscardCancel:
        return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
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
    case QMessageBox::Save:
        return Answer::Yes;
    case QMessageBox::No:
    case QMessageBox::Discard:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

// The answer to a box that is not shown: the one that changes nothing.
Answer Unasked(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
    case Buttons::SaveDiscardCancel:
        return Answer::Cancel;
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::Ok:
        break;
    }
    return Answer::Ok;
}

// The owner for a message box, so that the box is in front of everything that could cover it.
QWidget* Owner()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

// Widens the box for its title; by itself a message box is only as wide as its text wants it.
void MakeRoomForTitle(QMessageBox& box)
{
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        auto* room = new QSpacerItem(WidthFor(box.windowTitle()), 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
        grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
    }
}

// Adds a line for a reason between the text and the buttons.
ReasonBox& AddReason(QMessageBox& box, const ReasonLine& line)
{
    auto* reason = new ReasonBox(&box);
    reason->Offer(line);
    if (line.wanted) {
        reason->setFocus();
    }
    auto* row = new QHBoxLayout;
    row->addWidget(reason->NewLabel());
    row->addWidget(reason, 1);
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    auto* buttons = box.findChild<QDialogButtonBox*>();
    if (grid == nullptr || buttons == nullptr) {
        box.layout()->addItem(row);
        return *reason;
    }
    grid->removeWidget(buttons);
    const int below = grid->rowCount();
    grid->addLayout(row, below, 0, 1, grid->columnCount());
    grid->addWidget(buttons, below + 1, 0, 1, grid->columnCount());
    return *reason;
}

// Lifts the wait pointer while a box is open, because it would say that the box cannot be answered.
class PlainPointer
{
public:
    PlainPointer()
    {
        if (const QCursor* shape = QApplication::overrideCursor()) {
            m_lifted = *shape;
            QApplication::restoreOverrideCursor();
        }
    }
    ~PlainPointer()
    {
        if (m_lifted) {
            QApplication::setOverrideCursor(*m_lifted);
        }
    }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;

private:
    std::optional<QCursor> m_lifted;
};

} // namespace

Answer QtDesktop::MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons)
{
    return Ask(text, title, icon, buttons, nullptr);
}

Answer QtDesktop::AskWithReason(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine& line)
{
    return Ask(text, title, icon, buttons, &line);
}

Answer QtDesktop::Ask(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine* line)
{
    if (IsEnding()) {
        return Unasked(buttons);
    }
    const PlainPointer pointer;
    QMessageBox box(ToQt(icon), QString::fromStdString(title), QString(), ToQt(buttons), Owner());
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    if (buttons == Buttons::YesNo) {
        box.setDefaultButton(QMessageBox::No); // so that Enter, pressed without reading, loses nothing
        box.setEscapeButton(QMessageBox::No);
    }
    const ReasonBox* reason = line == nullptr ? nullptr : &AddReason(box, *line);
    MakeRoomForTitle(box);
    if (reason != nullptr && buttons == Buttons::YesNo) {
        // A user who has typed a reason has read the question.
        QObject::connect(reason, &QComboBox::editTextChanged, &box,
                         [&box](const QString& typed) { box.setDefaultButton(typed.isEmpty() ? QMessageBox::No : QMessageBox::Yes); });
    }
    const Answer answer = ToAnswer(box.exec());
    if (reason != nullptr) {
        line->reason = reason->Reason();
    }
    return answer;
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
    return Run(verb, path, "");
}

std::int32_t QtDesktop::Print(const DesktopWindow&, const std::string& path, const std::string& title)
{
    return Run(ShellVerb::Print, path, title);
}

std::int32_t QtDesktop::Run(ShellVerb verb, const std::string& path, const std::string& title)
{
    const bool busy = m_busy;
    SetPointer(Pointer::Busy);
    const std::int32_t code = RunSystemShell(verb, path, title, m_refusal, [] { return waiting::GoOn(); });
    SetPointer(busy ? Pointer::Busy : Pointer::Default);
    return code;
}

} // namespace ptk
