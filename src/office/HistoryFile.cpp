#include "office/HistoryFile.h"

#include "platform/Text.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kPage = 1000; // entries; some tens of milliseconds

} // namespace

HistoryFile::HistoryFile(const std::string& path, ReportForm form, std::shared_ptr<CJetDB> database, TrailQuery query,
                         std::shared_ptr<const EmployeeNames> names)
    : m_path(path), m_form(form), m_draft(path), m_database(std::move(database)), m_query(std::move(query)), m_names(std::move(names))
{
    m_query.most = kPage;
    if (m_form == ReportForm::Csv) {
        m_draft.File().Write(kByteOrderMark);
    }
    m_draft.File().Write(HistoryHeading(m_form));
}

void HistoryFile::WriteOn()
{
    std::string lines;
    std::int64_t count = 0;
    ReadTrail(m_database, m_query, [&](const TrailEntry& entry) {
        lines += HistoryLine(m_form, entry, [this](std::int64_t id) { return m_names->Of(id); });
        m_query.olderThan = entry.id;
        ++count;
    });
    m_draft.File().Write(lines);
    m_written += count;
    if (count < kPage) {
        m_draft.Replace();
        m_done = true;
    }
}

std::string HistoryFileName(DateTime today)
{
    return "PTK history " + FormatDateTime(today, "yyyy-mm-dd");
}

} // namespace ptk
