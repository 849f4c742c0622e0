// The Auto Fill window: it makes one time record for every day of a date range, all with the same times of day.
#pragma once

#include "office/card/FillPlan.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QDialog>
#include <string>

namespace Ui {
class FAutoFill;
}

namespace ptk {

class Clock;
class CTimeRecordList;
class Desktop;
struct Closing;
struct ReasonLine;

// Adds the new records to the list that it was given, and stores nothing.
class FAutoFill final : public QDialog
{
    Q_OBJECT

public:
    FAutoFill(ptk::Desktop& desktop, const Clock& clock, QWidget* parent = nullptr);
    ~FAutoFill() override;

    void StartDate(DateTime value);

    // The first day. Raises Failure 13 when its box holds no date.
    [[nodiscard]] DateTime StartDate() const;

    void EndDate(DateTime value);
    [[nodiscard]] DateTime EndDate() const;

    // The times of the automatic shift. Only the times of day matter.
    void AutoShiftStartTime(DateTime value) { m_autoShiftStart = value; }

    void AutoShiftEndTime(DateTime value) { m_autoShiftEnd = value; }
    void EmployeeID(std::int16_t value) { m_employeeID = value; }

    // How many days the last day comes after the first one.
    void PeriodLength(std::int16_t value) { m_periodLength = value; }

    // Whether Save made records; false before it was pressed.
    [[nodiscard]] bool OKClick() const { return m_okClick; }

    void TimeRecordList(std::shared_ptr<CTimeRecordList> value) { m_list = std::move(value); }
    [[nodiscard]] std::shared_ptr<CTimeRecordList> TimeRecordList() const { return m_list; }

    // Adds one record for each day from the first to the last, weekends and days with records included. A range of one day is refused,
    // deliberately. False when no record was made: with a message for a wrong range, without one for times that cannot be read.
    bool LoadTimeRecordList();

    // Shows a line that says whose the records will be, and one that follows the dates and times with what Save will do. takenDays: the
    // days that already have records of that employee, none when that is not known.
    void Announce(const std::string& owner, std::optional<DayNumbers> takenDays);

    // Says in the owner's line that the period was paid. To be called after Announce.
    void TellPaid(const Closing& closing);

    // Offers reasons to choose from. Save asks once for a reason that is wanted.
    void OfferReasons(const ReasonLine& line);

    // The typed reason; empty for none.
    [[nodiscard]] std::string Reason() const;

    [[nodiscard]] FillTexts Texts() const;

    // Puts the times of these texts back into their boxes, and leaves the dates as they are.
    void Times(const FillTexts& value);

private:
    bool MayFill(const FillPlan& plan);
    void AddRecord(const Shift& shift);
    bool SetPeriodEndDate();
    void AutoShift();
    void Save();
    void Forecast();

    std::unique_ptr<Ui::FAutoFill> m_ui;
    ptk::Desktop& m_desktop;
    std::shared_ptr<CTimeRecordList> m_list;
    std::optional<DayNumbers> m_takenDays;
    DateTime m_autoShiftStart;
    DateTime m_autoShiftEnd;
    std::int16_t m_employeeID = 0;
    std::int16_t m_periodLength = 0;
    bool m_okClick = false;
};

} // namespace ptk
