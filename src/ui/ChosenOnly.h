// Lists whose choice loads a record into a page.
#pragma once

class QComboBox;

namespace ptk {

// The wheel turns the page under the pointer, never the choice in the box it happens to pass over.
void IgnoreWheel(QComboBox& box);

// Choosing stays a deliberate act: neither the wheel nor leaving a box whose text happens to match another record chooses one, either of
// which would replace what is being typed on the page.
void ChooseOnlyDeliberately(QComboBox& box);

} // namespace ptk
