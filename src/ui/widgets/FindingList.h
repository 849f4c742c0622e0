// A list that shows findings, each by its sentence.
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

// An icon tells problems from notices, and so does a word in tool tips and for a screen reader. A sentence that does not fit into a line is
// broken, or, where there are hundreds, ends in dots, so that even ten thousand open at once.
class FindingList final : public QListView
{
    Q_OBJECT

public:
    explicit FindingList(QWidget* parent = nullptr);

    // Shows these findings, with none of them chosen.
    void Show(std::vector<Finding> findings);

    // The chosen finding; nullptr when none is chosen. Valid until the list is filled anew.
    [[nodiscard]] const Finding* Current() const;

    // Chooses a row, counted from 0, and takes the keyboard where the list is visible.
    void ChooseRow(std::size_t row);

    // Makes the list high enough for this many lines of text, whatever it shows.
    void KeepRoom(int lines);

    QSize sizeHint() const override;

signals:
    // A finding was chosen by mouse or keys, maybe the one that was chosen before.
    void Chosen(const Finding& finding);

    // Enter was pressed on the chosen finding, or it was clicked twice.
    void Entered(const Finding& finding);

    // The Delete key was pressed on the chosen finding.
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

// The name of the icon that stands for the severity: "problem" or "notice".
[[nodiscard]] QString SeverityIconName(Severity severity);

} // namespace ptk
