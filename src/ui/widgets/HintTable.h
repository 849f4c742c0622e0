// A table that says what to do, or why it is empty, while it has no rows.
#pragma once

#include <QTableView>

namespace ptk {

class HintTable : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

    // Sets the text that is shown, and told to assistive tools, while there are no rows.
    void SetHint(const QString& text);

    void reset() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;

private:
    bool IsEmpty() const;
    void TellHint();

    QString m_hint;
};

} // namespace ptk
