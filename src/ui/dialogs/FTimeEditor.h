// The editor of one time record.
#pragma once

#include "platform/DateTime.h"

#include <cstdint>
#include <memory>
#include <QDialog>

namespace Ui {
class FTimeEditor;
}

namespace ptk {

class Clock;
class CTimeRecord;
class Desktop;
class TimeRecordReceiver;

// Writes into the very record it was given, already while the user types; Cancel does not undo that, deliberately. Only Save hands it back.
class FTimeEditor final : public QDialog
{
    Q_OBJECT

public:
    FTimeEditor(ptk::Desktop& desktop, const Clock& clock, QWidget* parent = nullptr);
    ~FTimeEditor() override;

    void ParentWindow(TimeRecordReceiver* value) { m_parentWindow = value; } // not owned
    TimeRecordReceiver* ParentWindow() const { return m_parentWindow; }
    void TimeRecord(std::shared_ptr<CTimeRecord> value); // shows it; nullptr: empty boxes, and a new record as soon as they are read
    std::shared_ptr<CTimeRecord> TimeRecord() const { return m_timeRecord; }
    bool SetAutoShiftTimes(DateTime thestarttime, DateTime theendtime); // only the times of day matter; deliberately always false

private:
    void ClearControls();
    void ShowTimeRecord();
    bool ReadTimeRecord();
    void ReadTimes();
    void ShowTotal();
    void UpdateTotal();
    void AutoShift();
    void Save();

    std::unique_ptr<Ui::FTimeEditor> m_ui;
    ptk::Desktop& m_desktop;
    const Clock& m_clock;
    TimeRecordReceiver* m_parentWindow = nullptr;
    std::shared_ptr<CTimeRecord> m_timeRecord;
    DateTime m_autoShiftStart;
    DateTime m_autoShiftEnd;
    bool m_modified = false;            // typed into since it was shown; nothing depends on it
    std::int32_t m_saveErrorNumber = 0; // 608 when the record was rejected; nothing depends on it
};

} // namespace ptk
