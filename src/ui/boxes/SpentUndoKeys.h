// The keys for undo and redo, where the box that has the keyboard has nothing of its own to undo or redo.
#pragma once

#include <QObject>

namespace ptk {

// Has such a box leave these keys to the shortcuts of its window; by itself a box takes them also when they do nothing there.
class SpentUndoKeys final : public QObject
{
    Q_OBJECT

public:
    // From now on, in all windows of the program.
    explicit SpentUndoKeys(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ptk
