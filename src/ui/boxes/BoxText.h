// The text of a box in the program's own strings.
#pragma once

#include <QLineEdit>
#include <string>

namespace ptk {

[[nodiscard]] inline std::string TextOf(const QLineEdit* box)
{
    return box->text().toStdString();
}

// Scrolls a text that is longer than its box to its beginning, unless somebody is typing in the box.
inline void ShowBeginning(QLineEdit* box)
{
    if (!box->hasFocus()) {
        box->home(false);
    }
}

inline void ShowText(QLineEdit* box, const std::string& text)
{
    box->setText(QString::fromStdString(text));
    ShowBeginning(box);
}

} // namespace ptk
