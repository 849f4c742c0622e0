// The history as a file, written while it is read.
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

// All entries of the query, a thousand at a time, between which the database is free: as many as there are, as pages HistoryPages::kMost.
// The file appears whole, with the last of them, or not at all. What is changed meanwhile is not in it.
class HistoryFile
{
public:
    // `path` in the platform's own form; CSV gets a byte order mark, pages tell when they were `made`. Raises what a draft raises.
    // REQUIRES: neither pointer is nullptr; the form is not Json.
    HistoryFile(const std::string& path, ReportForm form, DateTime made, std::shared_ptr<CJetDB> database, TrailQuery query,
                std::shared_ptr<const EmployeeNames> names);

    // Raises the failure of a database that cannot be opened or read, and what writing, a draft and pages raise. REQUIRES: not IsDone.
    void WriteOn();

    [[nodiscard]] bool IsDone() const { return m_done; }

    [[nodiscard]] const std::string& Path() const { return m_path; }

    // Entries.
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
    HistoryPages m_pages; // nothing in the other forms
    std::int64_t m_written = 0;
    bool m_done = false;
};

// "PTK history 2003-03-05", without an ending.
[[nodiscard]] std::string HistoryFileName(DateTime today);

} // namespace ptk
