// The Edit menu: undoing and redoing what was stored since login.
#pragma once

#include "office/records/UndoStack.h"

#include <functional>
#include <QObject>

class QAction;
class QMenu;

namespace ptk {

class Workplace;

// The lines say what they would undo or redo, and whose record that is. A box with the keyboard keeps their keys while it has something to
// undo or redo in its own text.
class EditMenu final : public QObject
{
    Q_OBJECT

public:
    struct Lines
    {
        QAction& undo;
        QAction& redo;
    };

    // Everything that is handed in outlives the menu. `isBusy` says that nothing can be undone just now.
    EditMenu(QMenu& menu, const Lines& lines, Workplace& host, std::function<bool()> isBusy);

signals:
    // A step was undone or done again; `done` says which: "Undone: Delete 03/05/2003 08:00 AM (Ann Lee)".
    void Moved(const ptk::MovedStep& step, const QString& done);

    // Nothing was done; `text` says why.
    void Said(const QString& text);

private:
    void Show();
    void Undo();
    void Redo();
    void Move(bool undo);
    void Refuse(const std::string& reason, const char* title);
    [[nodiscard]] std::string Whose(const MovedStep& step) const;

    Lines m_lines;
    Workplace& m_host;
    std::function<bool()> m_isBusy;
};

} // namespace ptk
