// The way of a report's file to the print spooler.
#pragma once

#include <string>

namespace ptk {

class Desktop;
class DesktopWindow;

// False when the spooler does not take it. Of a file that is not there, as of an empty path, the user is told in a box; of any other
// refusal only the answer tells. Raises nothing.
[[nodiscard]] bool PrintReportFile(Desktop& desktop, const DesktopWindow* window, const std::string& path);

} // namespace ptk
