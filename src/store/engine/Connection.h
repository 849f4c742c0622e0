// The engine's handle on one database file and the exclusive hold on it.
#pragma once

#include <SQLiteCpp/Database.h>

#include <cstdint>
#include <string>

namespace ptk {

// The hold is a transaction: it is there from the constructor on and taken again after each commit, without waiting. When another program
// was quicker then, the next use tries once more and raises 5 (busy).
class Connection
{
public:
    // Opens for reading and writing, exclusively and without ever creating a file. Raises 14 (missing, a folder), 5 (held by anyone, a
    // reader included), 8 (read-only), 26 (no database) or 11 (damaged). An empty file passes.
    explicit Connection(const std::string& path);
    void RefuseForeignFile(); // raises 26 for an empty file and for one of a newer format, 11 for one cut short

    sqlite3* Handle() const { return m_database.getHandle(); }

    void Run(const char* sql); // statements without parameters
    void Hold();               // nothing when held
    void PrepareWrite();       // holds; before anything is changed
    void Commit();             // on disk when it returns; on failure nothing of the transaction is left
    void Undo() noexcept;      // drops what was changed since the last commit

private:
    void LeaveWriteAheadLog();
    void Release() noexcept;
    void HoldAgain() noexcept;
    bool IsHeld() const;

    SQLite::Database m_database;
    bool m_durable = false; // whether commits survive a power cut
};

} // namespace ptk
