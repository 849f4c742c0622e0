// What screen readers are told beyond what the toolkit's widgets tell them: which entry is chosen in a list or table that has the keyboard;
// that a text has the keyboard, before what is selected in it; how many letters were typed into a password, instead of which; and messages,
// when they change.
#pragma once

class QLabel;

namespace ptk {

// Begins to tell screen readers these things, for all windows of the program.
void TellScreenReaders();

// MakeMessage turns a label into one whose text a screen reader says by itself each time TellAloud is called. REQUIRES: no screen reader
// has seen the label yet.
void MakeMessage(QLabel& label);
void TellAloud(QLabel& message);

} // namespace ptk
