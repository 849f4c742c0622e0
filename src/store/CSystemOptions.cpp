#include "store/CSystemOptions.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/rows/RowReader.h"

#include <fmt/format.h>

#include <utility>

namespace ptk {

namespace {

CJetDB& Required(const std::shared_ptr<CJetDB>& database)
{
    if (database == nullptr) {
        throw Failure(failure::ObjectNotSet);
    }
    return *database;
}

} // namespace

void CSystemOptions::ConfigFile(std::shared_ptr<CFileAdaptor> value)
{
    if (value != nullptr) {
        m_configFile = std::move(value);
    }
}

void CSystemOptions::PTKDatabase(std::shared_ptr<CJetDB> value)
{
    if (value != nullptr) {
        m_database = std::move(value);
    }
}

bool CSystemOptions::Load()
{
    BuildSelectSQL();
    const auto row = Required(m_database).ExecuteSelect(m_sql);
    if (row == nullptr) {
        return false;
    }
    try {
        m_asRead.reset();
        RowReader(*row, OptionsTable()).ReadOptions(m_row);
        m_asRead = m_row;
    } catch (...) {
        m_database->GiveUpHold(); // the user is told before the next operation
        throw;
    }
    return true;
}

bool CSystemOptions::Update()
{
    BuildUpdateSQL();
    if (!m_asRead) {
        return Required(m_database).ExecuteAction(m_sql);
    }
    OptionsRow stored = m_row; // before, since nothing may fail once it is stored
    if (!Required(m_database).UpdateOptions(m_sql, m_row, *m_asRead)) {
        return false;
    }
    m_asRead = std::move(stored);
    return true;
}

bool CSystemOptions::BuildSelectSQL()
{
    m_sql = "SELECT [_System].program, [_System].version, [_System].period_length, [_System].auto_shift_start_time, "
            "[_System].auto_shift_end_time FROM _System;";
    return true;
}

bool CSystemOptions::BuildUpdateSQL()
{
    m_sql = fmt::format("UPDATE _System SET _System.period_length = {}, _System.auto_shift_start_time = #{}#, "
                        "_System.auto_shift_end_time = #{}#;",
                        m_row.PeriodLength, GeneralText(m_row.AutoShiftStartTime), GeneralText(m_row.AutoShiftEndTime));
    return true;
}

} // namespace ptk
