// The frame around one page of the main window.
#pragma once

#include <QGroupBox>

class QVBoxLayout;

namespace ptk {

// The page scrolls where the frame is too small for it, so that nothing is ever cut off. The page's layouts named "figures" and "buttons"
// stay in sight below what scrolls, and their widgets become children of the frame.
class PageFrame final : public QGroupBox
{
    Q_OBJECT

public:
    // Takes ownership of the page.
    PageFrame(const QString& caption, QWidget* page);

private:
    static void AddStanding(QVBoxLayout& column, QWidget& page);
    static void AddButtons(QVBoxLayout& column, QWidget& page);
};

} // namespace ptk
