// What tests of the table start from: every module as in a program that has just begun, nobody
// looking on but the test, which keeps what is shown and answers what is asked.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/clock.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "files/file_dialog.h"
#include "play/reset.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/language.h"

namespace tessarel {

struct ShownMessage {
  std::string Title, Text;
  int32_t Flags = 0;
};

// What a person does about a message: presses a button, or types a text and confirms it.
struct Reply {
  Reply(int32_t button) : Button(button) {}
  Reply(std::string typed) : Typed(std::move(typed)) {}
  Reply(const char* typed) : Typed(typed) {}
  int32_t Button = 0;
  std::string Typed;
};

class FreshTest : public ::testing::Test {
 protected:
  using Strings = std::vector<std::string>;

  FreshTest() { Reset(); }
  ~FreshTest() override { Reset(); }

  static void Reset() {
    ReleaseClock();
    ResetAll();
    DefaultPayoffs();
    FigurePayoffUnits();
    SetLanguage(English);
    Folders = {};
    FrontEnd = {};
    FrontEnd.ShowMessage = AnswerMessage;
    FrontEnd.AskSaveFile = [](FileAction action, const std::string& offered) {
      Shown.push_back({std::string(FileActionTitle(action)), offered});
      return SaveName;
    };
    Shown.clear();
    Answers.clear();
    Always.reset();
    SaveName.clear();
  }

  // All that was shown, as "Title: Text"; clears it.
  static Strings Said() {
    Strings said;
    for (const ShownMessage& message : std::exchange(Shown, {}))
      said.push_back(message.Title + ": " + message.Text);
    return said;
  }

  inline static std::vector<ShownMessage> Shown;
  inline static std::deque<Reply> Answers;    // to the next messages
  inline static std::optional<Reply> Always;  // to those after them; else the default button
  inline static std::string SaveName;         // taken in a dialog to save; empty gives up

 private:
  static void AnswerMessage() {
    Shown.push_back({Message.MsgTitle, Message.MsgText, Message.MsgFlags});
    std::optional<Reply> reply = Always;
    if (!Answers.empty()) {
      reply = Answers.front();
      Answers.pop_front();
    }
    if (!reply) return;
    Message.MsgResult = reply->Button;
    if ((Message.MsgFlags & msg::Input) != 0) Message.MsgInput = reply->Typed;
  }
};

// The same in a folder of its own, which is the program's folder and is gone after the test.
class FolderTest : public FreshTest {
 protected:
  FolderTest() { SetAppFolder(folder_.Path()); }

  std::string Path(const std::string& name) const { return folder_.Path() + name; }
  // Names are taken from the folder unless they are whole paths.
  std::string Read(const std::string& name) const { return folder_.Read(name); }
  void Write(const std::string& name, const std::string& bytes) const {
    folder_.Write(name, bytes);
  }

  TemporaryFolder folder_;
};

}  // namespace tessarel
