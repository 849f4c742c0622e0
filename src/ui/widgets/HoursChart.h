// A chart of the hours per day, as bars with a line at 8 hours, and of the totals of the work weeks.
#pragma once

#include "office/card/HoursColumns.h"

#include <QListView>
#include <vector>

class QPainter;

namespace ptk {

// The arrow keys reach each column; its figures stand in words in its tool tip and for a screen reader. Overtime is hatched. Columns share
// the width; where they would become too narrow, the view scrolls.
class HoursChart final : public QListView
{
    Q_OBJECT

public:
    explicit HoursChart(QWidget* parent = nullptr);

    void Show(std::vector<HoursColumn> columns);

    // Sets the text that is shown while there are no columns.
    void SetHint(const QString& text) { m_hint = text; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitHeight();

    QString m_hint;
};

// The legend of the chart: what the bars and the line stand for.
class HoursLegend final : public QWidget
{
    Q_OBJECT

public:
    explicit HoursLegend(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ptk
