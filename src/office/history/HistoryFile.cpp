#include "office/history/HistoryFile.h"

#include "platform/text/DayText.h"
#include "reports/forms/ReportDocument.h"

#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kPage = 1000; // entries; some tens of milliseconds

} // namespace

HistoryFile::HistoryFile(const std::string& path, ReportForm form, DateTime made, std::shared_ptr<CJetDB> database, TrailQuery query,
                         std::shared_ptr<const EmployeeNames> names)
    : m_path(path), m_form(form), m_made(made), m_draft(path), m_database(std::move(database)), m_query(std::move(query)),
      m_names(std::move(names))
{
    m_query.most = kPage;
    if (m_form == ReportForm::Csv) {
        m_draft.File().Write(kByteOrderMark);
    }
    m_draft.File().Write(HistoryHeading(m_form));
}

void HistoryFile::WriteOn()
{
    std::string bytes;
    std::int64_t count = 0;
    ReadTrail(m_database, m_query, [&](const TrailEntry& entry) {
        bytes += Take(entry);
        m_query.olderThan = entry.id;
        ++count;
    });
    const bool last = count < kPage;
    m_draft.File().Write(last ? bytes + End() : bytes);
    m_written += count;
    if (last) {
        m_draft.Replace();
        m_done = true;
    }
}

// The entry's line; nothing for pages, which keep the entry until the end.
std::string HistoryFile::Take(const TrailEntry& entry)
{
    const auto nameOf = [this](std::int64_t id) { return m_names->Of(id); };
    if (m_form != ReportForm::Pdf) {
        return HistoryLine(m_form, entry, nameOf);
    }
    m_pages.Add(HistoryCellsOf(entry, nameOf));
    return "";
}

std::string HistoryFile::End() const
{
    if (m_form != ReportForm::Pdf) {
        return "";
    }
    const ReportDocument pages = m_pages.Document();
    return FileOf(m_form, {&pages, 1}, m_made);
}

std::string HistoryFileName(DateTime today)
{
    return "PTK history " + IsoDay(today);
}

} // namespace ptk
