// A message box that is only to be read; its words stand once, in the file that shows it.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

struct Notice
{
    const char* title;
    const char* text;
    Icon icon;
};

// Shows the notice and waits for the user's OK.
inline void Tell(Desktop& desktop, const Notice& notice)
{
    desktop.Show(notice.text, notice.title, notice.icon);
}

} // namespace ptk
