#include "store/postgres/PostgresSink.h"

#include "store/postgres/line/ServerLine.h"

#include <fmt/format.h>

#include <cmath>

namespace ptk {

namespace {

constexpr std::size_t kPortion = 1 << 16; // bytes

std::string CopyStatement(const StoredTable& table)
{
    std::string names;
    for (const StoredColumn& column : table.columns) {
        names += fmt::format("{}{}", names.empty() ? "" : ", ", column.name);
    }
    return fmt::format("COPY {} ({}) FROM STDIN", table.name, names);
}

// Adds one value in the text form of a server's copy.
struct CopyField
{
    std::string& lines;
    int place;

    void operator()(std::monostate) const { lines += "\\N"; }
    void operator()(std::int64_t value) const { lines += fmt::format("{}", value); }

    // Adds the shortest digits of the single that the number is read as.
    void operator()(double value) const
    {
        if (!std::isfinite(value)) {
            throw Unfit{place, "no finite number"};
        }
        lines += fmt::format("{}", static_cast<float>(value));
    }
    void operator()(std::string_view value) const
    {
        for (const char c : value) {
            switch (c) {
            case '\\':
                lines += "\\\\";
                break;
            case '\n':
                lines += "\\n";
                break;
            case '\r':
                lines += "\\r";
                break;
            case '\t':
                lines += "\\t";
                break;
            default:
                lines += c;
            }
        }
    }
};

} // namespace

PostgresSink::PostgresSink(ServerLine& line, const StoredTable& table) : m_line(line), m_table(table)
{
    m_line.RunScript(fmt::format("ALTER TABLE {} DISABLE TRIGGER USER", table.name).c_str()); // asking them took half of the time
    m_line.BeginCopy(CopyStatement(table));
}

void PostgresSink::Add(const Statement& from)
{
    int place = 0;
    for (const StoredColumn& column : m_table.columns) {
        if (place > 0) {
            m_lines += '\t';
        }
        std::visit(CopyField{m_lines, place}, FitInto(column, from, place));
        ++place;
    }
    m_lines += '\n';
    if (m_lines.size() >= kPortion) {
        m_line.PutCopy(m_lines);
        m_lines.clear();
    }
}

void PostgresSink::Finish()
{
    if (!m_lines.empty()) {
        m_line.PutCopy(m_lines);
        m_lines.clear();
    }
    m_line.EndCopy();
    m_line.RunScript(fmt::format("ALTER TABLE {} ENABLE TRIGGER USER", m_table.name).c_str());
}

} // namespace ptk
