// The table of time records on the Timecards page.
#pragma once

#include <QTableView>

namespace ptk {

// Enter on a chosen row asks for it to be edited, as a double click does; without a chosen row Enter is left to the window. An empty table
// says what to do.
class TimeRecordGrid final : public QTableView
{
    Q_OBJECT

public:
    explicit TimeRecordGrid(QWidget* parent = nullptr);

    // Shown while there are no rows.
    void SetHint(const QString& text);

    // As high as its least height: it takes what the page has left.
    QSize sizeHint() const override;

signals:
    void EditAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_hint;
};

} // namespace ptk
