// Lets only one program at a time work on a folder.
#pragma once

#include "platform/files/SystemFile.h"

#include <string>

namespace ptk {

// A lock on the folder itself; nothing of it remains however the process ends. A folder that cannot be locked (it is not there, or its file
// system knows no such locks) counts as taken by nobody.
class SoleUse
{
public:
    // Tries to lock the folder, a path in the platform's own form; never waits.
    explicit SoleUse(const std::string& folder);

    // Whether another program, or another object of this class, has the folder.
    [[nodiscard]] bool TakenElsewhere() const { return m_takenElsewhere; }

private:
    SystemFile m_folder;
    bool m_takenElsewhere;
};

} // namespace ptk
