#include "ui/help/FShortcuts.h"

#include "ui/widgets/FixedRows.h"
#include "ui_FShortcuts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace ptk {

namespace {

constexpr QSize kShortcutsSize(560, 460);
constexpr QSize kShortcutsSmallest(360, 240);
constexpr int kColumnSpace = 24; // pixels beside the text of a cell

struct Shortcut
{
    const char* where;
    const char* keys;
    const char* what;
};

constexpr Shortcut kShortcuts[] = {
    {"Pages", "Ctrl+Tab, Ctrl+PgDown", "Next page"},
    {"Pages", "Ctrl+Shift+Tab, Ctrl+PgUp", "Previous page"},
    {"Pages", "Enter", "The button that is meant most"},
    {"Timecards", "Alt+Left, Alt+Right", "Previous and next period"},
    {"Timecards", "Enter", "Edit the chosen record"},
    {"Timecards", "Delete", "Delete the chosen record"},
    {"Timecards", "Alt+L", "What the check found"},
    {"Timecards", "F8", "What was changed since it was paid"},
    {"Sentences of the check", "Enter, Delete", "Edit, delete the record"},
    {"Sentences of the check", "Alt+1, Alt+2, Alt+3", "Mend it as the button says"},
    {"Reports", "Alt+Left, Alt+Right", "Previous and next period"},
    {"Reports", "Ctrl+A, Ctrl+Shift+A", "Choose all employees, none"},
    {"Date boxes", "+, -", "One day on, one day back"},
    {"Lists", "Alt+Down", "Open the list"},
    {"Overview", "Alt+Left, Alt+Right", "Previous and next period"},
    {"Overview", "F3, Shift+F3", "Next and previous with problems"},
    {"Overview", "F8", "History of the chosen employee"},
    {"Overview", "Enter", "The card of the chosen employee"},
    {"Overview", "Ctrl+Shift+A", "Choose nobody, so that everybody is meant"},
    {"Overview", "Ctrl+Z, Ctrl+Shift+Z", "Undo, redo what was stored last"},
    {"Overview", "Alt+M, Alt+Y, Alt+K", "Mend several, close the payday, take in"},
    {"Mend Several", "Space, F2", "Tick the line, type another end"},
    {"Overview, History", "F5", "Read again"},
    {"Overview, History", "Ctrl+C", "Copy the chosen rows, or all"},
    {"Overview, History", "Ctrl+S", "Save in a file"},
    {"Report windows", "Ctrl+S", "Save as a PDF document, a table or text"},
    {"Report windows", "Ctrl+O", "Show as it will be printed"},
    {"Report windows", "Ctrl+P", "Print"},
    {"Report windows", "Ctrl+F, F3, Shift+F3", "Find, again, backwards"},
    {"Report windows", "Ctrl++, Ctrl+-, Ctrl+0", "Larger, smaller, as at first"},
    {"Windows", "Escape", "Close"},
};

QString WithoutMnemonic(QString text)
{
    return text.remove('&').remove("...");
}

} // namespace

FShortcuts::FShortcuts(QWidget& window) : QDialog(&window), m_ui(std::make_unique<Ui::FShortcuts>())
{
    m_ui->setupUi(this);
    setMinimumSize(kShortcutsSmallest);
    resize(kShortcutsSize);
    QTableWidget* table = m_ui->grdShortcuts;
    table->setColumnCount(3);
    table->setHorizontalHeaderLabels({"Where", "Keys", "What"});
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    table->horizontalHeader()->setStretchLastSection(true);
    FixRows(*table);
    AddMenus(window);
    AddOthers();
    for (const int column : {0, 1}) {
        table->resizeColumnToContents(column);
        table->setColumnWidth(column, table->columnWidth(column) + kColumnSpace);
    }
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);
}

FShortcuts::~FShortcuts() = default;

void FShortcuts::AddMenus(const QWidget& window)
{
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            for (const QAction* line : menu->menu()->actions()) {
                if (!line->shortcut().isEmpty()) {
                    Add(WithoutMnemonic(menu->text()), line->shortcut().toString(QKeySequence::NativeText), WithoutMnemonic(line->text()));
                }
            }
        }
    }
}

void FShortcuts::AddOthers()
{
    for (const Shortcut& shortcut : kShortcuts) {
        Add(shortcut.where, shortcut.keys, shortcut.what);
    }
}

void FShortcuts::Add(const QString& where, const QString& keys, const QString& what)
{
    const int row = m_ui->grdShortcuts->rowCount();
    m_ui->grdShortcuts->insertRow(row);
    int column = 0;
    for (const QString& text : {where, keys, what}) {
        m_ui->grdShortcuts->setItem(row, column++, new QTableWidgetItem(text));
    }
}

} // namespace ptk
