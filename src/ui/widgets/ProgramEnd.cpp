#include "ui/widgets/ProgramEnd.h"

namespace ptk {

namespace {

bool ending = false;

} // namespace

bool IsEnding()
{
    return ending;
}

void IsEnding(bool value)
{
    ending = value;
}

} // namespace ptk
