// Confines this program, since the reading library was not written for damaged files: it can then only compute and write to what is open.
#pragma once

namespace jet {

// From here on the system refuses files, the network, other programs, and whatever else reading from memory does not need. Does nothing in
// builds with sanitizers, which need more, and on machines whose system cannot do it.
void Confine();

} // namespace jet
