// A file that nobody but its owner may read, for as long as its object lives.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// In a folder of its own among the system's temporary files, both for the owner only. Both are gone with the object; whoever has the file
// open by then keeps it.
class PrivateFile
{
public:
    // `name`: without a folder; programs show it. Raises 61, 57, 70, 76; nothing is left then.
    PrivateFile(const std::string& name, std::string_view bytes);
    ~PrivateFile();
    PrivateFile(const PrivateFile&) = delete;
    PrivateFile& operator=(const PrivateFile&) = delete;

    // In the platform's own form.
    [[nodiscard]] const std::string& Path() const { return m_path; }

private:
    void Remove() const;

    std::string m_folder;
    std::string m_path;
};

} // namespace ptk
