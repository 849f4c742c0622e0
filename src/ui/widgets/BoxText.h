// The text of a box in the program's own strings.
#pragma once

#include <QLineEdit>
#include <string>

namespace ptk {

inline std::string TextOf(const QLineEdit* box)
{
    return box->text().toStdString();
}

inline void ShowText(QLineEdit* box, const std::string& text)
{
    box->setText(QString::fromStdString(text));
}

} // namespace ptk
