// What the machine can be like for a program: files that cannot grow, and users without the rights of root.
#pragma once

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace ptk {

// No file may grow beyond so many bytes: every write past them fails as it does on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes = 0)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

// Tests run as root, too, to whom nothing is forbidden: for as long as this lives they are nobody, who owns `folder` and what is in it.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const std::string& folder)
    {
        if (m_before == 0) {
            for (const std::string& path : {folder, folder + "/system", folder + "/reports"}) {
                static_cast<void>(::chown(path.c_str(), kNobody, kNobody));
            }
            static_cast<void>(::seteuid(kNobody));
        }
    }
    ~OrdinaryUser() { static_cast<void>(::seteuid(m_before)); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    static constexpr uid_t kNobody = 65534;

private:
    uid_t m_before = ::geteuid();
};

// The permission bits of a file, not followed where it is a link; -1 where there is none.
inline int ModeOf(const std::string& path)
{
    struct stat status
    {
    };
    return ::lstat(path.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 0777U) : -1;
}

} // namespace ptk
