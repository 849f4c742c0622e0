// Shows the busy pointer for as long as the object lives.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class BusyPointer
{
public:
    explicit BusyPointer(Desktop& desktop) : m_desktop(desktop) { m_desktop.SetPointer(Pointer::Busy); }
    ~BusyPointer() { m_desktop.SetPointer(Pointer::Default); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Desktop& m_desktop;
};

} // namespace ptk
