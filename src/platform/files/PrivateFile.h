// A file that only its owner may read, for as long as its object lives.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// A file in a new folder among the system's temporary files, both for the owner only. The destructor removes both; whoever has the file
// open keeps it.
class PrivateFile
{
public:
    // `name` has no folder; programs show it. Raises 61, 57, 70, 76; nothing is left then.
    PrivateFile(const std::string& name, std::string_view bytes);
    ~PrivateFile();
    PrivateFile(const PrivateFile&) = delete;
    PrivateFile& operator=(const PrivateFile&) = delete;

    // The file's path, in the platform's own form.
    [[nodiscard]] const std::string& Path() const { return m_path; }

private:
    void Remove() const;

    std::string m_folder;
    std::string m_path;
};

} // namespace ptk
