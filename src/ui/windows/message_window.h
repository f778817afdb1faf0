// The one message box, frmMsg: it shows the call block of base/message.h in all its combinations of
// buttons, picture, input, list and hide box, and waits for the answer. Buttons 0 to 4 read OK,
// Yes, No, Cancel and Help; only the pair Yes and No answers 6 and 7.
#pragma once

#include <QWidget>
#include <cstdint>

namespace tessarel {

// The width at which a text wraps whose MsgWidth is 0. One unit is a pixel at the medium font size
// of Settings.BasicFontSize; other sizes scale it.
inline constexpr int32_t DefaultMessageWidth = 420;

// Shows the call block over `parent` and leaves the answer in it. F1 opens the help on its topic,
// as the Help button does once the box has closed; a ticked hide box clears its bit of
// Settings.Notices.
void ShowMessageWindow(QWidget* parent);

}  // namespace tessarel
