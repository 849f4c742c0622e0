// The program-wide settings in the single row of the table _System.
#pragma once

#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ptk {

class CFileAdaptor;
class CJetDB;

class CSystemOptions
{
public:
    // nullptr is ignored.
    void ConfigFile(std::shared_ptr<CFileAdaptor> value);

    // nullptr is ignored.
    void PTKDatabase(std::shared_ptr<CJetDB> value);

    void ProgramName(std::string value) { m_row.ProgramName = std::move(value); }
    [[nodiscard]] std::string ProgramName() const { return m_row.ProgramName; }
    void ProgramVersion(std::string value) { m_row.ProgramVersion = std::move(value); }
    [[nodiscard]] std::string ProgramVersion() const { return m_row.ProgramVersion; }
    void PeriodLength(std::int16_t value) { m_row.PeriodLength = value; }

    // The length of a pay period, in days added to its first day.
    [[nodiscard]] std::int16_t PeriodLength() const { return m_row.PeriodLength; }

    void AutoShiftStartTime(DateTime value) { m_row.AutoShiftStartTime = value; }

    // The start of an automatic shift; only the time of day matters.
    [[nodiscard]] DateTime AutoShiftStartTime() const { return m_row.AutoShiftStartTime; }

    void AutoShiftEndTime(DateTime value) { m_row.AutoShiftEndTime = value; }
    [[nodiscard]] DateTime AutoShiftEndTime() const { return m_row.AutoShiftEndTime; }

    // Reads the row; the database must be open and stays open. False when there is no result set. Raises 91 without a database, and what
    // reading the row raises (3021 for an empty table, 94 for a null), naming the column: the controller logs it.
    bool Load();

    // Writes period length and shift times (never name and version) and leaves the database closed. After a Load it writes only if they
    // were changed, and is refused when somebody else changed them meanwhile: see CJetDB::Conflict. Raises 91 without a database.
    bool Update();

private:
    // Always true.
    bool BuildSelectSQL();

    // Always true.
    bool BuildUpdateSQL();

    OptionsRow m_row;
    std::optional<OptionsRow> m_asRead;
    std::shared_ptr<CJetDB> m_database;
    std::shared_ptr<CFileAdaptor> m_configFile;
    std::string m_sql;
};

} // namespace ptk
