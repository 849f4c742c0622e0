// The list of the keys that do something.
#pragma once

#include <memory>
#include <QDialog>

namespace Ui {
class FShortcuts;
}

namespace ptk {

// Those of the menus as they stand there, and those of the pages and windows.
class FShortcuts final : public QDialog
{
    Q_OBJECT

public:
    // The window whose menus are meant is the parent.
    explicit FShortcuts(QWidget& window);
    ~FShortcuts() override;

private:
    void AddMenus(const QWidget& window);
    void AddOthers();
    void Add(const QString& where, const QString& keys, const QString& what);

    std::unique_ptr<Ui::FShortcuts> m_ui;
};

} // namespace ptk
