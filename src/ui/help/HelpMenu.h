// The Help menu: the user's guide, the list of keys, and the About box.
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

    // The references outlive it; the window is the parent.
    HelpMenu(QWidget& window, const Lines& lines, PageHost& host, std::string programFolder);

signals:
    void Said(const QString& text);

private:
    void About();

    // Opens the guide's document, or its HTML page where no program takes the document.
    void UsersGuide();

    void TellNotOpened(const std::string& line);
    void Shortcuts();

    QWidget& m_window;
    PageHost& m_host;
    std::string m_programFolder;
};

} // namespace ptk
