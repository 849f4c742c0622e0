// Writes many rows into a table of a server's database.
#pragma once

#include "store/engine/RowSink.h"

#include <string>

namespace ptk {

class ServerLine;

// Only the owner of the table may use it; the table's triggers do not run meanwhile. What the server refuses is raised later than the row
// was added, with the place of the value.
class PostgresSink final : public RowSink
{
public:
    // The line and the table outlive it.
    PostgresSink(ServerLine& line, const StoredTable& table);
    void Add(const Statement& from) override;
    void Finish() override;

private:
    ServerLine& m_line;
    const StoredTable& m_table;
    std::string m_lines; // rows that were not sent yet
};

} // namespace ptk
