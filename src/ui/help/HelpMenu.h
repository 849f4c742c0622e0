// The Help menu: the user's guide, and what the program says of itself.
#pragma once

#include <QObject>
#include <string>

class QAction;
class QWidget;

namespace ptk {

class PageHost;

class HelpMenu final : public QObject
{
    Q_OBJECT

public:
    struct Lines
    {
        QAction& about;
        QAction& contents;
        QAction& shortcuts;
    };

    // All outlive it; the window is the parent.
    HelpMenu(QWidget& window, const Lines& lines, PageHost& host, std::string programFolder);

signals:
    void Said(const QString& text);

private:
    void About();

    // Its page where nothing takes the document.
    void UsersGuide();

    void TellNotOpened(const std::string& line);
    void Shortcuts();

    QWidget& m_window;
    PageHost& m_host;
    std::string m_programFolder;
};

} // namespace ptk
