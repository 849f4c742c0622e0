#include "ui/ChosenOnly.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

namespace ptk {
namespace {

class WheelStopper final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

void IgnoreWheel(QComboBox& box)
{
    box.installEventFilter(new WheelStopper(&box));
}

void ChooseOnlyDeliberately(QComboBox& box)
{
    IgnoreWheel(box);
    if (box.isEditable())
        QObject::disconnect(box.lineEdit(), &QLineEdit::editingFinished, &box, nullptr);
}

} // namespace ptk
