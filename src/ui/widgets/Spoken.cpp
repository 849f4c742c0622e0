#include "ui/widgets/Spoken.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QTableView>

namespace ptk {

namespace {

constexpr auto kIsMessage = "isMessage";
constexpr QChar kMask = '*';

QAccessible::UpdateHandler s_before = nullptr; // the handler before ours; null: the desktop is told directly
QPointer<QObject> s_focused;                   // the object that a reader already knows to have the keyboard
QPointer<QObject> s_early;                     // whose focus we told before Qt does: readers that are told twice say neither

// A label as a notification, which the desktop's screen readers say without being asked.
class Message final : public QAccessibleWidget
{
public:
    explicit Message(QLabel& label) : QAccessibleWidget(&label, QAccessible::Notification), m_label(label) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_label.text() : QAccessibleWidget::text(kind);
    }

private:
    QLabel& m_label;
};

QAccessibleInterface* MessageOf(const QString& /*className*/, QObject* object)
{
    auto* label = qobject_cast<QLabel*>(object);
    return label != nullptr && label->property(kIsMessage).toBool() ? new Message(*label) : nullptr;
}

void PassOn(QAccessibleEvent& event)
{
    if (s_before != nullptr) {
        return s_before(&event);
    }
    const auto self = QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(self);
}

QString Masked(const QString& text)
{
    return {text.size(), kMask};
}

void PassOnPassword(QAccessibleEvent& event)
{
    if (event.type() == QAccessible::TextInserted) {
        const auto& typed = static_cast<QAccessibleTextInsertEvent&>(event);
        QAccessibleTextInsertEvent masked(event.object(), typed.changePosition(), Masked(typed.textInserted()));
        return PassOn(masked);
    }
    if (event.type() == QAccessible::TextRemoved) {
        const auto& erased = static_cast<QAccessibleTextRemoveEvent&>(event);
        QAccessibleTextRemoveEvent masked(event.object(), erased.changePosition(), Masked(erased.textRemoved()));
        return PassOn(masked);
    }
    const auto& changed = static_cast<QAccessibleTextUpdateEvent&>(event);
    QAccessibleTextUpdateEvent masked(event.object(), changed.changePosition(), Masked(changed.textRemoved()),
                                      Masked(changed.textInserted()));
    PassOn(masked);
}

void TellChosenEntry(QAccessibleInterface& list, QObject* object)
{
    const auto* view = qobject_cast<QAbstractItemView*>(object);
    const bool isFlat = qobject_cast<QTableView*>(object) != nullptr || qobject_cast<QListView*>(object) != nullptr;
    if (!isFlat || !view->currentIndex().isValid() || list.tableInterface() == nullptr) {
        return;
    }
    const QModelIndex chosen = view->currentIndex();
    if (QAccessibleInterface* cell = list.tableInterface()->cellAt(chosen.row(), chosen.column())) {
        QAccessibleEvent focus(cell, QAccessible::Focus);
        PassOn(focus);
    }
}

void TellFocus(QAccessibleEvent& event)
{
    if (s_early != nullptr && s_early == event.object()) {
        s_early = nullptr;
        return;
    }
    s_focused = event.object();
    PassOn(event);
    QAccessibleInterface* interface = event.accessibleInterface();
    if (event.child() < 0 && interface != nullptr) {
        TellChosenEntry(*interface, event.object());
    }
}

// Tells of the focus before the selection, because Qt tells the selection first when a text gets the keyboard.
void TellFocusBefore(QAccessibleEvent& text)
{
    if (text.object() != nullptr && text.object() != s_focused && text.object() == QApplication::focusWidget()) {
        QAccessibleEvent focus(text.object(), QAccessible::Focus);
        TellFocus(focus);
        s_early = text.object();
    }
    PassOn(text);
}

void Watch(QAccessibleEvent* event)
{
    const QAccessibleInterface* interface = event->accessibleInterface();
    switch (event->type()) {
    case QAccessible::Focus:
        return TellFocus(*event);
    case QAccessible::TextSelectionChanged:
    case QAccessible::TextCaretMoved:
        return TellFocusBefore(*event);
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
        return interface != nullptr && interface->state().passwordEdit ? PassOnPassword(*event) : PassOn(*event);
    case QAccessible::ObjectShow: // a message is said when its window comes up, unless it has no words
        if (interface != nullptr && interface->role() == QAccessible::Notification && interface->text(QAccessible::Name).isEmpty()) {
            return;
        }
        return PassOn(*event);
    default:
        return PassOn(*event);
    }
}

} // namespace

void TellScreenReaders()
{
    QAccessible::installFactory(MessageOf);
    const auto before = QAccessible::installUpdateHandler(Watch);
    if (before != Watch) { // not so in later calls
        s_before = before;
    }
}

void MakeMessage(QLabel& label)
{
    label.setProperty(kIsMessage, true);
}

void TellAloud(QLabel& message)
{
    if (message.isVisible() && !message.text().isEmpty()) {
        QAccessibleEvent shown(&message, QAccessible::ObjectShow);
        PassOn(shown);
    }
}

} // namespace ptk
