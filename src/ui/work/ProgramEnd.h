// Whether the program is being ended from outside, when nobody is there to answer a question.
#pragma once

namespace ptk {

// Whether the system's signals or the end of the desktop's session end the whole program. Windows then close without asking, boxes do not
// come up, and what was typed and not saved is given up.
[[nodiscard]] bool IsEnding();
void IsEnding(bool ending);

} // namespace ptk
