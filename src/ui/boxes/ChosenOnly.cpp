#include "ui/boxes/ChosenOnly.h"

#include "ui/boxes/Proposals.h"

#include <QComboBox>
#include <QEvent>

namespace ptk {

namespace {

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

void PrepareChoosing(QComboBox& box, Proposals::Leaving leaving)
{
    box.installEventFilter(new WheelStopper(&box));
    if (box.isEditable()) {
        new Proposals(box, leaving);
    }
}

} // namespace

void ChooseByTyping(QComboBox& box)
{
    PrepareChoosing(box, Proposals::Leaving::Chooses);
}

void ChooseOnlyDeliberately(QComboBox& box)
{
    PrepareChoosing(box, Proposals::Leaving::Keeps);
}

} // namespace ptk
