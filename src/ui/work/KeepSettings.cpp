#include "ui/work/KeepSettings.h"

#include "platform/Waiting.h"

#include <QSettings>

namespace ptk {

// The settings object lives and ends on the other thread. Else an event of the windows' thread would write the settings once more.
void KeepSettings(std::initializer_list<std::pair<QString, QVariant>> settings)
{
    waiting::Behind([settings] {
        QSettings kept;
        for (const auto& [key, value] : settings) {
            kept.setValue(key, value);
        }
    });
}

} // namespace ptk
