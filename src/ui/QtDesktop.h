// The desktop of a program with windows.
#pragma once

#include "platform/Desktop.h"

namespace ptk {

class QtDesktop final : public Desktop
{
public:
    Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override;
    void SetPointer(Pointer pointer) override;
    std::int32_t Shell(const DesktopWindow& owner, ShellVerb verb, const std::string& path) override;

private:
    bool m_busy = false;
};

} // namespace ptk
