// The window that lists the keys of the program.
#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class FShortcuts;
}

namespace ptk {

// Lists the keys of the menus, read from the menus themselves, and those of the pages and windows.
class FShortcuts final : public QDialog
{
    Q_OBJECT

public:
    // `window` is the one whose menus are read; it becomes the parent.
    explicit FShortcuts(QWidget& window);
    ~FShortcuts() override;

private:
    void AddMenus(const QWidget& window);
    void AddOthers();
    void Add(const QString& where, const QString& keys, const QString& what);

    std::unique_ptr<Ui::FShortcuts> m_ui;
};

} // namespace ptk
