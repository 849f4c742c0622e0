// What the user's desktop keeps of the windows from start to start.
#pragma once

#include <initializer_list>
#include <QString>
#include <QVariant>
#include <utility>

namespace ptk {

// All or, where the desktop's settings cannot be written, none of them. They are on the disk when it returns, and windows live meanwhile.
void KeepSettings(std::initializer_list<std::pair<QString, QVariant>> settings);

} // namespace ptk
