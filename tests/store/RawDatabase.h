// A database file as another tool sees it: tests set up what they need with it and look at what was written.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

namespace ptk {

class RawDatabase
{
public:
    explicit RawDatabase(const std::string& path, int mode = SQLITE_OPEN_READWRITE)
    {
        EXPECT_EQ(sqlite3_open_v2(path.c_str(), &m_database, mode, nullptr), SQLITE_OK) << path;
    }
    ~RawDatabase() { sqlite3_close(m_database); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    int TryRun(const std::string& sql) { return sqlite3_exec(m_database, sql.c_str(), nullptr, nullptr, nullptr); }
    void Run(const std::string& sql) { EXPECT_EQ(TryRun(sql), SQLITE_OK) << sql << ": " << sqlite3_errmsg(m_database); }

    // All values of all rows, each with "|" behind it; "NULL" for a null.
    std::string Rows(const std::string& sql)
    {
        std::string text;
        EXPECT_EQ(sqlite3_exec(m_database, sql.c_str(), Append, &text, nullptr), SQLITE_OK) << sql << ": " << sqlite3_errmsg(m_database);
        return text;
    }

private:
    static int Append(void* text, int count, char** values, char** /*names*/)
    {
        for (int i = 0; i < count; ++i) {
            *static_cast<std::string*>(text) += std::string(values[i] == nullptr ? "NULL" : values[i]) + "|";
        }
        return 0;
    }

    sqlite3* m_database = nullptr;
};

} // namespace ptk
