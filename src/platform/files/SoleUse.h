// That only one program at a time works on a folder.
#pragma once

#include "platform/files/SystemFile.h"

#include <string>

namespace ptk {

// A lock on the folder itself, which nothing remains of however the process ends. A folder that cannot be locked (it is not there, or its
// file system knows no such locks) is taken by nobody.
class SoleUse
{
public:
    // In the platform's own form. Never waits.
    explicit SoleUse(const std::string& folder);

    // Whether another program, or another one of these, has it.
    [[nodiscard]] bool TakenElsewhere() const { return m_takenElsewhere; }

private:
    SystemFile m_folder;
    bool m_takenElsewhere;
};

} // namespace ptk
