// The dialogs of play that are no plain messages: what becomes of a decided bet, how a new session
// starts, which file is meant, and which language is spoken.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "engine/settle_prompt.h"
#include "files/file_dialog.h"
#include "play/new_session.h"

namespace tessarel {

// Shows the settle-bet prompt and leaves the answer in it, with the figures of its two rows as they
// then read. Closing the prompt without a button is its first one.
void AskSettleBet(QWidget* parent, SettlePrompt& prompt);

// The choices of the New dialog as they were left the last time; they last as long as the program
// runs. At first nothing is given up.
struct NewGameChoicesState {
  bool PreserveCheckstacks = true, PreservePrevSessions = true, PreserveSessionsLogs = true,
       PreserveAutoBets = true, PreserveDiceRollFile = true;
  bool Rewind = false;  // of a roll file that is kept; else it goes on as it is
};
extern NewGameChoicesState NewGameChoices;

struct NewGameAnswer {
  SessionOptions options;
  bool keepScripts = false;
};
// The options of a new session; none on Cancel.
std::optional<NewGameAnswer> AskNewGame(QWidget* parent);

// The file dialog for an action: the full name of the file chosen; empty on Cancel.
std::string AskFile(QWidget* parent, FileAction action, const std::string& offered);

// Called when another language was put in force: every open window sets its captions again.
extern std::function<void()> LanguageChanged;

// The list of languages; the one picked takes effect at once.
void AskLanguage(QWidget* parent);

}  // namespace tessarel
