// The pictures of the message box, drawn at any size.
#pragma once

#include <QWidget>
#include <cstdint>

namespace tessarel {

// A widget that shows the picture of a message's flags: a check with a tick, a warning triangle, a
// question, a stop sign. Null without such a flag.
QWidget* MakeMessagePicture(int32_t flags, int size);

// The pair of dice beside the text of the wide boxes.
QWidget* MakeDicePicture(int size);

}  // namespace tessarel
