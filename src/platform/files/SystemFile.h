// An open file of the system, and the one way in which the program opens its own files by name.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>

namespace ptk {

// The mode of files that the program makes: names and pay are nobody else's business.
inline constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

// Owns a file descriptor. Members raise the failure of the errno: 61 (disk full, or beyond a limit on file size or space), 57 and the like.
class SystemFile
{
public:
    explicit SystemFile(int descriptor = -1) : m_descriptor(descriptor) {}

    // Closes the file; what the system reports then is lost, so Close or Flush before it matters.
    ~SystemFile();

    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;

    // The file descriptor; -1 when nothing is open.
    [[nodiscard]] int Descriptor() const { return m_descriptor; }

    // Reads up to `size` bytes; answers how many came, 0 at the end of the file.
    std::size_t Read(char* buffer, std::size_t size);

    // Writes the whole text.
    void Write(std::string_view text);

    // Flushes the file to the disk; the thread takes its turns meanwhile (Waiting).
    void Flush();

    // Closes the file and raises a late write failure; nothing is open afterwards either way.
    void Close();

private:
    int m_descriptor;
};

// Opens a file with the flags of open(2). With O_CREAT a new file is for its owner only, whatever the umask; an existing one keeps its
// mode. What is no regular file, such as a pipe, a device or a folder, is refused at once with 75, never waited for. Else raises 53 (no
// such file), 76 (no such folder), 70, 67, 61, 57, 52.
[[nodiscard]] SystemFile OpenRegularFile(const std::filesystem::path& path, int flags);

} // namespace ptk
