#include "support/Sources.h"

namespace ptk {

std::string SourceFolder()
{
    return PTK_SOURCE_DIR;
}

} // namespace ptk
