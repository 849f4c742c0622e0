// A file of the system, open for as long as its owner lives, and the one way in which the program opens files of its own by name.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>

namespace ptk {

// Of files that the program makes: names and pay are nobody else's business.
inline constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

// Owns a descriptor. Failures carry the number of the errno: 61 (disk full, or beyond a limit on file size or space), 57 and the like.
class SystemFile
{
public:
    explicit SystemFile(int descriptor = -1) : m_descriptor(descriptor) {}

    // Closes; what the system then has to say is lost, so Close or Flush before it matters.
    ~SystemFile();

    SystemFile(SystemFile&& other) noexcept;
    SystemFile& operator=(SystemFile&& other) noexcept;

    // -1 when nothing is open.
    [[nodiscard]] int Descriptor() const { return m_descriptor; }

    // How many bytes came; 0 at the end.
    std::size_t Read(char* buffer, std::size_t size);

    // All of it.
    void Write(std::string_view text);

    // Down to the disk, while windows live.
    void Flush();

    // Raises a late write failure; nothing is open afterwards either way.
    void Close();

private:
    int m_descriptor;
};

// Opens with the flags of open(2). With O_CREAT a new file is for its owner only, whatever the umask; an existing one keeps its mode.
// Whatever is no regular file, such as a pipe, a device or a folder, is refused at once with 75, never waited for. Else raises 53 (no such
// file), 76 (no such folder), 70, 67, 61, 57, 52.
[[nodiscard]] SystemFile OpenRegularFile(const std::filesystem::path& path, int flags);

} // namespace ptk
