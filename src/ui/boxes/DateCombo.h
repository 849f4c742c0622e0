// A box for a date: free text with a calendar to pick from.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <QComboBox>

namespace ptk {

class Clock;

// Takes "3/5" (of this year), "3/5/26", "3/5/2026" and every other form of a date from 1 January 1900 to 31 December 2100; "+" and "-" step
// to the next and the previous day. When the box is left, a date is shown as mm/dd/yyyy, and any other text stays as it was typed.
class DateCombo final : public QComboBox
{
    Q_OBJECT

public:
    explicit DateCombo(QWidget* parent = nullptr);

    // The clock tells which year is this year; it must outlive the box. Without one the machine's clock does.
    void SetClock(const Clock& clock);

    // The text as it is shown once the box is left: for a typed "3/5" the whole date.
    [[nodiscard]] QString Text() const;

    void SetText(const QString& text);

    // The date in the box, at midnight; nothing for an empty text, no date, or a date out of range.
    [[nodiscard]] std::optional<DateTime> Date() const;

    void SetDate(DateTime value);

    void showPopup() override;

signals:
    // The user changed the text: by a keystroke, by picking a day in the calendar, or by a step of a day. Never sent for changes by the
    // program.
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
