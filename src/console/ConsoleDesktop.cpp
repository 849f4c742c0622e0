#include "console/ConsoleDesktop.h"

#include "console/Console.h"
#include "platform/system/SystemShell.h"

#include <ostream>

namespace ptk {

Answer ConsoleDesktop::MessageBox(const std::string& text, const std::string& title, Icon, Buttons buttons)
{
    m_stream << TerminalText(title) << ": " << TerminalText(text) << '\n';
    return buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
}

void ConsoleDesktop::SetPointer(Pointer) {}

std::int32_t ConsoleDesktop::Shell(const DesktopWindow&, ShellVerb verb, const std::string& path)
{
    return RunSystemShell(verb, path);
}

} // namespace ptk
