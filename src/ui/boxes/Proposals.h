// What an editable list proposes while somebody types into it.
#pragma once

#include <QCompleter>

class QComboBox;
class QKeyEvent;

namespace ptk {

// The entries that hold the typed text anywhere, in any letter case, in a list below the box. What was typed stays as it is, whatever is
// walked over in that list, until an entry is chosen there. Keys and clicks that are not meant for the list go where they would go without
// it. Belongs to the box, whose model must be set already.
class Proposals final : public QObject
{
    Q_OBJECT

public:
    enum class Leaving
    {
        Chooses, // the best proposal is marked from the start, so that Enter and Tab take it, and both go on
        Keeps    // what was typed; only Enter takes the marked proposal, and goes no further
    };

    Proposals(QComboBox& box, Leaving leaving);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Whether the box holds something other than the entry it stands on.
    [[nodiscard]] bool IsTyped() const;

    int MatchesOf(const QString& typed);
    void Propose(const QString& typed);
    bool Press(QKeyEvent& press);
    bool PressOpen(QKeyEvent& press);
    bool StepFromTyped(int step);
    void Leave();
    bool ChooseTyped();
    void ChooseProposal(const QModelIndex& proposal);
    void Choose(int row);
    void Close();

    QComboBox& m_box;
    QCompleter m_completer;
    Leaving m_leaving;
};

} // namespace ptk
