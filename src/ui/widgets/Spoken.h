// What a screen reader is told beyond what the windows' own widgets tell it: of a list or table with the keyboard, which entry is chosen;
// of a text, that it has the keyboard before what is selected in it; of a password, how many letters were typed instead of which; and
// messages, as they change.
#pragma once

class QLabel;

namespace ptk {

// From its call on, for all windows of the program.
void TellScreenReaders();

// Makes a label one whose text a reader says by itself, each time TellAloud is called. For a label that no reader has seen yet.
void MakeMessage(QLabel& label);
void TellAloud(QLabel& message);

} // namespace ptk
