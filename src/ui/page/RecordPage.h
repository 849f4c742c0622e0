// A page that shows stored records, which an undo or somebody else may change.
#pragma once

#include "office/records/ChangeWatch.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

class RecordPage
{
public:
    virtual ~RecordPage() = default;

    // Shows what is stored now. Typed text stays on the page where its record has not changed, and is offered in the page's line otherwise.
    // The record `row` is shown where that does not push typed text aside.
    virtual void ReadAgain(std::optional<std::int64_t> row) = 0;

    // The kind of records that the page lists, if that list may be read again unasked: the page has a list of its own and holds no typed
    // text that this could push aside. Nothing otherwise.
    [[nodiscard]] virtual std::optional<Watched> IdleList() const { return std::nullopt; }

    // What was typed on the page and not saved, in words without a full stop; empty for nothing.
    [[nodiscard]] virtual std::string Unsaved() const { return {}; }

    // Saves the typed text as the page's own button does. False when it was refused, which the user was told.
    virtual bool SaveTyped() { return true; }

    // Says in the page's line that somebody else changed what it shows, as far as the window has looked; nothing otherwise.
    virtual void TellChanges() = 0;
};

} // namespace ptk
