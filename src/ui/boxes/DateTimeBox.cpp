#include "ui/boxes/DateTimeBox.h"

#include "platform/system/Clock.h"
#include "platform/text/Text.h"

#include <QApplication>
#include <QFocusEvent>

namespace ptk {

namespace {

constexpr auto kDateFormat = "mm/dd/yyyy";

} // namespace

QString TimeText(DateTime moment)
{
    return QString::fromStdString(GeneralText(DateTime(DateTime().Date(), moment.Time())));
}

DateTimeBox::DateTimeBox(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, &DateTimeBox::Type);
    connect(this, &QLineEdit::returnPressed, this, [this] {
        Finish();
        ReportSoon();
    });
}

void DateTimeBox::SetDisplayFormat(std::string pattern)
{
    m_format = std::move(pattern);
}

void DateTimeBox::SetDateMode(const Clock& clock)
{
    m_dateClock = &clock;
    m_format = kDateFormat;
}

QString DateTimeBox::Text() const
{
    const auto moment = Read();
    return moment ? QString::fromStdString(FormatDateTime(*moment, m_format)) : text();
}

TypedMoment DateTimeBox::Moment() const
{
    std::string text = Text().toStdString();
    return m_dateClock == nullptr ? TypedTime(std::move(text)) : TypedDate(std::move(text), m_dateClock->Today());
}

void DateTimeBox::SetText(const QString& text)
{
    setText(text);
    setText(Text());
    m_unreported = false;
}

void DateTimeBox::Clear()
{
    SetText({});
}

std::optional<DateTime> DateTimeBox::Read() const
{
    const std::string typed = text().toStdString();
    return m_dateClock == nullptr ? ReadTypedTime(typed) : ReadTypedDate(typed, m_dateClock->Today());
}

void DateTimeBox::Type()
{
    m_unreported = true;
    emit KeyEntered();
    if (Read()) {
        emit Typed();
    }
}

void DateTimeBox::Finish()
{
    if (Text() != text()) {
        setText(Text());
    }
}

void DateTimeBox::ReportSoon()
{
    if (m_unreported) {
        QMetaObject::invokeMethod(this, &DateTimeBox::Report, Qt::QueuedConnection);
    }
}

void DateTimeBox::Report()
{
    if (m_unreported && isVisible()) {
        m_unreported = false;
        emit Changed();
    }
}

void DateTimeBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) {
        return;
    }
    Finish();
    if (event->reason() == Qt::MouseFocusReason) {
        qApp->installEventFilter(this);
    } else {
        ReportSoon();
    }
}

// Reports when the mouse button goes up, since that is when a click is handled.
bool DateTimeBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        qApp->removeEventFilter(this);
        ReportSoon();
    }
    return QLineEdit::eventFilter(watched, event);
}

} // namespace ptk
