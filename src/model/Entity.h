// What all entities have: a state, which says how the next save stores the entity, and an error number.
#pragma once

#include "platform/Succeeds.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace ptk {

class CJetDB;

// How rows of one table are stored, and the error number for a state that asks for nothing to be stored.
template <typename Row>
struct StoreCalls
{
    bool (CJetDB::*add)(const Row&);
    bool (CJetDB::*update)(const Row&);

    // Refuses where the stored row is no longer as it was read.
    bool (CJetDB::*updateAsRead)(const Row&, const Row& asRead);

    bool (CJetDB::*remove)(const Row&);
    std::int32_t wrongState;
};

// An entity starts as new (1). Loaders set its state to unchanged (0) after they have filled it, since the setters mark it as changed.
class Entity
{
public:
    void ObjectState(std::int32_t value) { m_objectState = value; }

    // See ptk::state.
    [[nodiscard]] std::int32_t ObjectState() const { return m_objectState; }

    // 0 = none.
    [[nodiscard]] std::int32_t ErrorNumber() const { return m_errorNumber; }

protected:
    Entity() = default;
    ~Entity() = default;

    void MarkChanged()
    {
        if (m_objectState != state::New) {
            m_objectState = state::Changed;
        }
    }

    template <typename Field>
    void Set(Field& field, Field value)
    {
        field = std::move(value);
        MarkChanged();
    }

    // A key comes from the database, so even a new entity counts as stored (and changed) once it is given a key.
    void SetKey(std::int32_t& key, std::int32_t value)
    {
        key = value;
        if (value != kNotStored) {
            m_objectState = state::Changed;
        }
    }

    void ErrorNumber(std::int32_t value) { m_errorNumber = value; }

    // The text that `append` writes. A failure leaves `failedNumber`, and the text ends where it happened.
    template <typename Steps>
    std::string BuildText(std::int32_t failedNumber, Steps append)
    {
        std::string text;
        SucceedsOr(failedNumber, m_errorNumber, [&] { append(text); });
        return text;
    }

    static constexpr std::int32_t kNotStored = -1;

private:
    std::int32_t m_objectState = state::New;
    std::int32_t m_errorNumber = 0;
};

// An entity that is one row of a table. It keeps the row as it was read, so that a save overwrites nobody else's change.
template <typename Row>
class RowEntity : public Entity
{
public:
    [[nodiscard]] const Row& Fields() const { return m_row; }

protected:
    RowEntity() = default;
    explicit RowEntity(Row&& row) : m_row(std::move(row)), m_stored(true) { ObjectState(state::Unchanged); } // as loaded
    ~RowEntity() = default;

    template <typename Field>
    void Change(Field Row::*field, Field value)
    {
        if (m_stored) {
            m_asRead = std::make_shared<const Row>(m_row); // only now: most entities are never changed
            m_stored = false;
        }
        Set(m_row.*field, std::move(value));
    }

    // Stores the row as the state asks. The state is deliberately unchanged afterwards even on failure: a refused row is not tried again.
    bool SaveRow(const std::shared_ptr<CJetDB>& thedatabase, std::int32_t Row::*key, const StoreCalls<Row>& calls)
    {
        ErrorNumber(0);
        const std::int32_t wanted = ObjectState();
        ObjectState(state::Unchanged);
        if (wanted != state::New && wanted != state::Changed && wanted != state::Deleted) {
            ErrorNumber(calls.wrongState);
            return false;
        }
        if (thedatabase == nullptr) {
            return false;
        }
        if (wanted == state::Changed) {
            return Update(*thedatabase, key, calls);
        }
        return ((*thedatabase).*(wanted == state::New ? calls.add : calls.remove))(m_row);
    }

    Row m_row;

private:
    // A row that was given another key is not the one that was read: it is updated without a comparison.
    bool Update(CJetDB& database, std::int32_t Row::*key, const StoreCalls<Row>& calls)
    {
        const Row* asRead = m_stored ? &m_row : m_asRead.get();
        const bool known = asRead != nullptr && asRead->*key == m_row.*key;
        const bool updated = known ? (database.*calls.updateAsRead)(m_row, *asRead) : (database.*calls.update)(m_row);
        if (updated) {
            m_stored = true;
            m_asRead.reset();
        }
        return updated;
    }

    std::shared_ptr<const Row> m_asRead; // only where the row was changed since
    bool m_stored = false;               // whether m_row is as it was read or last updated
};

} // namespace ptk
