#include "files/sessions_commands.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>
#include <vector>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "files/file_dialog.h"
#include "files/sessions_log.h"
#include "state/books.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Runs a command, which tells whether it was done, for the player of a place, if there is one.
template <class Command>
bool DoneFor(int place, const char* name, Command&& command) {
  bool done = false;
  if (IsTaken(Table, place)) Trapped(name, [&] { done = command(); });
  return done;
}

const std::string& NameOf(int place) {
  return Table.PlayerName[place];
}

void Tell(Text text, Text title) {
  ShowMessage(SayChosen(text), SayChosen(title), msg::OkAlert);
}

void RefuseFile() {
  ShowError(Say(Text::NotASessionsLog));
}

// --- New logs ----------------------------------------------------------------------------------

bool AgreesToSessionInProgress(bool oneLog) {
  if (RollsInSession() == 0) return true;
  const Text question = oneLog ? Text::SessionGoesIntoNewLog : Text::SessionGoesIntoNewLogs;
  const Text title = oneLog ? Text::SessionGoesIntoNewLogTitle : Text::SessionGoesIntoNewLogsTitle;
  return ShowMessage(SayChosen(question), SayChosen(title), msg::AskNoDefault) == AnswerYes;
}

// Whether a log may take this name: other players go on with theirs.
bool MayTakeName(int place, const std::string& name, FileAction dialog) {
  bool free = true;
  ForEachPlayer([&](int other) {
    if (other != place && IsSameFile(SessionsLogNameOf(other), name)) free = false;
  });
  if (!free) {
    ShowMessage(Say(Text::LogOfAnotherPlayer), std::string(FileActionTitle(dialog)), msg::OkAlert);
  }
  return free;
}

// Gives the log `from` of a player a name that he chooses. Empty when he gives up.
std::string MoveToChosenName(int place,
                             const std::string& from,
                             const std::string& offered,
                             FileAction dialog) {
  const std::string chosen = FrontEnd.AskSaveFile(dialog, offered);
  if (chosen.empty()) return "";
  const std::string to = InFolder(Folders.SessionsLogFolder, chosen);
  if (!MayTakeName(place, to, dialog)) return "";
  if (FileExists(from)) MoveSessionsLog(from, to);
  return to;
}

// Lets a player keep the sessions that stand under the name of his new log.
bool MakesRoom(int place, const std::string& name) {
  if (CountSessions(name) == 0) return true;
  const int32_t answer = ShowMessage(Say(Text::AskToRenameLog, NameOf(place)),
                                     Say(Text::SaveSessionsLog), msg::AskYesDefault | msg::Cancel);
  if (answer == AnswerNo) return true;
  if (answer != AnswerYes) return false;
  const std::string kept = MoveToChosenName(place, name, name, FileAction::SaveSessionsLog);
  return !kept.empty() && !IsSameFile(kept, name);
}

bool StartNewLog(int place) {
  const std::string name = DefaultSessionsLogName(NameOf(place));
  if (!MakesRoom(place, name)) return false;
  ClearSessionsLog(name);
  Table.SessionLogName[place] = name;
  return true;
}

// --- Deleting ----------------------------------------------------------------------------------

struct SessionRange {
  int32_t first, last;
};

// "7", or two numbers with a dash, a comma, blanks or "to" between them. Empty for anything else.
std::optional<SessionRange> ReadRange(std::string_view text) {
  std::vector<int32_t> numbers;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    int32_t number = 0;
    const auto [rest, error] = std::from_chars(at, end, number);
    if (error != std::errc()) return std::nullopt;
    numbers.push_back(number);
    const char* const next = std::find_if(rest, end, [](char c) { return c >= '0' && c <= '9'; });
    const std::string_view between = TrimSpaces({rest, static_cast<size_t>(next - rest)});
    const bool separates = next != end && (between.empty() || between == "-" || between == "," ||
                                           EqualIgnoringCase(between, "to"));
    if (next != end ? !separates : !between.empty()) return std::nullopt;
    at = next;
  }
  if (numbers.empty() || numbers.size() > 2) return std::nullopt;
  return SessionRange{numbers.front(), numbers.back()};
}

// --- Finding -----------------------------------------------------------------------------------

// A number as people type it, with its thousands and signs.
std::optional<Money> ReadValue(std::string text) {
  std::erase_if(text, [](char c) { return c == ',' || c == '$' || c == '%' || c == ' '; });
  return ParseMoney(text);
}

std::string_view ChosenStatName() {
  return Wording(At(SessionStatNames, SessionsView.Stat));
}

bool FindFrom(const SessionStatistics& statistics, int32_t from, int step) {
  const std::optional<Money> value = ReadValue(SessionsView.FindText);
  const int32_t row = value ? FindSessionRow(statistics, *value, from, step) : -1;
  if (row < 0) {
    ShowMessage(Say(Text::ValueNotFound, SessionsView.FindText), Say(Text::Find), msg::OkAlert);
    return false;
  }
  SessionsView.FoundRow = row;
  return true;
}

}  // namespace

