#include "ui/boxes/Proposals.h"

#include "ui/boxes/BoxText.h"

#include <algorithm>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

namespace ptk {

namespace {

// A list with rows of one height, as in the box's own list, since thousands of entries may hold a single typed letter.
QListView* NewView()
{
    auto* view = new QListView;
    view->setObjectName("proposals");
    view->setAttribute(Qt::WA_ShowWithoutActivating);
    view->setUniformItemSizes(true);
    view->setLayoutMode(QListView::Batched);
    view->setTextElideMode(Qt::ElideRight);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return view;
}

// The row of the typed text itself, else the first row that begins with it, else the first of all.
int BestRow(const QAbstractItemModel& rows, const QString& typed)
{
    int begun = -1;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QString text = rows.index(row, 0).data().toString();
        if (!text.startsWith(typed, Qt::CaseInsensitive)) {
            continue;
        }
        if (text.size() == typed.size()) {
            return row;
        }
        begun = begun < 0 ? row : begun;
    }
    return std::max(begun, 0);
}

} // namespace

Proposals::Proposals(QComboBox& box, Leaving leaving) : QObject(&box), m_box(box), m_completer(box.model()), m_leaving(leaving)
{
    box.setCompleter(nullptr); // the box's own completer writes what it proposes into the text
    m_completer.setWidget(&box);
    m_completer.setCaseSensitivity(Qt::CaseInsensitive);
    m_completer.setFilterMode(Qt::MatchContains);
    m_completer.setPopup(NewView());
    m_completer.popup()->setWindowFlags(Qt::ToolTip); // a popup would keep the click that closes it from the button it was meant for
    box.installEventFilter(this);                     // before the completer does, which holds back that the box is left
    connect(box.lineEdit(), &QLineEdit::textEdited, this, &Proposals::Propose);
    connect(&m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this, &Proposals::ChooseProposal);
    disconnect(box.lineEdit(), &QLineEdit::editingFinished, &box, nullptr); // this would choose by itself on leaving
    if (leaving == Leaving::Chooses) {
        connect(box.lineEdit(), &QLineEdit::editingFinished, this, &Proposals::Leave);
    }
    connect(box.lineEdit(), &QLineEdit::editingFinished, this, [&box] { ShowBeginning(box.lineEdit()); });
    connect(&box, &QComboBox::currentIndexChanged, this, [&box] { ShowBeginning(box.lineEdit()); });
}

bool Proposals::IsTyped() const
{
    return m_box.currentText() != m_box.itemText(m_box.currentIndex());
}

int Proposals::MatchesOf(const QString& typed)
{
    m_completer.setCompletionPrefix(typed);
    return typed.isEmpty() ? 0 : m_completer.completionCount();
}

void Proposals::Propose(const QString& typed)
{
    if (MatchesOf(typed) == 0) {
        return Close();
    }
    m_box.window()->installEventFilter(this);
    m_completer.complete();
    if (m_leaving == Leaving::Chooses) {
        const QAbstractItemModel& matches = *m_completer.completionModel();
        m_completer.popup()->setCurrentIndex(matches.index(BestRow(matches, typed), 0));
    }
}

bool Proposals::eventFilter(QObject* watched, QEvent* event)
{
    const bool isBox = watched == &m_box;
    if (isBox && event->type() == QEvent::KeyPress) {
        return Press(static_cast<QKeyEvent&>(*event));
    }
    if (event->type() == QEvent::Move || (isBox && (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide))) {
        Close();
    }
    return false;
}

bool Proposals::Press(QKeyEvent& press)
{
    if (m_completer.popup()->isVisible() && PressOpen(press)) {
        return true;
    }
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_leaving == Leaving::Chooses) {
            return false; // left to the editor, whose signal calls Leave
        }
        (void)ChooseTyped();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && StepFromTyped(press.key() == Qt::Key_Down ? 1 : -1);
    default:
        return false;
    }
}

bool Proposals::PressOpen(QKeyEvent& press)
{
    const QModelIndex marked = m_completer.popup()->currentIndex();
    switch (press.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_completer.popup(), &press);
        return true;
    case Qt::Key_Escape:
        Close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        Close();
        if (marked.isValid() && (m_leaving == Leaving::Chooses || press.key() != Qt::Key_Tab)) {
            ChooseProposal(marked);
        }
        return false;
    default:
        return false;
    }
}

// Steps from a typed entry to its neighbour. A part of an entry opens the proposals, and a text that no entry holds stays as it is.
bool Proposals::StepFromTyped(int step)
{
    if (!IsTyped() || m_box.currentText().isEmpty()) {
        return false;
    }
    const int row = m_box.findText(m_box.currentText(), Qt::MatchFixedString);
    if (row < 0) {
        Propose(m_box.currentText());
    } else {
        Choose(std::clamp(row + step, 0, m_box.count() - 1));
    }
    return true;
}

void Proposals::ChooseProposal(const QModelIndex& proposal)
{
    Choose(qobject_cast<QAbstractProxyModel*>(m_completer.completionModel())->mapToSource(proposal).row());
}

// Chooses the entry that was typed, else the only one that holds the typed text.
void Proposals::Leave()
{
    if (!ChooseTyped() && IsTyped() && MatchesOf(m_box.currentText()) == 1) {
        ChooseProposal(m_completer.completionModel()->index(0, 0));
    }
}

bool Proposals::ChooseTyped()
{
    const int row = IsTyped() ? m_box.findText(m_box.currentText(), Qt::MatchFixedString) : -1;
    if (row >= 0) {
        Choose(row);
    }
    return row >= 0;
}

void Proposals::Choose(int row)
{
    m_box.setCurrentIndex(row);
    emit m_box.activated(row);
}

void Proposals::Close()
{
    m_completer.popup()->hide();
}

} // namespace ptk
