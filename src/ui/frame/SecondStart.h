// Brings the program's windows to the front when it is started a second time on the same data.
#pragma once

#include "platform/system/SingleInstance.h"

#include <memory>
#include <QObject>
#include <string>

class QSocketNotifier;

namespace ptk {

class SecondStart final : public QObject
{
    Q_OBJECT

public:
    // `folder` is the program folder that is worked in.
    explicit SecondStart(const std::string& folder);

    ~SecondStart() override;

    // Whether another program already works in the folder; it has then been told to come to the front.
    [[nodiscard]] bool IsSecond() const { return m_program.RunsAlready(); }

private:
    SingleInstance m_program;
    std::unique_ptr<QSocketNotifier> m_calls; // nullptr unless this is the first
};

// Brings the window that can be used now in front of everything: the open dialog, else a main window that is visible.
void RaiseProgram();

} // namespace ptk
