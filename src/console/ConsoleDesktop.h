// The desktop of a program without windows: boxes become lines on a stream.
#pragma once

#include "platform/system/Desktop.h"

#include <iosfwd>

namespace ptk {

// Nobody is there to answer a box: one with Yes and No is answered No, any other OK.
class ConsoleDesktop final : public Desktop
{
public:
    explicit ConsoleDesktop(std::ostream& stream) : m_stream(stream) {} // REQUIRES: the stream outlives the desktop

    Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override;
    void SetPointer(Pointer pointer) override;
    std::int32_t Shell(const DesktopWindow& owner, ShellVerb verb, const std::string& path) override;

private:
    std::ostream& m_stream;
};

} // namespace ptk
