// What was typed into a page and not saved before another record took its place.
#pragma once

#include "platform/text/Text.h"

#include <optional>
#include <string>
#include <vector>

namespace ptk {

// The caption of the way back to it.
inline constexpr auto kBringBack = "Bring Back";

// `Texts` holds a page as texts and flags, visits them with ForEachField, compares with ==, and has the texts `id`, empty for a new record,
// and `name`.
template <typename Texts>
struct LeftBehind
{
    Texts shown; // as the page first showed the record
    Texts typed;
};

// Told of what a page shows and of what is typed into its lists, tells what a change of the record would leave behind.
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

    // What differs on the page from what it first showed; nothing when nothing does.
    [[nodiscard]] std::optional<LeftBehind<Texts>> Left(const Texts& page) const
    {
        return page == m_shown ? std::nullopt : std::optional(LeftBehind<Texts>{m_shown, page});
    }

    // What differs when an entry of this list has just been chosen, whose text has taken the place of what was typed there. A typed text
    // that the chosen one holds was typed to find it, and is not missed.
    [[nodiscard]] std::optional<LeftBehind<Texts>> LeftByChoice(Texts page, Field list) const
    {
        const bool sought = LowerCase(page.*list).find(LowerCase(m_typed.*list)) != std::string::npos;
        page.*list = sought ? m_shown.*list : m_typed.*list;
        page.id = m_shown.id;
        return Left(page);
    }

private:
    Texts m_shown;
    Texts m_typed; // of use for the lists only
};

// What was typed, put over what the record is by now: somebody else's change of another field stays.
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

// As a new record, of one that somebody else removed.
template <typename Texts>
[[nodiscard]] LeftBehind<Texts> AsNew(LeftBehind<Texts> left)
{
    left.shown = {};
    left.typed.id.clear();
    return left;
}

// What becomes of what was typed once its page has been read again.
enum class TypedFate
{
    PutBack,     // over what is stored now
    Offered,     // beside the record, which somebody else changed
    OfferedAsNew // of a record that somebody else removed
};

// `present` is the record as it is now, nothing where the list has none of its ID; `isRead` tells whether the list could be read again.
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

// What is asked before the program ends with these changes not saved, each told as NoticeOf does. REQUIRES: at least one.
[[nodiscard]] std::string LeavingQuestion(const std::vector<std::string>& unsaved);

} // namespace ptk
