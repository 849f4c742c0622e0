// A box for a date: free text with a calendar to pick from.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <QComboBox>

namespace ptk {

class Clock;

// Takes "3/5" (of this year), "3/5/26", "3/5/2026" and every other form of a date from 1 January 1900 to 31 December 2100, "+" and "-" for
// the next and the previous day. On leaving, what is a date is shown as mm/dd/yyyy; what is none stays as it was typed.
class DateCombo final : public QComboBox
{
    Q_OBJECT

public:
    explicit DateCombo(QWidget* parent = nullptr);

    // Tells this year; must outlive the box. Without it the machine's clock does.
    void SetClock(const Clock& clock);

    // As it will be shown on leaving: typed "3/5" already answers the whole date.
    [[nodiscard]] QString Text() const;

    void SetText(const QString& text);

    // Midnight of the day; nothing for an empty text, no date, or a date out of range.
    [[nodiscard]] std::optional<DateTime> Date() const;

    void SetDate(DateTime value);

    void showPopup() override;

signals:
    // By the user only: on each keystroke that alters the text, a day picked in the calendar, a step of a day.
    void Changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] DateTime Today() const;
    bool Step(const QString& key);
    void Normalize();
    void Pick(QDate date);

    const Clock* m_clock = nullptr;
};

} // namespace ptk
