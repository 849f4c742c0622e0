#include "ui/boxes/SpentUndoKeys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace ptk {

namespace {

// The editor that types for the box: in a list or a number box it is a part inside that does not have the keyboard itself.
const QLineEdit* EditorOf(const QObject* box)
{
    if (const auto* list = qobject_cast<const QComboBox*>(box)) {
        return list->lineEdit();
    }
    if (qobject_cast<const QAbstractSpinBox*>(box) != nullptr) {
        return box->findChild<QLineEdit*>();
    }
    return qobject_cast<const QLineEdit*>(box);
}

bool IsSpent(const QLineEdit& editor, const QKeyEvent& key)
{
    return (key.matches(QKeySequence::Undo) && !editor.isUndoAvailable()) || (key.matches(QKeySequence::Redo) && !editor.isRedoAvailable());
}

} // namespace

SpentUndoKeys::SpentUndoKeys(QObject* parent) : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        if (before != nullptr) {
            before->removeEventFilter(this);
        }
        if (now != nullptr) {
            now->installEventFilter(this);
        }
    });
}

bool SpentUndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    const QLineEdit* editor = event->type() == QEvent::ShortcutOverride ? EditorOf(watched) : nullptr;
    if (editor == nullptr || !IsSpent(*editor, static_cast<const QKeyEvent&>(*event))) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}

} // namespace ptk
