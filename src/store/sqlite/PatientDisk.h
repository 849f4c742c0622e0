// The engine's way to the disk, which keeps windows alive while the disk is slow.
#pragma once

namespace ptk {

// The name under which the engine knows this way to the disk. The first call registers it; the engine must be configured before that.
//
// On a thread that has turns to take (platform/Waiting), bytes are made safe on the disk by a thread of its own, and this is never given
// up. Reading and writing take the turns that are due. A turn that gives up interrupts the statement that reads (9), which undoes the
// transaction that it belongs to. On other threads it is the system's own way.
[[nodiscard]] const char* PatientDisk();

} // namespace ptk
