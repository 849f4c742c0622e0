// The desktop of a program with windows.
#pragma once

#include "platform/system/Desktop.h"

namespace ptk {

class QtDesktop final : public Desktop
{
public:
    Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override;
    Answer AskWithReason(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine& line) override;
    void SetPointer(Pointer pointer) override;
    std::int32_t Shell(const DesktopWindow& owner, ShellVerb verb, const std::string& path) override;
    std::int32_t Print(const DesktopWindow& owner, const std::string& path, const std::string& title) override;
    [[nodiscard]] std::string Refusal() const override { return m_refusal; }

private:
    static Answer Ask(const std::string& text, const std::string& title, Icon icon, Buttons buttons, ReasonLine* line); // nullptr: no line
    std::int32_t Run(ShellVerb verb, const std::string& path, const std::string& title);

    bool m_busy = false;
    std::string m_refusal;
};

} // namespace ptk
