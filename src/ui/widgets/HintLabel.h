// A label for sentences that follow what the user does, where a message box would be in the way.
#pragma once

#include <QLabel>

namespace ptk {

// Empty at first; long texts take several lines. Each new text is announced to assistive tools.
class HintLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit HintLabel(QWidget* parent = nullptr);

    void Say(const QString& text);

    // Keeps room for this many lines, so that nothing around the label moves when its text becomes longer or shorter.
    void KeepRoom(int lines);
};

} // namespace ptk
