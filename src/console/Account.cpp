#include "console/Account.h"

#include <pwd.h>
#include <unistd.h>

#include <string>

namespace ptk {

Author ConsoleAuthor()
{
    const uid_t account = geteuid();
    const passwd* entry = getpwuid(account);
    return {entry == nullptr ? std::to_string(account) : entry->pw_name, "ptk-console"};
}

} // namespace ptk
