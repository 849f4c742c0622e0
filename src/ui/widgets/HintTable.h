// A table that says what to do, or why it is empty, while it has no rows.
#pragma once

#include <QTableView>

namespace ptk {

class HintTable : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

    // Shown while there are no rows.
    void SetHint(const QString& text);

protected:
    // REQUIRES: a model.
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_hint;
};

} // namespace ptk
