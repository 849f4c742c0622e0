// A line for why something is changed, with the last reasons to choose from.
#pragma once

#include <QComboBox>
#include <string>

class QLabel;

namespace ptk {

struct ReasonLine;

// May stay empty. What was typed is never changed by what is offered.
class ReasonBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit ReasonBox(QWidget* parent = nullptr);

    void Offer(const ReasonLine& line);

    // Without outer blanks; empty for none.
    [[nodiscard]] std::string Reason() const;

    // Whether it is wanted, was left empty and has not been asked for by this before: once, as nobody is kept from leaving it empty.
    [[nodiscard]] bool AsksForIt();

    // "Reason", with the key that leads to the box.
    [[nodiscard]] QLabel* NewLabel();

private:
    bool m_wanted = false;
    bool m_asked = false;
};

} // namespace ptk
