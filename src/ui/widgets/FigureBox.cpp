#include "ui/widgets/FigureBox.h"

#include <QApplication>
#include <QEvent>

namespace ptk {

FigureBox::FigureBox(QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    TakeWindowGround();
}

void FigureBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        TakeWindowGround();
    }
}

void FigureBox::TakeWindowGround()
{
    QPalette ground;
    ground.setColor(QPalette::Base, QApplication::palette().color(QPalette::Window));
    setPalette(ground);
}

} // namespace ptk
