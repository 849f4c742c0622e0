// The table of time records on the Timecards page.
#pragma once

#include "ui/widgets/HintTable.h"

namespace ptk {

// Enter on a chosen row asks for it to be edited, as a double click does; without a chosen row Enter is left to the window.
class TimeRecordGrid final : public HintTable
{
    Q_OBJECT

public:
    explicit TimeRecordGrid(QWidget* parent = nullptr);

    // As high as its least height: it takes what the page has left.
    QSize sizeHint() const override;

signals:
    void EditAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ptk
