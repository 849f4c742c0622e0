// The frame around one page of the main window.
#pragma once

#include <QGroupBox>

class QVBoxLayout;

namespace ptk {

// The page scrolls where the frame is too small for it, so that nothing is ever cut off. Its layouts named "figures" and
// "buttons" stay in sight, below what scrolls, and their widgets are then the frame's children.
class PageFrame final : public QGroupBox
{
    Q_OBJECT

public:
    // Takes the page over.
    PageFrame(const QString& caption, QWidget* page);

private:
    static void AddStanding(QVBoxLayout& column, QWidget& page);
    static void AddButtons(QVBoxLayout& column, QWidget& page);
};

} // namespace ptk
