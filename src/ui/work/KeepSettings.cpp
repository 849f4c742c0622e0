#include "ui/work/KeepSettings.h"

#include "platform/Waiting.h"

#include <QSettings>

namespace ptk {

// The settings are made, written and gone on the other thread: they would else be written once more by an event of the windows' thread.
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
