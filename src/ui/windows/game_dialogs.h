// The dialogs of play that are no plain messages: what becomes of a decided bet, how a new session
// starts, which file is meant, and which language is spoken.
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "engine/settle_prompt.h"
#include "files/file_dialog.h"
#include "play/new_session.h"

namespace tessarel {

// Shows the settle-bet prompt and leaves the answer in it, with the figures of its two rows as they
// then read. Closing the prompt without a button is its first one.
void AskSettleBet(QWidget* parent, SettlePrompt& prompt);

// The choices of the New dialog as they are at first: nothing is given up.
struct NewGameChoices {
  bool PreserveCheckstacks = true, PreservePrevSessions = true, PreserveSessionsLogs = true,
       PreserveAutoBets = true, PreserveDiceRollFile = true;
  bool Rewind = false;  // of a roll file that is kept; else it goes on as it is
};

struct NewGameAnswer {
  SessionOptions options;
  bool keepScripts = false;
};
// The options of a new session; none on Cancel. The dialog begins with `choices` as they were left
// the last time and keeps them for the next.
std::optional<NewGameAnswer> AskNewGame(QWidget* parent, NewGameChoices& choices);

// The file dialog for an action: the full name of the file chosen; empty on Cancel.
std::string AskFile(QWidget* parent, FileAction action, const std::string& offered);

// The list of languages; the one picked is put in force at once. Returns whether one was: captions
// that are shown have to be set again.
bool AskLanguage(QWidget* parent);

}  // namespace tessarel
