// The reading library was not written for damaged files: from here on it can do nothing but compute and write to what is open.
#pragma once

namespace jet {

// No files, no network, no other programs: the system refuses whatever reading from memory does not need. Nothing in builds with
// sanitizers, which need more, and on machines whose system cannot do it.
void Confine();

} // namespace jet
