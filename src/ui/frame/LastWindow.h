// Tells when no window of the program is left to be seen, however the last one went.
#pragma once

#include <functional>
#include <QObject>

namespace ptk {

[[nodiscard]] bool IsAnyWindowShown();

// Calls `gone` from the event loop, after any window was hidden and none is left. The toolkit's own signal of the last window counts only
// windows that are closed, not those that hide themselves or are taken down with their owner.
class LastWindow final : public QObject
{
    Q_OBJECT

public:
    // Watches from now on.
    explicit LastWindow(std::function<void()> gone);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    std::function<void()> m_gone;
};

} // namespace ptk
