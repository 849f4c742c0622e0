// Takes the rows of an older database, stores them in the new one, and counts them.
#pragma once

#include "office/import/ImportAccount.h"
#include "office/import/OldTables.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ptk {

struct ImportedValue;

// Decides for each row whether it is taken, and counts it, in one pass over a file. REQUIRES: everything passed to it outlives it.
class ImportFilling final : public OldRowSink
{
public:
    // `rows` counts all rows that came so far, taken or not.
    ImportFilling(const OldSources& sources, ImportWriter& writer, ImportAccount& account, std::int64_t& rows);

    // The tables and columns to read, employees before the records that refer to them.
    [[nodiscard]] const std::vector<OldRowsOrder>& Orders() const { return m_orders; }

    void TakeRow(std::size_t order, std::span<const OldValue> values) override;
    void EndRows(std::size_t order, const OldRowsEnd& end) override;

    // Completes the account; to be called when all rows are in. The account then has its figures, which ReadFigures must confirm, and its
    // signs of damage.
    void Conclude();

private:
    TableAccount& TableOf(ImportTableId id) { return m_account.tables.at(static_cast<std::size_t>(id)); }
    const char* Take(ImportTableId id, const OldSource& source, std::span<const OldValue> values);
    void CountFaults(ImportTableId id, const ImportColumn& column, const ImportedValue& value);
    void CountTaken(ImportTableId id);
    void CountShipped();
    void CountOrphans();

    ImportWriter& m_writer;
    ImportAccount& m_account;
    std::int64_t& m_rows;
    std::vector<ImportTableId> m_ids; // of each order, as the next two
    std::vector<const OldSource*> m_sources;
    std::vector<OldRowsOrder> m_orders;
    std::vector<Value> m_values; // of the row that is being taken
    std::set<std::int32_t> m_employees;
    std::map<std::string, std::int64_t> m_faults; // by table, column and kind
};

} // namespace ptk
