// A message box that only wants to be read: its words stand once, beside whoever shows it.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

struct Notice
{
    const char* title;
    const char* text;
    Icon icon;
};

// Waits for the user's OK.
inline void Tell(Desktop& desktop, const Notice& notice)
{
    desktop.Show(notice.text, notice.title, notice.icon);
}

} // namespace ptk
