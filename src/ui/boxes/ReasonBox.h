// A box for the reason of a change, with the last reasons to choose from.
#pragma once

#include <QComboBox>
#include <string>

class QLabel;

namespace ptk {

struct ReasonLine;

// The reason may stay empty. Proposals never change what was typed.
class ReasonBox final : public QComboBox
{
    Q_OBJECT

public:
    // What a window says while the box asks.
    static constexpr auto kAsked = "This period is paid: say why it is changed, or press Save again.";

    explicit ReasonBox(QWidget* parent = nullptr);

    void Offer(const ReasonLine& line);

    // The typed reason without blanks at its ends; empty for none.
    [[nodiscard]] std::string Reason() const;

    // True once, when a wanted reason was left empty: the box then takes the keyboard. After that nobody is kept from leaving it empty.
    [[nodiscard]] bool AsksForIt();

    // A new label "Reason", with the key that leads to the box.
    [[nodiscard]] QLabel* NewLabel();

private:
    bool m_wanted = false;
    bool m_asked = false;
};

} // namespace ptk
