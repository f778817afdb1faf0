// Every module at its start: the state that the program begins with, before anything is set up.
#pragma once

namespace tessarel {

// Closes the roll file and gives every module its default state, the message facility too. The
// callbacks to the front end, the folders and the clock stay.
void ResetAll();

}  // namespace tessarel
