// Sentences that follow what the user does, where a message box would stand in the way.
#pragma once

#include <QLabel>

namespace ptk {

// Empty at first; breaks its lines. Each new text is announced to assistive tools.
class HintLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit HintLabel(QWidget* parent = nullptr);

    void Say(const QString& text);

    // So that nothing around it moves when it says more or less.
    void KeepRoom(int lines);
};

} // namespace ptk
