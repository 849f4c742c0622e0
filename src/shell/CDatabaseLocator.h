// Finds the database file: the configuration's DatabasePath, with the program folder in place of its placeholder.
#pragma once

#include <memory>
#include <string>

namespace ptk {

class CFileAdaptor;

class CDatabaseLocator
{
public:
    explicit CDatabaseLocator(std::string programFolder) : m_programFolder(std::move(programFolder)) {}

    // nullptr is ignored.
    void ConfigFile(std::shared_ptr<CFileAdaptor> value);

    [[nodiscard]] std::shared_ptr<CFileAdaptor> ConfigFile() const { return m_configFile; }

    // The path that GetDatabasePath found, with backslashes as configured.
    [[nodiscard]] std::string DatabasePath() const { return m_databasePath; }

    // Finds the path. True also without a configuration (the path stays) or without the key (it becomes ""); false only when reading
    // raised.
    bool GetDatabasePath();

private:
    std::string m_programFolder;
    std::shared_ptr<CFileAdaptor> m_configFile;
    std::string m_databasePath;
};

} // namespace ptk
