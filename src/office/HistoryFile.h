// The history as a file, written while it is read.
#pragma once

#include "office/EmployeeNames.h"
#include "office/History.h"
#include "platform/FileDraft.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

// All entries of the query, however many: a page at a time, between which the database is free. The file appears whole, with the last page,
// or not at all. What is changed meanwhile is not in it.
class HistoryFile
{
public:
    // `path` in the platform's own form; as CSV, with a byte order mark, or as text. Raises what a draft raises. REQUIRES: neither pointer
    // is nullptr; the form is not Json.
    HistoryFile(const std::string& path, ReportForm form, std::shared_ptr<CJetDB> database, TrailQuery query,
                std::shared_ptr<const EmployeeNames> names);

    // Raises the failure of a database that cannot be opened or read, and what writing and a draft raise. REQUIRES: not IsDone.
    void WriteOn();

    [[nodiscard]] bool IsDone() const { return m_done; }

    [[nodiscard]] const std::string& Path() const { return m_path; }

    // Entries.
    [[nodiscard]] std::int64_t Written() const { return m_written; }

private:
    std::string m_path;
    ReportForm m_form;
    FileDraft m_draft;
    std::shared_ptr<CJetDB> m_database;
    TrailQuery m_query;
    std::shared_ptr<const EmployeeNames> m_names;
    std::int64_t m_written = 0;
    bool m_done = false;
};

// "PTK history 2003-03-05", without an ending.
[[nodiscard]] std::string HistoryFileName(DateTime today);

} // namespace ptk
