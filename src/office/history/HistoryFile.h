// Writes the history into a file while it reads it.
#pragma once

#include "office/history/EmployeeNames.h"
#include "office/history/History.h"
#include "office/history/HistoryPages.h"
#include "platform/files/FileDraft.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

// Writes all entries of the query, a thousand at a time, and leaves the database free in between. Pages hold HistoryPages::kMost entries at
// most; the other forms have no limit. The file appears whole, with its last entry, or not at all. What is changed meanwhile is not in it.
class HistoryFile
{
public:
    // Begins the file. `path` is in the platform's own form; CSV gets a byte order mark; pages show when they were `made`. Raises what a
    // draft raises. REQUIRES: neither pointer is nullptr; the form is not Json.
    HistoryFile(const std::string& path, ReportForm form, DateTime made, std::shared_ptr<CJetDB> database, TrailQuery query,
                std::shared_ptr<const EmployeeNames> names);

    // Writes the next thousand entries; the last call puts the file in its place. Raises the failure of a database that cannot be opened or
    // read, and what writing, a draft and pages raise. REQUIRES: not IsDone.
    void WriteOn();

    [[nodiscard]] bool IsDone() const { return m_done; }

    [[nodiscard]] const std::string& Path() const { return m_path; }

    // The number of entries written so far.
    [[nodiscard]] std::int64_t Written() const { return m_written; }

private:
    std::string Take(const TrailEntry& entry);
    [[nodiscard]] std::string End() const;

    std::string m_path;
    ReportForm m_form;
    DateTime m_made;
    FileDraft m_draft;
    std::shared_ptr<CJetDB> m_database;
    TrailQuery m_query;
    std::shared_ptr<const EmployeeNames> m_names;
    HistoryPages m_pages; // empty in the other forms
    std::int64_t m_written = 0;
    bool m_done = false;
};

// "PTK history 2003-03-05", without a file extension.
[[nodiscard]] std::string HistoryFileName(DateTime today);

} // namespace ptk
