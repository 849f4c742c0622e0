#include "shell/CDatabaseLocator.h"

#include "platform/Succeeds.h"
#include "shell/CFileAdaptor.h"

namespace ptk {

namespace {

constexpr const char* kPathKey = "DatabasePath";
constexpr const char* kPlaceholder = "<app.path>";

} // namespace

void CDatabaseLocator::ConfigFile(std::shared_ptr<CFileAdaptor> value)
{
    if (value) {
        m_configFile = std::move(value);
    }
}

bool CDatabaseLocator::GetDatabasePath()
{
    return Succeeds([&] {
        if (m_configFile) {
            m_databasePath = m_configFile->FindKeyValue(kPathKey);
        }
        // The program folder replaces all up to the first ">": also text before the placeholder, and not the placeholder if ">" precedes
        // it.
        if (m_databasePath.find(kPlaceholder) != std::string::npos) {
            m_databasePath = m_programFolder + m_databasePath.substr(m_databasePath.find('>') + 1);
        }
    });
}

} // namespace ptk
