// The dialogs of play that are no plain messages: what becomes of a decided bet, how a new session
// starts, and which file is meant.
#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "app/session.h"
#include "engine/settle_prompt.h"
#include "files/file_dialog.h"

namespace tessarel {

// Shows the settle-bet prompt and leaves the answer in it.
void AskSettleBet(QWidget* parent, SettlePrompt& prompt);

struct NewGameAnswer {
  SessionOptions options;
  bool keepScripts = false;
};
// The options of a new session; none on Cancel. The choices stand as they were left the last time.
std::optional<NewGameAnswer> AskNewGame(QWidget* parent);

// The file dialog for an action: the full name of the file chosen; empty on Cancel.
std::string AskFile(QWidget* parent, FileAction action, const std::string& offered);

// The list of languages; the one picked takes effect at once.
void AskLanguage(QWidget* parent);

}  // namespace tessarel
