#include "platform/files/PrivateFile.h"

#include "platform/Failure.h"
#include "platform/files/SystemFile.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace ptk {

PrivateFile::PrivateFile(const std::string& name, std::string_view bytes)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error) {
        throw Failure::FromErrno(error.value());
    }
    m_folder = (folder / "ptk-XXXXXX").string(); // becomes random characters
    if (::mkdtemp(m_folder.data()) == nullptr) {
        throw Failure::FromErrno(errno);
    }
    m_path = m_folder + "/" + name;
    try {
        SystemFile file = OpenRegularFile(m_path, O_WRONLY | O_CREAT | O_EXCL);
        file.Write(bytes);
        file.Close();
    } catch (...) {
        Remove();
        throw;
    }
}

PrivateFile::~PrivateFile()
{
    Remove();
}

void PrivateFile::Remove() const
{
    ::unlink(m_path.c_str());
    ::rmdir(m_folder.c_str());
}

} // namespace ptk
