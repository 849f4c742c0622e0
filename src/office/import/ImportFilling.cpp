#include "office/import/ImportFilling.h"

#include "office/import/ImportValues.h"

#include <fmt/format.h>
#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kAdministrator = 39;

constexpr const char* kImpossibleKey = "impossible key";
constexpr const char* kImpossibleMoment = "impossible start or end";
constexpr const char* kDoubledKey = "key that an earlier row has";
constexpr const char* kFurtherRow = "further row of options";

// The reason to leave out a row with an impossible value of this kind, without which the row makes no sense; nullptr for other kinds.
const char* ReasonOf(ImportKind kind)
{
    if (kind == ImportKind::Key) {
        return kImpossibleKey;
    }
    return kind == ImportKind::Moment ? kImpossibleMoment : nullptr;
}

} // namespace

ImportFilling::ImportFilling(const OldSources& sources, ImportWriter& writer, ImportAccount& account, std::int64_t& rows)
    : m_writer(writer), m_account(account), m_rows(rows)
{
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        if (sources.tables[i]) {
            m_ids.push_back(static_cast<ImportTableId>(i));
            m_sources.push_back(&*sources.tables[i]);
            m_orders.push_back(sources.tables[i]->order);
        }
    }
}

void ImportFilling::TakeRow(std::size_t order, std::span<const OldValue> values)
{
    ++m_rows;
    const ImportTableId id = m_ids[order];
    TableAccount& table = TableOf(id);
    ++table.found;
    if (const char* const reason = Take(id, *m_sources[order], values)) {
        ++table.leftOut[reason];
    } else {
        ++table.taken;
        CountTaken(id);
    }
}

void ImportFilling::EndRows(std::size_t order, const OldRowsEnd& end)
{
    if (end.counted != 0 && end.read != end.counted) {
        m_account.signs.push_back(
            fmt::format("{}: {} rows read, but the table counts {}", ImportTableOf(m_ids[order]).name, end.read, end.counted));
    }
}

void ImportFilling::Conclude()
{
    for (const ImportTableId id : m_ids) {
        m_account.figures.rows.at(static_cast<std::size_t>(id)) = TableOf(id).taken;
        if (const auto doubled = TableOf(id).leftOut.find(kDoubledKey); doubled != TableOf(id).leftOut.end()) {
            m_account.signs.push_back(fmt::format("{}: doubled keys: {}", ImportTableOf(id).name, doubled->second));
        }
    }
    for (const auto& [what, count] : m_faults) {
        m_account.signs.push_back(fmt::format("{}: {}", what, count));
    }
    CountShipped();
    CountOrphans();
}

// Stores the row. Answers the reason if it is left out; nullptr if it is taken.
const char* ImportFilling::Take(ImportTableId id, const OldSource& source, std::span<const OldValue> values)
{
    const auto columns = ImportTableOf(id).columns;
    m_values.clear();
    const char* reason = nullptr;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        ImportedValue value = ImportValue(columns[i], source.places[i] ? &values[*source.places[i]] : nullptr);
        CountFaults(id, columns[i], value);
        if (value.impossible && reason == nullptr) {
            reason = ReasonOf(columns[i].kind);
        }
        m_values.push_back(std::move(value.value));
    }
    if (reason != nullptr) {
        return reason;
    }
    const char* const taken = id == ImportTableId::System ? kFurtherRow : kDoubledKey;
    return m_writer.Add(id, m_values) ? nullptr : taken;
}

void ImportFilling::CountFaults(ImportTableId id, const ImportColumn& column, const ImportedValue& value)
{
    if (value.impossible) {
        ++m_faults[fmt::format("{}.{}: impossible values", ImportTableOf(id).name, column.name)];
    }
    if (value.partlyRead) {
        ++m_faults[fmt::format("{}.{}: texts with unreadable characters", ImportTableOf(id).name, column.name)];
    }
}

void ImportFilling::CountTaken(ImportTableId id)
{
    if (id == ImportTableId::Employee) {
        m_employees.insert(m_values[0].ToInt32());
    } else if (id == ImportTableId::TimeRecord) {
        const Value& employee = m_values[1];
        m_account.figures.Count(employee.IsNull() ? std::nullopt : std::optional(employee.ToInt32()), m_values[3].ToDateTime(),
                                m_values[4].ToDateTime());
    }
}

// Counts the rows that ship with a database, unless an imported row took their place.
void ImportFilling::CountShipped()
{
    for (std::size_t i = 0; i < kImportTableCount; ++i) {
        m_account.figures.rows[i] += m_writer.ShippedRows(static_cast<ImportTableId>(i));
    }
    if (m_writer.ShippedRows(ImportTableId::Employee) != 0) {
        m_employees.insert(kAdministrator);
    }
}

void ImportFilling::CountOrphans()
{
    for (const auto& [employee, hours] : m_account.figures.hours) {
        if (!employee || !m_employees.contains(*employee)) {
            m_account.figures.orphans += hours.records;
        }
    }
}

} // namespace ptk
