// Stores what the user's desktop settings keep of the windows from one start to the next.
#pragma once

#include <initializer_list>
#include <QString>
#include <QVariant>
#include <utility>

namespace ptk {

// Stores all of them, or none where the desktop's settings cannot be written. They are on the disk when it returns; windows live meanwhile.
void KeepSettings(std::initializer_list<std::pair<QString, QVariant>> settings);

} // namespace ptk
