// The paper that this system prints on.
#pragma once

namespace ptk {

enum class PaperSize
{
    Letter,
    A4
};

// As the system's own tools read the setting: PAPERSIZE, the file that PAPERCONF names, /etc/papersize, the locale of LC_PAPER. What names
// neither of the two sizes says nothing; letter where nothing says. Raises nothing.
[[nodiscard]] PaperSize SystemPaper();

} // namespace ptk
