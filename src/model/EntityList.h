// What the lists of entities add to the keyed list: the database, copies of the list, and loading, weeding and saving whole lists.
#pragma once

#include "shell/KeyedList.h"
#include "store/CJetDB.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace ptk {

// A list that knows its database. `Self` is the list class that is derived from it.
template <typename Self, typename Object>
class DatabaseList : public KeyedList<std::shared_ptr<Object>>
{
public:
    void PTKDatabase(std::shared_ptr<CJetDB> value) { m_database = std::move(value); }

    // A new list of the same objects (shared, not copied) in the same order, without a database. nullptr with 301 when it failed.
    std::shared_ptr<Self> Clone()
    {
        this->ClearError();
        std::shared_ptr<Self> copy;
        const bool copied = this->Guarded(listerror::CreateFailed, [&] {
            copy = std::make_shared<Self>();
            for (const auto& entry : this->Entries()) {
                copy->Insert(entry, copy->Count() + 1);
            }
        });
        return copied ? copy : nullptr;
    }

protected:
    DatabaseList() = default;
    ~DatabaseList() = default;

    [[nodiscard]] const std::shared_ptr<CJetDB>& Database() const { return m_database; }

private:
    std::shared_ptr<CJetDB> m_database;
};

// For entities with CompanyID, ObjectState and Save. Empty entries, which Move can leave, are passed over.
template <typename Self, typename Object>
class EntityList : public DatabaseList<Self, Object>
{
public:
    // Keeps the objects of one company; 0 keeps all. Always true; an empty list leaves 331.
    bool WeedList(std::int32_t thecompanyid)
    {
        this->ClearError();
        if (thecompanyid == kAllCompanies) {
            return true;
        }
        if (this->Count() == 0) {
            this->ErrorNumber(listerror::ListEmpty);
        }
        this->KeepOnly([&](const auto& entry) { return entry != nullptr && entry->CompanyID() == thecompanyid; });
        return true;
    }

    // Puts all stored entities, in the state unchanged, before those already here. False with 301; nullptr gives false with no number.
    bool LoadList(const std::shared_ptr<CJetDB>& thedatabase)
    {
        this->ClearError();
        if (thedatabase == nullptr) {
            return false;
        }
        this->PTKDatabase(thedatabase);
        const bool loaded = FillFrom(*thedatabase);
        if (!loaded) {
            this->ErrorNumber(listerror::CreateFailed);
        }
        return loaded;
    }

    // Saves every object that needs it, also after one failed, as one step of the edit trail. False when any of them was not saved.
    bool SaveList()
    {
        this->ClearError();
        m_refusal = {};
        const CJetDB::Step step(this->Database());
        bool saved = true;
        for (const auto& entry : this->Entries()) {
            if (entry != nullptr && entry->ObjectState() != state::Unchanged && entry->ObjectState() != state::NothingToDo) {
                saved = SaveEntry(*entry) && saved;
            }
        }
        return saved;
    }

    // The first failure of the last SaveList, in words for the program's users; number 0 and no text when there was none. Where somebody
    // else's change or removal of a row was the reason, Conflict is that row.
    [[nodiscard]] const Failure& LastFailure() const { return m_refusal.failure; }
    [[nodiscard]] const std::optional<RowConflict>& Conflict() const { return m_refusal.conflict; }

protected:
    EntityList() = default;
    ~EntityList() = default;

    // The first object, in list order, for which `matches` is true; else nullptr.
    template <typename Predicate>
    std::shared_ptr<Object> First(Predicate matches)
    {
        this->ClearError();
        for (const auto& entry : this->Entries()) {
            if (entry != nullptr && matches(*entry)) {
                return entry;
            }
        }
        return nullptr;
    }

private:
    static constexpr std::int32_t kAllCompanies = 0;

    bool SaveEntry(Object& entry)
    {
        const bool saved = entry.Save(this->Database());
        if (!saved && this->Database() != nullptr && m_refusal.failure.Number() == 0) {
            m_refusal = this->Database()->LastRefusal();
        }
        return saved;
    }

    virtual bool FillFrom(CJetDB& thedatabase) = 0;

    Refusal m_refusal;
};

} // namespace ptk
