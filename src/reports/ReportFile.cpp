#include "reports/ReportFile.h"

#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"

namespace ptk {

namespace {

constexpr std::int16_t kWriteMode = 1;

} // namespace

bool ReportFile::Open(const std::string& path)
{
    return Succeeds([&] {
        m_draft.emplace(NativePath(path).string());
        return m_file.OpenFile(m_draft->Path(), kWriteMode);
    });
}

bool ReportFile::WriteLine(const std::string& text)
{
    const bool written = Succeeds([&] { return m_file.WriteLine(text); });
    m_lost = m_lost || !written;
    return written;
}

bool ReportFile::Close()
{
    return m_file.CloseFile();
}

bool ReportFile::Publish()
{
    return Succeeds([&] { m_draft->Replace(); });
}

} // namespace ptk
