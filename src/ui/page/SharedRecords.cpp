#include "ui/page/SharedRecords.h"

#include "store/CJetDB.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

namespace {

constexpr auto kChanged = " by somebody else meanwhile";
constexpr auto kLoad = "Load";

} // namespace

void SharedRecords::Use(const std::shared_ptr<CJetDB>& database)
{
    m_watch.reset();
    m_undo.reset();
    if (database != nullptr) {
        m_undo = std::make_unique<UndoStack>(database);
        m_watch = std::make_unique<ChangeWatch>(database, *m_undo);
    }
    emit UndoChanged();
}

void SharedRecords::Remember()
{
    if (m_undo == nullptr) {
        return;
    }
    if (!m_undo->Remember()) {
        emit NotRemembered(QString::fromStdString(m_undo->Refusal()));
    }
    emit UndoChanged();
}

bool SharedRecords::Move(bool (UndoStack::*move)())
{
    const bool moved = m_undo != nullptr && (m_undo.get()->*move)();
    emit UndoChanged();
    return moved;
}

void SharedRecords::Look()
{
    if (m_watch != nullptr) {
        m_watch->Look();
        emit Looked();
    }
}

std::optional<std::int64_t> SharedRecords::Newest() const
{
    return m_watch == nullptr ? std::nullopt : m_watch->Newest();
}

void SharedRecords::AboutToRead(Watched what)
{
    if (m_watch != nullptr) {
        m_watch->AboutToRead(what);
        emit Looked();
    }
}

void SharedRecords::AboutToRead(Watched what, std::int64_t row)
{
    if (m_watch != nullptr) {
        m_watch->AboutToRead(what, row);
        emit Looked();
    }
}

bool SharedRecords::IsChanged(Watched what, std::int64_t row) const
{
    return m_watch != nullptr && m_watch->IsChanged(what, row);
}

void SharedRecords::OfferLoad(NoticeLine& line, const std::string& whose)
{
    if (!line.IsOffering()) {
        line.Offer(QString::fromStdString(whose + kChanged), kLoad, [this] { emit ReadAgainWanted(); });
    }
}

} // namespace ptk
