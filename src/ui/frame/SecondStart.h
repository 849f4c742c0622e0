// What a second start of the program on the same data comes to: the windows of the first come to the front.
#pragma once

#include "platform/system/OneOfAKind.h"

#include <memory>
#include <QObject>
#include <string>

class QSocketNotifier;

namespace ptk {

class SecondStart final : public QObject
{
    Q_OBJECT

public:
    // The program folder that is worked in.
    explicit SecondStart(const std::string& folder);

    ~SecondStart() override;

    // This is the second one, and the first has been told to come to the front.
    [[nodiscard]] bool IsSecond() const { return m_program.RunsAlready(); }

private:
    OneOfAKind m_program;
    std::unique_ptr<QSocketNotifier> m_calls; // nullptr unless this is the first
};

// The window that can be used now, in front of everything.
void RaiseProgram();

} // namespace ptk
