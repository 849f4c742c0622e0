// The part of every entity that remembers what the database still has to learn about it.
#pragma once

#include "platform/Succeeds.h"
#include "store/Rows.h"

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
    bool (CJetDB::*remove)(const Row&);
    std::int32_t wrongState;
};

// An entity starts as new (1). Loaders set it to unchanged (0) after filling it, since filling marks it.
class Entity
{
public:
    void ObjectState(std::int32_t value) { m_objectState = value; }
    std::int32_t ObjectState() const { return m_objectState; } // see ptk::state
    std::int32_t ErrorNumber() const { return m_errorNumber; } // 0 = none

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

    // A key comes from the database, so even a new entity that is given one counts as stored there.
    void SetKey(std::int32_t& key, std::int32_t value)
    {
        key = value;
        if (value != kNotStored) {
            m_objectState = state::Changed;
        }
    }

    // Stores the row the way the state asks for. Deliberately unchanged afterwards even when that failed: a refused row is not tried again.
    template <typename Row>
    bool SaveRow(const std::shared_ptr<CJetDB>& thedatabase, const Row& row, const StoreCalls<Row>& calls)
    {
        m_errorNumber = 0;
        const auto call = CallFor(calls);
        if (call == nullptr) {
            m_errorNumber = calls.wrongState;
        }
        m_objectState = state::Unchanged;
        return call != nullptr && thedatabase != nullptr && ((*thedatabase).*call)(row);
    }

    void ErrorNumber(std::int32_t value) { m_errorNumber = value; }

    // The text that `append` writes; with `failedNumber` what was there when it failed.
    template <typename Steps>
    std::string BuildText(std::int32_t failedNumber, Steps append)
    {
        std::string text;
        SucceedsOr(failedNumber, m_errorNumber, [&] { append(text); });
        return text;
    }

    static constexpr std::int32_t kNotStored = -1;

private:
    template <typename Row>
    auto CallFor(const StoreCalls<Row>& calls) const -> bool (CJetDB::*)(const Row&)
    {
        switch (m_objectState) {
        case state::New:
            return calls.add;
        case state::Changed:
            return calls.update;
        case state::Deleted:
            return calls.remove;
        default:
            return nullptr;
        }
    }

    std::int32_t m_objectState = state::New;
    std::int32_t m_errorNumber = 0;
};

} // namespace ptk
