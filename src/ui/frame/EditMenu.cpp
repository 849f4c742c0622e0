#include "ui/frame/EditMenu.h"

#include "office/records/EmployeeTexts.h"
#include "platform/Succeeds.h"
#include "platform/system/BusyPointer.h"
#include "ui/boxes/SpentUndoKeys.h"
#include "ui/page/SharedRecords.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/ThemeIcon.h"

#include <QAction>
#include <QMenu>

namespace ptk {

namespace {

constexpr auto kUndoTitle = "Undo Error";
constexpr auto kRedoTitle = "Redo Error";
constexpr auto kUndone = "Undone: ";
constexpr auto kRedone = "Done again: ";
constexpr auto kNothingToUndo = "Nothing has been stored since login that could be undone";
constexpr auto kNothingToRedo = "Nothing has been undone that could be done again";
constexpr auto kUndo = "Undo";
constexpr auto kRedo = "Redo";
constexpr auto kBusy = "Not now: the program is busy";

constexpr qsizetype kMostCharacters = 60; // of a menu line: names have any length

QString Caption(const std::string& text)
{
    QString caption = QString::fromStdString(text);
    if (caption.size() > kMostCharacters) {
        caption = caption.left(kMostCharacters) + QChar(0x2026);
    }
    return "&" + caption.replace("&", "&&");
}

void ShowLine(QAction& line, bool possible, const std::string& text, const char* whyNot)
{
    line.setText(Caption(text));
    line.setEnabled(possible);
    line.setToolTip(possible ? QString::fromStdString(text) : QString(whyNot));
}

} // namespace

EditMenu::EditMenu(QMenu& menu, const Lines& lines, Workplace& host, std::function<bool()> isBusy)
    : QObject(&menu), m_lines(lines), m_host(host), m_isBusy(std::move(isBusy))
{
    menu.setToolTipsVisible(true);
    m_lines.undo.setIcon(ThemeIcon("undo"));
    m_lines.redo.setIcon(ThemeIcon("redo"));
    connect(&m_lines.undo, &QAction::triggered, this, &EditMenu::Undo);
    connect(&m_lines.redo, &QAction::triggered, this, &EditMenu::Redo);
    new SpentUndoKeys(this);
    connect(&m_host.SharedRecords(), &SharedRecords::UndoChanged, this, &EditMenu::Show);
    Show();
}

void EditMenu::Show()
{
    const UndoStack* stack = m_host.SharedRecords().Undo();
    const MovedStep* undo = stack == nullptr ? nullptr : stack->NextUndo();
    const MovedStep* redo = stack == nullptr ? nullptr : stack->NextRedo();
    ShowLine(m_lines.undo, undo != nullptr, undo != nullptr ? stack->UndoText() + Whose(*undo) : kUndo, kNothingToUndo);
    ShowLine(m_lines.redo, redo != nullptr, redo != nullptr ? stack->RedoText() + Whose(*redo) : kRedo, kNothingToRedo);
}

void EditMenu::Undo()
{
    Succeeds([this] { Move(true); }, [this](const Failure& failure) { Refuse(failure.Description(), kUndoTitle); });
}

void EditMenu::Redo()
{
    Succeeds([this] { Move(false); }, [this](const Failure& failure) { Refuse(failure.Description(), kRedoTitle); });
}

void EditMenu::Move(bool undo)
{
    SharedRecords& records = m_host.SharedRecords();
    if (records.Undo() == nullptr) {
        return;
    }
    if (m_isBusy()) {
        return (void)emit Said(kBusy);
    }
    const bool moved = [&] {
        const BusyPointer busy(m_host.Desktop());
        return undo ? records.UndoLast() : records.RedoLast();
    }();
    if (!moved) {
        return Refuse(records.Undo()->Refusal(), undo ? kUndoTitle : kRedoTitle);
    }
    const MovedStep step = records.Undo()->Moved();
    emit Moved(step, QString::fromStdString((undo ? kUndone : kRedone) + step.text + Whose(step)));
}

// Shows why nothing was done; an empty reason, since there was nothing to undo, is no refusal.
void EditMenu::Refuse(const std::string& reason, const char* title)
{
    if (!reason.empty()) {
        m_host.Log(reason);
        m_host.Desktop().Show(reason, title, Icon::Exclamation);
    }
}

// The owner of a time record, in brackets: the step's text names a time record by its time only.
std::string EditMenu::Whose(const MovedStep& step) const
{
    std::string name;
    if (step.table == "TimeRecord" && step.employee) {
        Succeeds([&] { name = DisplayNameOf(*m_host.Employees(), *step.employee); });
    }
    return name.empty() ? name : " (" + name + ")";
}

} // namespace ptk
