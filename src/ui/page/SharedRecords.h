// What the main window knows of changes to stored records: its own changes, which can be undone, and those of others.
#pragma once

#include "office/records/ChangeWatch.h"
#include "office/records/UndoStack.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <QObject>
#include <string>

namespace ptk {

class CJetDB;
class NoticeLine;

// No member raises.
class SharedRecords final : public QObject
{
    Q_OBJECT

public:
    // Begins anew with this database, with nothing to undo; nullptr ends it.
    void Use(const std::shared_ptr<CJetDB>& database);

    // To be called right after every save of any kind, before anything is read again.
    void Remember();

    // What can be undone; nullptr without a database.
    [[nodiscard]] const UndoStack* Undo() const { return m_undo.get(); }

    // Both answer what the undo stack answers; false without a database. The caller has all pages read again afterwards.
    bool UndoLast() { return Move(&UndoStack::Undo); }
    bool RedoLast() { return Move(&UndoStack::Redo); }

    // These do what they do in ChangeWatch, and nothing without a database.
    void Look();
    [[nodiscard]] std::optional<std::int64_t> Newest() const;
    void AboutToRead(Watched what);
    void AboutToRead(Watched what, std::int64_t row);
    [[nodiscard]] bool AnnouncesChanges() const { return m_watch != nullptr && m_watch->AnnouncesChanges(); }
    [[nodiscard]] bool IsAnyChanged(Watched what) const { return m_watch != nullptr && m_watch->IsAnyChanged(what); }
    [[nodiscard]] bool IsChanged(Watched what, std::int64_t row) const;

    // Says in a page's line that `whose` was changed by somebody else, with a button that has all pages read again; nothing while the line
    // offers something else.
    void OfferLoad(NoticeLine& line, const std::string& whose);

signals:
    // What can be undone or redone may be different now.
    void UndoChanged();

    // What was stored last cannot be undone, though it is stored.
    void NotRemembered(const QString& reason);

    // Changes, one's own or others', have been looked for.
    void Looked();

    // All pages are to show what is stored now.
    void ReadAgainWanted();

private:
    bool Move(bool (UndoStack::*move)());

    std::unique_ptr<UndoStack> m_undo;
    std::unique_ptr<ChangeWatch> m_watch;
};

} // namespace ptk
