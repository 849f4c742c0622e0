// Rows on their way into a table of a server's database.
#pragma once

#include "store/engine/RowSink.h"

#include <string>

namespace ptk {

class ServerLine;

// For the owner of the table alone, whose triggers do not run. What the server refuses, later than the rows were added, it raises with the
// place of the value.
class PostgresSink final : public RowSink
{
public:
    // Both outlive it.
    PostgresSink(ServerLine& line, const StoredTable& table);
    void Add(const Statement& from) override;
    void Finish() override;

private:
    ServerLine& m_line;
    const StoredTable& m_table;
    std::string m_lines; // that were not sent yet
};

} // namespace ptk
