// A box for a time of day, or for a date: free text that is put in order when the box is left.
#pragma once

#include "platform/text/TypedTime.h"

#include <optional>
#include <QLineEdit>
#include <string>

namespace ptk {

class Clock;

// The time of day of a moment, in the form in which time boxes are filled.
[[nodiscard]] QString TimeText(DateTime moment);

// The box begins in time mode: 830, 0830, 8.30, 8:30, 830a, 5p and 17 become a time in the display format. In date mode dates are taken as
// a DateCombo takes them. Any other text stays as it was typed. Empty is allowed.
class DateTimeBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateTimeBox(QWidget* parent = nullptr);

    // The format of times, in the tokens of FormatDateTime; "hh:mm:ss AM/PM" at first.
    void SetDisplayFormat(std::string pattern);

    // From now on the box takes dates. The clock tells which year is this year, and must outlive the box.
    void SetDateMode(const Clock& clock);

    // The text as it is shown once the box is left.
    [[nodiscard]] QString Text() const;

    // What Text answers, together with what it was read as.
    [[nodiscard]] TypedMoment Moment() const;

    void SetText(const QString& text);
    void Clear();

    // To be called when the text has been read without waiting for Changed, which then need not come for it any more.
    void TakeNote() { m_unreported = false; }

signals:
    // The user altered the text by a keystroke. No signal of this box is sent for changes by the program.
    void KeyEntered();

    // The user altered the text by a keystroke, and it can be read.
    void Typed();

    // The user left the box or pressed Enter in it, after typing into it. A message box may be the answer, so the signal waits until the
    // click or key that caused it has been handled. It does not come when that hid the box's window or had the text read.
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
    const Clock* m_dateClock = nullptr; // nullptr in time mode
    bool m_unreported = false;          // typed into since the last Changed
};

} // namespace ptk
