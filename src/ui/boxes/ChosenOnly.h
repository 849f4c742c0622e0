// How the entries of a list are chosen without opening it.
#pragma once

class QComboBox;

namespace ptk {

// Rules for both functions: the wheel never changes the choice in the box under the pointer, but turns the page. The arrow keys go on from
// what was typed. Typing into an editable box opens its Proposals, and Enter chooses the entry that was typed, in any letter case. The box
// must have its model already.

// For a list whose choice is read by a later step. Leaving the box also chooses the entry that was typed, or the only one that holds the
// typed text, and Enter goes on to press the page's default button.
void ChooseByTyping(QComboBox& box);

// For a list whose choice loads a record into the page, in place of what is being typed there. Leaving the box chooses nothing, even if its
// text happens to match another record, and Enter does nothing else than choose.
void ChooseOnlyDeliberately(QComboBox& box);

} // namespace ptk
