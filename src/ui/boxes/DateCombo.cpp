#include "ui/boxes/DateCombo.h"

#include "platform/system/Clock.h"
#include "platform/text/Text.h"
#include "platform/text/TypedTime.h"

#include <algorithm>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTextCharFormat>
#include <QVBoxLayout>

namespace ptk {

namespace {

constexpr auto kFormat = "mm/dd/yyyy";
constexpr int kCharacters = 7; // enough for mm/dd/yyyy, together with the room that every box has for an icon
const QDate kFirst(1900, 1, 1);
const QDate kLast(2100, 12, 31);

QDate ToQDate(DateTime value)
{
    const CalendarDate date = value.Date();
    return {date.year, date.month, date.day};
}

bool InRange(DateTime value)
{
    const QDate date = ToQDate(value);
    return date >= kFirst && date <= kLast;
}

// The place for the calendar: below the box, above it where the screen ends, and never off the side of the screen.
QPoint PopupPlace(const QWidget& box, const QSize& size)
{
    const QRect screen = box.screen()->availableGeometry();
    QPoint place = box.mapToGlobal(QPoint(0, box.height()));
    if (place.y() + size.height() > screen.bottom()) {
        place.setY(box.mapToGlobal(QPoint(0, 0)).y() - size.height());
    }
    place.setX(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())));
    return place;
}

// Shows weekends more quietly than working days, in a colour of the theme. A calendar's usual red is not one.
void QuietenWeekends(QCalendarWidget& calendar)
{
    QTextCharFormat quiet;
    quiet.setForeground(calendar.palette().brush(QPalette::PlaceholderText));
    for (const auto day : {Qt::Saturday, Qt::Sunday}) {
        calendar.setWeekdayTextFormat(day, quiet);
    }
}

QCalendarWidget* AddCalendar(QFrame& popup)
{
    popup.setAttribute(Qt::WA_DeleteOnClose);
    popup.setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(&popup);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* calendar = new QCalendarWidget(&popup);
    calendar->setObjectName("calendar");
    calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    calendar->setDateRange(kFirst, kLast);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    QuietenWeekends(*calendar);
    layout->addWidget(calendar);
    return calendar;
}

} // namespace

DateCombo::DateCombo(QWidget* parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kCharacters);
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, &DateCombo::Changed);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &DateCombo::Normalize);
}

void DateCombo::SetClock(const Clock& clock)
{
    m_clock = &clock;
}

DateTime DateCombo::Today() const
{
    return m_clock == nullptr ? SystemClock().Today() : m_clock->Today();
}

QString DateCombo::Text() const
{
    const auto date = Date();
    return date ? QString::fromStdString(FormatDateTime(*date, kFormat)) : currentText();
}

void DateCombo::SetText(const QString& text)
{
    setEditText(text);
    Normalize();
}

std::optional<DateTime> DateCombo::Date() const
{
    const auto date = ReadTypedDate(currentText().toStdString(), Today());
    return date && InRange(*date) ? date : std::nullopt;
}

void DateCombo::SetDate(DateTime value)
{
    SetText(QString::fromStdString(FormatDateTime(value, kFormat)));
}

void DateCombo::Normalize()
{
    if (Text() != currentText()) {
        setEditText(Text());
    }
}

void DateCombo::showPopup()
{
    auto* popup = new QFrame(this, Qt::Popup);
    auto* calendar = AddCalendar(*popup);
    calendar->setSelectedDate(ToQDate(Date().value_or(Today())));
    const auto pick = [this, popup](QDate date) {
        popup->close();
        Pick(date);
    };
    connect(calendar, &QCalendarWidget::clicked, this, pick);
    connect(calendar, &QCalendarWidget::activated, this, pick);
    popup->move(PopupPlace(*this, popup->sizeHint()));
    popup->show();
    calendar->setFocus();
}

void DateCombo::Pick(QDate date)
{
    const QString before = currentText();
    SetDate(DateTime(CalendarDate{date.year(), date.month(), date.day()}));
    if (currentText() != before) {
        emit Changed();
    }
}

// Steps a day for "+" and "-". Since "-" also separates the parts of a date, only a whole date is stepped from.
bool DateCombo::Step(const QString& key)
{
    if ((key != "+" && key != "-") || !ParseDateTime(currentText().toStdString()) || !Date()) {
        return false;
    }
    const DateTime next = Date()->AddDays(key == "+" ? 1 : -1);
    if (InRange(next)) {
        Pick(ToQDate(next));
    }
    return true;
}

bool DateCombo::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && event->type() == QEvent::KeyPress && Step(static_cast<QKeyEvent*>(event)->text())) {
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void DateCombo::keyPressEvent(QKeyEvent* event)
{
    if (!Step(event->text())) {
        QComboBox::keyPressEvent(event);
    }
}

// A page that scrolls under the pointer must not change a date on the way.
void DateCombo::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void DateCombo::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Normalize();
    }
}

} // namespace ptk
