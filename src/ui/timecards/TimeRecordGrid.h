// The table of time records on the Timecards page.
#pragma once

#include "ui/widgets/HintTable.h"

namespace ptk {

// The chosen row stays in sight when the table becomes smaller, and looks the same when the keyboard is elsewhere. Enter on a chosen row
// asks for it to be edited, as a double click does; without a chosen row Enter is left to the window.
class TimeRecordGrid final : public HintTable
{
    Q_OBJECT

public:
    explicit TimeRecordGrid(QWidget* parent = nullptr);

    // Asks for its least height only, since it takes all the room that the page has left.
    QSize sizeHint() const override;

signals:
    void EditAsked();

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ptk
