// The program-wide settings in the single row of the table _System.
#pragma once

#include "platform/DateTime.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CFileAdaptor;
class CJetDB;

class CSystemOptions
{
public:
    void ConfigFile(std::shared_ptr<CFileAdaptor> value); // nullptr is ignored
    void PTKDatabase(std::shared_ptr<CJetDB> value);      // nullptr is ignored

    void ProgramName(std::string value) { m_programName = std::move(value); }
    std::string ProgramName() const { return m_programName; }
    void ProgramVersion(std::string value) { m_programVersion = std::move(value); }
    std::string ProgramVersion() const { return m_programVersion; }
    void PeriodLength(std::int16_t value) { m_periodLength = value; }
    std::int16_t PeriodLength() const { return m_periodLength; } // days added to a period's first day
    void AutoShiftStartTime(DateTime value) { m_autoShiftStartTime = value; }
    DateTime AutoShiftStartTime() const { return m_autoShiftStartTime; } // only the time of day matters
    void AutoShiftEndTime(DateTime value) { m_autoShiftEndTime = value; }
    DateTime AutoShiftEndTime() const { return m_autoShiftEndTime; }

    // Reads the row; the database must be open and stays open. False when there is no result set. Raises what reading the row raises
    // (3021 for an empty table, 94 for a null): the controller logs it.
    bool Load();

    // Writes period length and shift times (never name and version) and leaves the database closed.
    bool Update();

private:
    bool BuildSelectSQL(); // always true
    bool BuildUpdateSQL(); // always true

    std::string m_programName;
    std::string m_programVersion;
    std::int16_t m_periodLength = 0;
    DateTime m_autoShiftStartTime;
    DateTime m_autoShiftEndTime;
    std::shared_ptr<CJetDB> m_database;
    std::shared_ptr<CFileAdaptor> m_configFile;
    std::string m_sql;
};

} // namespace ptk
