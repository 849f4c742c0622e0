#include "ui/frame/PageFrame.h"

#include "ui/widgets/ButtonRow.h"

#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace ptk {

namespace {

constexpr auto kStanding = "figures"; // what stays in sight however small the window is
constexpr auto kButtons = "buttons";
constexpr int kSpace = 8; // pixels

// Whether the page is a form, which has no use for more height than it needs.
bool IsForm(const QWidget& page)
{
    return page.sizePolicy().verticalPolicy() == QSizePolicy::Maximum;
}

// Scrolls a page: as high as the page wants to be, and less where there is less room.
class PageScroll final : public QScrollArea
{
public:
    explicit PageScroll(QWidget* page)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(page);
        for (QWidget* inside : {viewport(), page}) {
            inside->setAutoFillBackground(false); // the frame's own background shows through
        }
        setSizePolicy(QSizePolicy::Expanding, IsForm(*page) ? QSizePolicy::Maximum : QSizePolicy::Expanding);
    }

    QSize sizeHint() const override
    {
        const QSize size = widget()->sizeHint();
        return {size.width(), widget()->hasHeightForWidth() && width() > 0 ? widget()->heightForWidth(width()) : size.height()};
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QScrollArea::resizeEvent(event);
        if (widget()->hasHeightForWidth() && event->size().width() != event->oldSize().width()) {
            updateGeometry();
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace

// The frame's content is no wider than the page's own maximum. The buttons of a form stand directly below its fields.
PageFrame::PageFrame(const QString& caption, QWidget* page) : QGroupBox(caption)
{
    auto* row = new QHBoxLayout(this);
    auto* inside = new QWidget;
    inside->setObjectName("inside");
    inside->setMaximumWidth(page->maximumWidth());
    row->addWidget(inside, 1);
    row->addStretch();
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kSpace);
    column->addWidget(new PageScroll(page));
    AddStanding(*column, *page);
    AddButtons(*column, *page);
    if (IsForm(*page)) {
        column->addStretch();
    }
}

void PageFrame::AddStanding(QVBoxLayout& column, QWidget& page)
{
    if (auto* standing = page.findChild<QLayout*>(kStanding)) {
        qobject_cast<QLayout*>(standing->parent())->removeItem(standing);
        standing->setParent(nullptr);
        column.addLayout(standing);
    }
}

// REQUIRES: the page is inside the frame already. Within one window the buttons keep their places in the order of Tab.
void PageFrame::AddButtons(QVBoxLayout& column, QWidget& page)
{
    if (auto* const buttons = page.findChild<QLayout*>(kButtons)) {
        FoldButtons(column, buttons);
    }
}

} // namespace ptk
