// The paper that this system prints on.
#pragma once

namespace ptk {

enum class PaperSize
{
    Letter,
    A4
};

// The paper size, found as the system's own tools find it: in PAPERSIZE, the file that PAPERCONF names, /etc/papersize, the locale of
// LC_PAPER. A setting that names neither size is passed over; Letter where none names one. Raises nothing.
[[nodiscard]] PaperSize SystemPaper();

} // namespace ptk
