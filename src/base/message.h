// The message facility: callers fill the call block and call ShowMessage, which hands it to the
// front end and waits. Without a front end every message answers with its default button.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/help_topics.h"

namespace tessarel {

// The bits of MsgFlags.
namespace msg {
inline constexpr int32_t Button0 = 1, Button1 = 2, Button2 = 4, Button3 = 8, Button4 = 16;
inline constexpr int32_t YesNo = Button1 | Button2;
inline constexpr int32_t Cancel = 32;
inline constexpr int32_t Input = 64;
inline constexpr int32_t List = 128;  // together with Input: a choice from MsgList
inline constexpr int32_t PictureOk = 256, PictureAlert = 512, PictureQuestion = 1024,
                         PictureStop = 2048;
inline constexpr int32_t DefaultFirst = 4096, DefaultSecond = 8192;
// A box to hide such messages from now on; each names the bit of the Notices setting it clears.
inline constexpr int32_t HideNotice1 = 65536, HideNotice2 = 131072, HideNotice4 = 262144,
                         HideNotice8 = 524288;
inline constexpr int32_t WideLeft = 16777216, WideRight = 33554432;
inline constexpr int32_t Centered = 67108864;

// The combinations in use.
inline constexpr int32_t Ok = Button0;
inline constexpr int32_t OkAlert = Button0 | PictureAlert;
inline constexpr int32_t AskYesNo = YesNo | PictureQuestion;
inline constexpr int32_t AskYesDefault = AskYesNo | DefaultFirst;
inline constexpr int32_t AskNoDefault = AskYesNo | DefaultSecond;
inline constexpr int32_t OkInput = Button0 | Cancel | Input;
}  // namespace msg

// The values of MsgResult that are not a button's index.
enum MessageAnswer : int32_t { AnswerCancel = 2, AnswerYes = 6, AnswerNo = 7 };

// What a message is about, for those who treat some apart: its title is for people.
enum class MessageKind {
  Notice,     // news or a question
  Error,      // a run-time fault, or a file that is no good
  RunStopped  // why the Hyper-Drive has ended
};

struct MessageState {
  std::string MsgText;    // the message; a carriage return makes a line break
  std::string MsgTitle;   // empty: no title
  int32_t MsgWidth = 0;   // of the text, in the box's units; 0 takes the default
  int32_t MsgFlags = 0;   // bits of msg::
  int32_t MsgHelpId = 0;  // one of help::
  MessageKind MsgKind = MessageKind::Notice;
  int32_t MsgResult = 0;   // the answer: MessageAnswer, or the index of a button
  int32_t MsgTimeout = 0;  // milliseconds after which the box answers by itself; 0 never
  std::string MsgInput;    // with msg::Input: the text offered, and on return the text typed
  std::vector<std::string> MsgList;  // with msg::List: the texts MsgInput may be
  int32_t AnswerPending = 0;         // how many messages wait for an answer; no roll begins then
  std::string ErrorTitle = "Error";  // title of fault reports, in the language in force
  std::string PendingErrorText;      // collected by routines that cannot report at once
};

extern MessageState Message;

// Shows the call block and leaves the answer in MsgResult (and MsgInput).
void ShowMessage();

// Fills the call block and shows it; width and time-out take their defaults. Returns MsgResult.
int32_t ShowMessage(std::string text,
                    std::string title,
                    int32_t flags,
                    int32_t topic = help::NoTopic,
                    MessageKind kind = MessageKind::Notice);

// Tells of something that went wrong, under the title of fault reports.
void ShowError(std::string text, int32_t topic = help::NoTopic);

// Puts a question whose answer is a text. Returns false on Cancel, else the answer stands in
// Message.MsgInput.
bool AskForText(std::string text,
                std::string title,
                std::string offered,
                int32_t topic = help::NoTopic);

// A message's text with its line breaks shown as " / ".
std::string OnOneLine(std::string_view text);

// The answer a message gives when nobody is there to press a button.
int32_t DefaultAnswer(int32_t flags);

}  // namespace tessarel
