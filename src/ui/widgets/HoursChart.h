// Hours per day as bars with a line at 8 hours, and what the work weeks come to.
#pragma once

#include "office/card/HoursColumns.h"

#include <QListView>
#include <vector>

class QPainter;

namespace ptk {

// Each column can be reached with the arrow keys and tells its figures in words, as its tool tip and to a screen reader. Overtime is
// hatched. Columns share the width; where they would become too narrow, the view scrolls.
class HoursChart final : public QListView
{
    Q_OBJECT

public:
    explicit HoursChart(QWidget* parent = nullptr);

    void Show(std::vector<HoursColumn> columns);

    // Shown while there are no columns.
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

// What the bars stand for.
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
