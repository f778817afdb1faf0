#include "base/message.h"

#include <utility>

#include "base/front_end.h"

namespace tessarel {

MessageState Message;

int32_t DefaultAnswer(int32_t flags) {
  if ((flags & msg::YesNo) == msg::YesNo) {
    return (flags & msg::DefaultSecond) != 0 ? AnswerNo : AnswerYes;
  }
  return (flags & msg::DefaultSecond) != 0 ? 1 : 0;
}

namespace {

struct PendingAnswer {
  PendingAnswer() { ++Message.AnswerPending; }
  ~PendingAnswer() { --Message.AnswerPending; }
};

}  // namespace

void ShowMessage() {
  Message.MsgResult = DefaultAnswer(Message.MsgFlags);
  const PendingAnswer pending;
  FrontEnd.ShowMessage();
}

int32_t ShowMessage(
    std::string text, std::string title, int32_t flags, int32_t topic, MessageKind kind) {
  Message.MsgText = std::move(text);
  Message.MsgTitle = std::move(title);
  Message.MsgFlags = flags;
  Message.MsgHelpId = topic;
  Message.MsgKind = kind;
  Message.MsgWidth = Message.MsgTimeout = 0;
  ShowMessage();
  return Message.MsgResult;
}

void ShowError(std::string text, int32_t topic) {
  ShowMessage(std::move(text), Message.ErrorTitle, msg::OkAlert, topic, MessageKind::Error);
}

bool AskForText(std::string text, std::string title, std::string offered, int32_t topic) {
  Message.MsgInput = std::move(offered);
  return ShowMessage(std::move(text), std::move(title), msg::OkInput, topic) != AnswerCancel;
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r' || c == '\n') {
      line += " / ";
    } else {
      line += c;
    }
  }
  return line;
}

}  // namespace tessarel
