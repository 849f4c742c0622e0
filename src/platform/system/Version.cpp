#include "platform/system/Version.h"

namespace ptk {

const char* Version()
{
    return PTK_VERSION; // of the build's own project line, so that no other place has to be changed for a new one
}

} // namespace ptk
