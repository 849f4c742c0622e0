#include "ui/frame/PageFrame.h"

#include "ui/widgets/ButtonRow.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include <memory>

namespace ptk {

namespace {

constexpr auto kButtons = "buttons";
constexpr int kSpace = 12; // pixels, as between the parts of a page

QScrollArea* NewScroll(QWidget* page)
{
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    for (QWidget* inside : {scroll->viewport(), page}) {
        inside->setAutoFillBackground(false); // the frame's own background shows through
    }
    return scroll;
}

} // namespace

PageFrame::PageFrame(const QString& caption, QWidget* page) : QGroupBox(caption)
{
    auto* column = new QVBoxLayout(this);
    column->setSpacing(kSpace);
    column->addWidget(NewScroll(page));
    AddButtons(*column, *page);
}

// After the page is inside the frame: in one window, the buttons keep their places in the order of Tab.
void PageFrame::AddButtons(QVBoxLayout& column, QWidget& page)
{
    const std::unique_ptr<QLayout> buttons(page.findChild<QLayout*>(kButtons));
    if (buttons == nullptr) {
        return;
    }
    auto* row = new ButtonRow;
    column.addLayout(row);
    row->TakeFrom(*buttons);
}

} // namespace ptk
