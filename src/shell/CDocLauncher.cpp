#include "shell/CDocLauncher.h"

#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"

namespace ptk {

std::string CDocLauncher::FileName(const std::string& thedocname)
{
    m_fileName = thedocname;
    return {};
}

bool CDocLauncher::DisplayDocument(const DesktopWindow* theparent, const std::string& thedocname)
{
    return Launch(theparent, thedocname, [&](const std::string& path) { return m_desktop.Shell(*m_parent, ShellVerb::Open, path); });
}

bool CDocLauncher::PrintDocument(const DesktopWindow* theparent, const std::string& thedocname)
{
    return Launch(theparent, thedocname, [&](const std::string& path) { return m_desktop.Shell(*m_parent, ShellVerb::Print, path); });
}

bool CDocLauncher::PrintDocument(const DesktopWindow* theparent, const std::string& thedocname, const std::string& title)
{
    return Launch(theparent, thedocname, [&](const std::string& path) { return m_desktop.Print(*m_parent, path, title); });
}

template <typename Request>
bool CDocLauncher::Launch(const DesktopWindow* theparent, const std::string& thedocname, Request request)
{
    if (theparent == nullptr) {
        return Refuse(docerror::NoParentWindow);
    }
    if (thedocname.empty()) {
        return Refuse(docerror::NoDocumentName);
    }
    m_parent = theparent;
    m_fileName = thedocname;
    return Succeeds([&] {
        const std::int32_t code = request(NativePath(m_fileName).string());
        return code == ShellFileNotFound ? Refuse(docerror::DocumentNotFound) : code > ShellSuccess;
    });
}

bool CDocLauncher::Refuse(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

} // namespace ptk
