#include "ui/boxes/FigureBox.h"

#include <QApplication>
#include <QEvent>

namespace ptk {

namespace {

constexpr auto kUsual = "000000.00";
constexpr auto kLeast = "0000.00";
constexpr double kImportantSize = 1.25;

} // namespace

FigureBox::FigureBox(QWidget* parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
    setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    TakeColors();
}

void FigureBox::SetImportant()
{
    QFont large = font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * kImportantSize);
    setFont(large);
}

void FigureBox::SetFaded(bool faded)
{
    m_faded = faded;
    TakeColors();
}

QSize FigureBox::sizeHint() const
{
    return SizeFor(kUsual);
}

QSize FigureBox::minimumSizeHint() const
{
    return SizeFor(kLeast);
}

// The size for such a figure; the base class would ask for room for many letters.
QSize FigureBox::SizeFor(const char* figure) const
{
    const int frame = QLineEdit::minimumSizeHint().width() - fontMetrics().maxWidth();
    return {fontMetrics().horizontalAdvance(figure) + std::max(frame, 0), QLineEdit::sizeHint().height()};
}

void FigureBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        TakeColors();
    }
}

void FigureBox::TakeColors()
{
    const QPalette theme = QApplication::palette();
    QPalette own;
    own.setColor(QPalette::Base, theme.color(QPalette::Window));
    own.setColor(QPalette::Text, theme.color(m_faded ? QPalette::PlaceholderText : QPalette::Text));
    setPalette(own);
}

} // namespace ptk
