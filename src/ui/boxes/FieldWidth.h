// Fields that are no wider than their content needs, however wide the window is.
#pragma once

class QWidget;

namespace ptk {

// Widths in digits of the widget's font.
namespace fieldwidth {
inline constexpr int State = 6;
inline constexpr int Zip = 11;
inline constexpr int Phone = 18;
inline constexpr int Money = 9;
inline constexpr int Minutes = 6;
inline constexpr int Page = 120; // all the fields of a page, with their labels
} // namespace fieldwidth

// Limits the width to that many digits and the frame around them.
void LimitWidth(QWidget& field, int digits);

} // namespace ptk
