// Keeps what was typed into a page and not saved before another record took its place, so that it can be brought back.
#pragma once

#include "platform/text/Text.h"

#include <optional>
#include <string>
#include <vector>

namespace ptk {

// The caption of the button that brings it back.
inline constexpr auto kBringBack = "Bring Back";

// What was left in a page without being saved. `Texts` holds a page as texts and flags, visits them with ForEachField, compares with ==,
// and has the texts `id`, empty for a new record, and `name`.
template <typename Texts>
struct LeftBehind
{
    Texts shown; // as the page first showed the record
    Texts typed;
};

// Knows what a page first showed and what is typed into its lists, and answers what would be lost if the page showed another record.
template <typename Texts>
class TypedTexts
{
public:
    using Field = std::string Texts::*;

    void Show(const Texts& page) { m_shown = m_typed = page; }
    void Type(Field list, const std::string& text) { m_typed.*list = text; }

    void BringBack(const LeftBehind<Texts>& left)
    {
        m_shown = left.shown;
        m_typed = left.typed;
    }

    // The page, if it differs from what it first showed; nothing if it does not.
    [[nodiscard]] std::optional<LeftBehind<Texts>> Left(const Texts& page) const
    {
        return page == m_shown ? std::nullopt : std::optional(LeftBehind<Texts>{m_shown, page});
    }

    // What would be lost when an entry of this list has just been chosen, whose text has replaced what was typed there. A typed text that
    // is part of the chosen one was typed to find it, so it is not lost.
    [[nodiscard]] std::optional<LeftBehind<Texts>> LeftByChoice(Texts page, Field list) const
    {
        const bool sought = LowerCase(page.*list).find(LowerCase(m_typed.*list)) != std::string::npos;
        page.*list = sought ? m_shown.*list : m_typed.*list;
        page.id = m_shown.id;
        return Left(page);
    }

private:
    Texts m_shown;
    Texts m_typed; // used for the lists only
};

// Puts what was typed into the present record. Changes that somebody else made to other fields stay.
template <typename Texts>
[[nodiscard]] Texts TypedOver(const LeftBehind<Texts>& left, Texts present)
{
    Texts::ForEachField([&](auto field) {
        if (left.typed.*field != left.shown.*field) {
            present.*field = left.typed.*field;
        }
    });
    return present;
}

// Makes a new record of what was typed, for a record that somebody else removed.
template <typename Texts>
[[nodiscard]] LeftBehind<Texts> AsNew(LeftBehind<Texts> left)
{
    left.shown = {};
    left.typed.id.clear();
    return left;
}

// What becomes of typed texts once their page has been read again.
enum class TypedFate
{
    PutBack,     // over what is stored now
    Offered,     // can be brought back: somebody else changed the record
    OfferedAsNew // can be brought back as a new record: somebody else removed the record
};

// What becomes of the typed texts. `present` is the record as it is now, nothing if the list has none of its ID; `isRead` tells whether the
// list could be read again.
template <typename Texts>
[[nodiscard]] TypedFate FateOf(const LeftBehind<Texts>& left, const std::optional<Texts>& present, bool isRead)
{
    if (left.typed.id.empty()) {
        return TypedFate::PutBack;
    }
    if (!present) {
        return isRead ? TypedFate::OfferedAsNew : TypedFate::Offered;
    }
    return *present == left.shown ? TypedFate::PutBack : TypedFate::Offered;
}

// "Changes to Ann Lee were not saved", "Bo Kim was not saved" for a new one.
template <typename Texts>
[[nodiscard]] std::string NoticeOf(const LeftBehind<Texts>& left)
{
    if (!left.shown.id.empty()) {
        return "Changes to " + left.shown.name + " were not saved";
    }
    return (left.typed.name.empty() ? "The new record" : left.typed.name) + " was not saved";
}

// The question before the program ends while these changes are not saved; each is a text of NoticeOf. REQUIRES: at least one.
[[nodiscard]] std::string LeavingQuestion(const std::vector<std::string>& unsaved);

} // namespace ptk
