// The one message box, frmMsg: it shows the call block of base/message.h in all its combinations of
// buttons, picture, input, list and hide box, and waits for the answer. Buttons 0 to 4 read OK,
// Yes, No, Cancel and Help; only the pair Yes and No answers 6 and 7.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

namespace tessarel {

// Opens a topic of the help, 0 its contents: F1 on a box with a topic, and its Help button once the
// box has closed. Empty until the program has a help window.
extern std::function<void(int32_t topic)> OpenHelpTopic;

// Called when a hide box has changed Settings.Notices.
extern std::function<void()> NoticesChanged;

// The width at which a text wraps whose MsgWidth is 0. One unit is a pixel at the medium font size
// of Settings.BasicFontSize; other sizes scale it.
inline constexpr int32_t DefaultMessageWidth = 420;

// Shows the call block over `parent` and leaves the answer in it.
void ShowMessageWindow(QWidget* parent);

// The box that is shown now, the innermost if several are; null without one.
QWidget* OpenMessageWindow();

}  // namespace tessarel
