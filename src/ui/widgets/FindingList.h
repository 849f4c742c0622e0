// A list of the sentences of findings.
#pragma once

#include "model/check/Finding.h"

#include <QAbstractListModel>
#include <QListView>
#include <vector>

namespace ptk {

class FindingModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void SetFindings(std::vector<Finding> findings);
    [[nodiscard]] const std::vector<Finding>& Findings() const { return m_findings; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Finding> m_findings;
};

// An icon and, in tool tips and for a screen reader, a word tell problems from notices. What does not fit into a line is broken, or, where
// there are hundreds, ends in dots: ten thousand of them open at once.
class FindingList final : public QListView
{
    Q_OBJECT

public:
    explicit FindingList(QWidget* parent = nullptr);

    // None of them chosen.
    void Show(std::vector<Finding> findings);

    // nullptr when none is chosen.
    [[nodiscard]] const Finding* Current() const;

    // Counted from 0, and takes the keyboard where it is to be seen.
    void ChooseRow(std::size_t row);

    // For at least so many lines of text, whatever it shows.
    void KeepRoom(int lines);

    QSize sizeHint() const override;

signals:
    // By mouse or keys, also when it was chosen before.
    void Chosen(const Finding& finding);

    // By Enter or a double click.
    void Entered(const Finding& finding);

    // By the key.
    void DeleteAsked(const Finding& finding);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose();
    void Enter();
    void AskToDelete();

    FindingModel* m_findings; // belongs to the widget
};

// "problem", "notice": the icon that stands for it.
[[nodiscard]] QString SeverityIconName(Severity severity);

} // namespace ptk
