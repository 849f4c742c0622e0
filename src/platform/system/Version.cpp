#include "platform/system/Version.h"

namespace ptk {

const char* Version()
{
    return PTK_VERSION; // from the build's project line, the only place to change for a new version
}

} // namespace ptk
