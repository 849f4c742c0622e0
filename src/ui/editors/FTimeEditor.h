// The editor of one time record.
#pragma once

#include "office/card/NewRecord.h"
#include "platform/text/DateTime.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <QDialog>
#include <string>

namespace Ui {
class FTimeEditor;
}

namespace ptk {

class Clock;
class CTimeRecord;
class DateTimeBox;
class Desktop;
class TimeRecordReceiver;
struct Closing;
struct ReasonLine;

// Writes into the very record it was given, already while the user types; Cancel deliberately does not undo that. Only Save hands it back.
class FTimeEditor final : public QDialog
{
    Q_OBJECT

public:
    FTimeEditor(ptk::Desktop& desktop, const Clock& clock, QWidget* parent = nullptr);
    ~FTimeEditor() override;

    // Sets who gets the record when it is saved; not owned.
    void ParentWindow(TimeRecordReceiver* value) { m_parentWindow = value; }

    [[nodiscard]] TimeRecordReceiver* ParentWindow() const { return m_parentWindow; }

    // Shows the record. nullptr empties the boxes; a new record is made when they are read.
    void TimeRecord(std::shared_ptr<CTimeRecord> value);

    [[nodiscard]] std::shared_ptr<CTimeRecord> TimeRecord() const { return m_timeRecord; }

    // Sets the times of the automatic shift. Only the times of day matter; deliberately always false.
    bool SetAutoShiftTimes(DateTime thestarttime, DateTime theendtime);

    // Shows a line that says whose the record will be.
    void Owner(const std::string& text);

    // Says in the owner's line that the period was paid. To be called after Owner.
    void TellPaid(const Closing& closing);

    // Offers reasons to choose from. Save asks once for a reason that is wanted.
    void OfferReasons(const ReasonLine& line);

    // The typed reason; empty for none.
    [[nodiscard]] std::string Reason() const;

    // Has the warning line warn of a new record that the card of that period would not show.
    void WarnAsNew(std::optional<PayPeriod> shown);

    // Has the warning line warn of a shift of more hours than these.
    void WarnAbove(std::int32_t hours);

    // The texts in the boxes, and what they were read as.
    [[nodiscard]] RecordTexts Texts() const;

    // Puts the texts back into the boxes, unreadable ones included.
    void Texts(const RecordTexts& value);

    // The sentence for a record that was stored as the owner's. It names texts that could not be read and are not in it. REQUIRES: a
    // record.
    [[nodiscard]] std::string SavedText(const std::string& owner) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] std::array<DateTimeBox*, 4> Boxes() const;
    void ClearControls();
    void ShowTimeRecord();
    bool ReadTimeRecord();
    void ReadTimes();
    [[nodiscard]] bool HasBothTimes() const;
    void FollowTyping();
    void UpdateTotal();
    void ShowTotal();
    void Warn();
    void AutoShift();
    void Save();

    std::unique_ptr<Ui::FTimeEditor> m_ui;
    ptk::Desktop& m_desktop;
    const Clock& m_clock;
    TimeRecordReceiver* m_parentWindow = nullptr;
    std::shared_ptr<CTimeRecord> m_timeRecord;
    DateTime m_autoShiftStart;
    DateTime m_autoShiftEnd;
    std::optional<PayPeriod> m_shownPeriod;
    std::optional<std::int32_t> m_longShiftHours;
    bool m_isNew = false;
    bool m_modified = false;            // typed into since it was shown; nothing depends on it
    std::int32_t m_saveErrorNumber = 0; // 608 when the record was not handed over; nothing depends on it
};

} // namespace ptk
