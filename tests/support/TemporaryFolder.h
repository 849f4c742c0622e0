// A program folder of a test's own, removed with all its content at the end.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace ptk {

class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "ptk-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_path = name;
        for (const char* folder : {"system", "reports", "documentation"})
            std::filesystem::create_directory(m_path / folder);
    }

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::string Text() const { return m_path.string(); }
    std::string File(const std::string& name) const { return (m_path / name).string(); }

    void Write(const std::string& name, const std::string& bytes) const { std::ofstream(m_path / name, std::ios::binary) << bytes; }

    std::string Read(const std::string& name) const
    {
        std::ifstream file(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // The shipped configuration, which names system\ptk_11.mdb of this folder.
    void WriteConfiguration(bool showLoginHelp = true) const
    {
        Write("system/ptk_11.cfg", std::string("[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=") +
                                       (showLoginHelp ? "True" : "False") + "\r\n");
    }

    std::string DatabaseFile() const { return File("system/ptk_11.mdb"); }

private:
    std::filesystem::path m_path;
};

} // namespace ptk
