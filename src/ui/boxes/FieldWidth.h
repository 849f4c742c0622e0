// Fields that are no wider than what they are for, however wide the window is.
#pragma once

class QWidget;

namespace ptk {

// In digits of the widget's font.
namespace fieldwidth {
inline constexpr int State = 6;
inline constexpr int Zip = 11;
inline constexpr int Phone = 18;
inline constexpr int Money = 9;
inline constexpr int Minutes = 6;
inline constexpr int Page = 120; // all the fields of a page, with their labels
} // namespace fieldwidth

// Leaves room for that many digits and for the frame around them.
void LimitWidth(QWidget& field, int digits);

} // namespace ptk
