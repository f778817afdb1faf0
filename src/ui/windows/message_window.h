// The one message box: it shows the call block of base/message.h in all its combinations of
// buttons, picture, input, list and hide box, and waits for the answer.
#pragma once

#include <QWidget>

namespace tessarel {

// Shows the call block over `parent` and leaves the answer in it.
void ShowMessageWindow(QWidget* parent);

// The box that is shown now, the innermost if several are; null without one.
QWidget* OpenMessageWindow();

}  // namespace tessarel
