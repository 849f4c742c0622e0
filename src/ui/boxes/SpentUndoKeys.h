// Passes the keys for undo and redo on to the window, where the box with the keyboard has nothing of its own to undo or redo.
#pragma once

#include <QObject>

namespace ptk {

// Without this a box takes the keys even when they do nothing there, and the window's shortcuts never see them.
class SpentUndoKeys final : public QObject
{
    Q_OBJECT

public:
    // Works from now on in all windows of the program.
    explicit SpentUndoKeys(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ptk
