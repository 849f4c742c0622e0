// Writes many rows into a table of a database file.
#pragma once

#include "store/engine/RowSink.h"

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class SqliteSink final : public RowSink
{
public:
    SqliteSink(sqlite3* database, const StoredTable& table);
    void Add(const Statement& from) override;
    void Finish() override {}

private:
    struct Ending
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    sqlite3* m_database;
    const StoredTable& m_table;
    std::unique_ptr<sqlite3_stmt, Ending> m_insert;
};

} // namespace ptk
