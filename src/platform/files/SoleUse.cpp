#include "platform/files/SoleUse.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace ptk {

SoleUse::SoleUse(const std::string& folder)
    : m_folder(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      m_takenElsewhere(m_folder.Descriptor() >= 0 && ::flock(m_folder.Descriptor(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
{
}

} // namespace ptk