SessionStatistics SessionStatisticsOf(int place) {
  if (!IsTaken(Table, place)) return FigureSessions({}, std::nullopt, SessionsView);
  std::optional<Session> inProgress;
  if (RollsInSession() > 0) inProgress = SessionSoFar(place);
  return FigureSessions(ReadSessions(SessionsLogNameOf(place)), inProgress, SessionsView);
}

bool OpenSessionsLog(int place, const std::string& name) {
  return DoneFor(place, "OpenSessionsLog", [&] {
    const std::string path = InFolder(Folders.SessionsLogFolder, name);
    if (!FileExists(path)) return false;
    if (!IsSessionsLog(path)) {
      RefuseFile();
      return false;
    }
    Table.SessionLogName[place] = path;
    return true;
  });
}

bool NewSessionsLog(int place) {
  return DoneFor(place, "NewSessionsLog",
                 [place] { return AgreesToSessionInProgress(true) && StartNewLog(place); });
}

bool NewSessionsLogs() {
  if (Table.TakenPlaces == 0 || !AgreesToSessionInProgress(false)) return false;
  bool going = true;
  ForEachPlayer([&going](int place) {
    going = going && DoneFor(place, "NewSessionsLogs", [place] { return StartNewLog(place); });
  });
  return going;
}

bool AskToDeleteSessions(int place) {
  return DoneFor(place, "DeleteSessions", [place] {
    if (!AskForText(Say(Text::AskSessionsToDelete), Say(Text::DeleteSessions), "") ||
        TrimSpaces(Message.MsgInput).empty()) {
      return false;
    }
    const std::string& log = SessionsLogNameOf(place);
    const auto range = ReadRange(TrimSpaces(Message.MsgInput));
    if (!range || range->first < 1 || range->last < range->first ||
        range->last > CountSessions(log)) {
      Tell(Text::NoSessionsDeleted, Text::DeleteSessions);
      return false;
    }
    DeleteSessions(log, range->first, range->last);
    return true;
  });
}

bool AskToDeleteAllSessions(int place) {
  return DoneFor(place, "DeleteAllSessions", [place] {
    if (ShowMessage(Say(Text::AskToDeleteAllSessions, NameOf(place)), Say(Text::DeleteAllSessions),
                    msg::AskNoDefault) != AnswerYes) {
      return false;
    }
    ClearSessionsLog(SessionsLogNameOf(place));
    return true;
  });
}

bool MergeSessionsLog(int place, const std::string& name) {
  return DoneFor(place, "MergeSessionsLog", [&] {
    const std::string& log = SessionsLogNameOf(place);
    const std::string other = InFolder(Folders.SessionsLogFolder, name);
    if (!IsSessionsLog(other)) {
      RefuseFile();
      return false;
    }
    if (IsSameFile(log, other)) {
      Tell(Text::CannotMergeWithItself, Text::MergeSessionsLogs);
      return false;
    }
    AppendSessions(log, other);
    return true;
  });
}

bool OfferToRenameSessionsLog(int place) {
  return DoneFor(place, "RenameSessionsLog", [place] {
    const std::string log = SessionsLogNameOf(place);
    if (ShowMessage(Say(Text::AskToRenamePlayersLog, NameOf(place), log),
                    Say(Text::RenameSessionsLogTitle), msg::AskYesDefault) != AnswerYes) {
      return false;
    }
    const std::string name = MoveToChosenName(place, log, DefaultSessionsLogName(NameOf(place)),
                                              FileAction::RenameSessionsLog);
    if (name.empty()) return false;
    Table.SessionLogName[place] = name;
    return true;
  });
}

bool AskToFindSession(const SessionStatistics& statistics) {
  if (!AskForText(Say(Text::AskValueToFind, ChosenStatName()), Say(Text::Find),
                  SessionsView.FindText)) {
    return false;
  }
  const std::string text(TrimSpaces(Message.MsgInput));
  if (text.empty()) return false;
  SessionsView.FindText = text;
  return FindFrom(statistics, 0, 1);
}

bool FindNextSession(const SessionStatistics& statistics) {
  if (SessionsView.FindText.empty()) return AskToFindSession(statistics);
  return FindFrom(statistics, SessionsView.FoundRow + 1, 1);
}

bool FindPreviousSession(const SessionStatistics& statistics) {
  if (SessionsView.FindText.empty()) return AskToFindSession(statistics);
  return FindFrom(statistics, SessionsView.FoundRow - 1, -1);
}

bool AskBreakPoint() {
  if (!AskForText(Say(Text::AskBreakPoint, ChosenStatName()), Say(Text::SetBreakPoint),
                  PlainText(SessionsView.BreakPoint))) {
    return false;
  }
  const std::optional<Money> value = ReadValue(Message.MsgInput);
  if (value) SessionsView.BreakPoint = *value;
  return value.has_value();
}

}  // namespace tessarel
