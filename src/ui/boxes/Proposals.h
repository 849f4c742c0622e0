// The entries that an editable list proposes while somebody types into it.
#pragma once

#include <QCompleter>

class QComboBox;
class QKeyEvent;

namespace ptk {

// Shows in a list below the box the entries that hold the typed text anywhere, in any letter case. The typed text stays as it is while the
// user moves through that list, until he chooses an entry there. Keys and clicks that are not meant for the list go where they would go
// without it. Belongs to the box, whose model must be set already.
class Proposals final : public QObject
{
    Q_OBJECT

public:
    enum class Leaving
    {
        Chooses, // the best proposal is marked from the start, so that Enter and Tab take it, and both then do their usual work
        Keeps    // the typed text stays; only Enter takes the marked proposal, and then does nothing else
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
