#include "ui/widgets/ChosenOnly.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace ptk {

namespace {

bool IsEnter(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void ChooseTyped(QComboBox& box)
{
    const int row = box.findText(box.currentText(), Qt::MatchFixedString);
    if (row < 0) {
        return;
    }
    box.setCurrentIndex(row);
    emit box.activated(row);
}

class WheelStopper final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel) {
            return false;
        }
        event->ignore();
        return true;
    }
};

// The box gets Enter after its editor, which has chosen by then.
class EnterStopper final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override { return IsEnter(*event); }
};

} // namespace

void ChooseByTyping(QComboBox& box)
{
    box.installEventFilter(new WheelStopper(&box));
    QObject::connect(box.lineEdit(), &QLineEdit::editingFinished, &box, [&box] {
        if (box.currentText() != box.itemText(box.currentIndex())) {
            ChooseTyped(box);
        }
    });
}

void ChooseOnlyDeliberately(QComboBox& box)
{
    box.installEventFilter(new WheelStopper(&box));
    if (!box.isEditable()) {
        return;
    }
    box.installEventFilter(new EnterStopper(&box));
    QObject::connect(box.lineEdit(), &QLineEdit::returnPressed, &box, [&box] { ChooseTyped(box); });
    QObject::disconnect(box.lineEdit(), &QLineEdit::editingFinished, &box, nullptr);
}

} // namespace ptk
