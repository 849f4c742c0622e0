// Hardships for a program: files that cannot grow, and a user without the rights of root.
#pragma once

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace ptk {

// As long as an object lives, no file may grow beyond so many bytes. Every write past them fails as it does on a full disk.
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

// Takes the rights of root from a test that runs as root, to whom nothing is forbidden. As long as an object lives, the test is the user
// "nobody", who owns `folder`, its system and its reports.
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

// The permission bits of a file; of a link, its own. -1 where there is no such file.
inline int ModeOf(const std::string& path)
{
    struct stat status
    {
    };
    return ::lstat(path.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 0777U) : -1;
}

} // namespace ptk
