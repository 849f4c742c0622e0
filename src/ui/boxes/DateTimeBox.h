// A box for a time of day, or for a date: free text that is put right on leaving.
#pragma once

#include "platform/text/TypedTime.h"

#include <optional>
#include <QLineEdit>
#include <string>

namespace ptk {

class Clock;

// The time of a moment as general text, as time boxes are filled with it.
[[nodiscard]] QString TimeText(DateTime moment);

// In time mode, the first one, 830, 0830, 8.30, 8:30, 830a, 5p and 17 become a time in the display format; in date mode dates are taken as
// a DateCombo takes them. What is neither stays as it was typed. Empty is allowed.
class DateTimeBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateTimeBox(QWidget* parent = nullptr);

    // Of a time, in the tokens of FormatDateTime; "hh:mm:ss AM/PM" at first.
    void SetDisplayFormat(std::string pattern);

    // The clock tells this year and must outlive the box.
    void SetDateMode(const Clock& clock);

    // As it will be shown on leaving.
    [[nodiscard]] QString Text() const;

    // That text and what it was read as.
    [[nodiscard]] TypedMoment Moment() const;

    void SetText(const QString& text);
    void Clear();

    // The text has been read by other means: no Changed is owed for it any more.
    void TakeNote() { m_unreported = false; }

signals:
    // All by the user only. On every keystroke that alters the text
    void KeyEntered();

    // And on those that leave a readable one.
    void Typed();

    // After leaving the box, or Enter in it, when it has been typed into since the last time. It may be answered by a message box, so it
    // waits for the click or key that brought it to be handled, and never comes when that hid the box's window or had the text read.
    void Changed();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] std::optional<DateTime> Read() const;
    void Type();
    void Finish();
    void ReportSoon();
    void Report();

    std::string m_format = "hh:mm:ss AM/PM";
    const Clock* m_dateClock = nullptr; // set in date mode only
    bool m_unreported = false;          // typed into since the last Changed
};

} // namespace ptk
