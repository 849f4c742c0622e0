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

    // Shows what is stored now. What was typed stays where its record is as it was, and is offered otherwise. `row` is shown where it can
    // be without putting anything typed away.
    virtual void ReadAgain(std::optional<std::int64_t> row) = 0;

    // Of a page with a list of its own that is to be read again by itself: which records it lists, while nothing typed on it could be put
    // away by that. Nothing for other pages, and meanwhile.
    [[nodiscard]] virtual std::optional<Shown> IdleList() const { return std::nullopt; }

    // What was typed on it and not saved, in words without a full stop; empty for nothing.
    [[nodiscard]] virtual std::string Unsaved() const { return {}; }

    // Saves that as its own button does. False when it was refused, which the user was told.
    virtual bool SaveTyped() { return true; }

    // In its line, where somebody else changed what it shows, as far as the window has looked.
    virtual void TellChanges() = 0;
};

} // namespace ptk
