// How the entries of a list are chosen other than by opening it.
#pragma once

class QComboBox;

namespace ptk {

// In both, the wheel turns the page under the pointer and never the choice in the box it passes over, the arrow keys go on from what was
// typed, typing into an editable box opens its Proposals, and Enter chooses the entry that was typed, in any letter case. The box must have
// its model already.

// For a list that another step reads: leaving it chooses what was typed as well, or the one entry that holds it, and Enter goes on to
// press the page's default button.
void ChooseByTyping(QComboBox& box);

// For a list whose choice loads a record into the page, in place of what is being typed there: leaving a box whose text happens to match
// another record chooses nothing, and Enter does nothing else.
void ChooseOnlyDeliberately(QComboBox& box);

} // namespace ptk
