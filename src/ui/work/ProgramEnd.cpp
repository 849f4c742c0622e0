#include "ui/work/ProgramEnd.h"

namespace ptk {

namespace {

bool isEnding = false;

} // namespace

bool IsEnding()
{
    return isEnding;
}

void IsEnding(bool value)
{
    isEnding = value;
}

} // namespace ptk
