// Tells when no window of the program is visible any more, however the last one went.
#pragma once

#include <functional>
#include <QObject>

namespace ptk {

[[nodiscard]] bool IsAnyWindowShown();

// Calls `gone` from the event loop when a window was hidden and no other is visible. The toolkit's own signal of the last window counts
// only windows that are closed, not those that hide themselves or are taken down with their owner.
class LastWindow final : public QObject
{
    Q_OBJECT

public:
    explicit LastWindow(std::function<void()> gone);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    std::function<void()> m_gone;
};

} // namespace ptk
