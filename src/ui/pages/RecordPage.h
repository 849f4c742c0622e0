// A page that shows stored records, which an undo or somebody else may change.
#pragma once

#include <cstdint>
#include <optional>

namespace ptk {

class RecordPage
{
public:
    virtual ~RecordPage() = default;

    // Shows what is stored now. What was typed stays where its record is as it was, and is offered otherwise. `row` is shown where it can
    // be without putting anything typed away.
    virtual void ReadAgain(std::optional<std::int64_t> row) = 0;

    // In its line, where somebody else changed what it shows, as far as the window has looked.
    virtual void TellChanges() = 0;
};

} // namespace ptk
