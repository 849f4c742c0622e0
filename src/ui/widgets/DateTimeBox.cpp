#include "ui/widgets/DateTimeBox.h"

#include "platform/Clock.h"
#include "platform/Text.h"
#include "platform/TypedTime.h"

#include <QFocusEvent>

namespace ptk {

namespace {

constexpr auto kDateFormat = "mm/dd/yyyy";

} // namespace

DateTimeBox::DateTimeBox(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, &DateTimeBox::Type);
    connect(this, &QLineEdit::returnPressed, this, &DateTimeBox::Finish);
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
    const std::string readable = Readable(text());
    return readable.empty() ? text() : QString::fromStdString(readable);
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

std::string DateTimeBox::Readable(const QString& text) const
{
    const std::string typed = text.toStdString();
    const auto value = m_dateClock == nullptr ? ReadTypedTime(typed) : ReadTypedDate(typed, m_dateClock->Today());
    return value ? FormatDateTime(*value, m_format) : std::string();
}

void DateTimeBox::Type()
{
    emit KeyEntered();
    m_unreported = Readable(text()).empty();
    if (!m_unreported) {
        emit Changed();
    }
}

void DateTimeBox::Finish()
{
    if (Text() != text()) {
        setText(Text());
    }
    if (!m_unreported) {
        return;
    }
    m_unreported = false;
    emit Changed();
}

void DateTimeBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        Finish();
    }
}

} // namespace ptk
