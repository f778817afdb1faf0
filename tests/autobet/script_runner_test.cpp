// Runs the scripts of tests/scripts: systems with what each statement has to come to written beside
// it. A file begins with lines for the runner,
//
//   '@ player Ann=1000        a player, in the order of the places
//   '@ set FIELD@PLACE=VALUE  a setting
//   '@ owner 2                the place of the script; 1 by default
//   '@ answer yes             to the next question: yes, no or a text
//   '@ rights                 every right for the script, which it is not given else
//   '@ rolls NAME 3-4 6-6     a dice roll file in the folder of the program
//   '@ dice 3-4 6-6           the rolls; the script runs once before them and after each
//
// and an expectation stands in a comment after its statement: '= A | B | C for the cycle before
// the first roll, the one after it and so on; the last one holds for all that follow, and "-" says
// that the statement is not run. '=> A stands for the last cycle only. A condition comes to true or
// false, an action to "done" or "error N"; a statement that sets csn0 comes to that name, which
// takes any number or text.
//
// A file in tests/scripts/checker holds faulty scripts, each with its message after it:
//
//   '! LINE:COLUMN TEXT      lines and columns from 1 on, " / " between the lines of the text
//
// Comments ahead of a faulty script are no part of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "autobet/checker.h"
#include "autobet/interpreter.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/temporary_folder.h"
#include "config/setting_fields.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

std::vector<std::string> LinesOf(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    lines.push_back(line);
  return lines;
}

std::vector<std::filesystem::path> ScriptsIn(const std::string& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".bet") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::stringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);)
    parts.push_back(std::string(TrimSpaces(part)));
  return parts;
}

// What the running file expects and answers, in reach of the front end's callbacks.
struct RunnerState {
  std::string file;
  std::map<int, std::vector<std::string>> expected;  // by line
  std::map<int, std::string> expectedAtLast;         // in the last cycle
  std::map<int, bool> setsName;                      // lines that set csn0
  std::vector<std::string> answers;
  size_t cycle = 0;
  std::map<int, std::string> outcome;  // of this cycle, by line
};

RunnerState Runner;

void TakeStep(const ScriptStep& step) {
  if (StatementFailed())
    Runner.outcome[step.line] = "error " + std::to_string(static_cast<int32_t>(AutoBet.Fault));
  else if (step.text.starts_with("Condition is "))
    Runner.outcome[step.line] = step.text == "Condition is true." ? "true" : "false";
  else if (step.text == "Action taken.")
    Runner.outcome[step.line] =
        Runner.setsName[step.line] ? Table.CheckStackName[step.place][0] : "done";
}

void AnswerQuestion() {
  if (Runner.answers.empty()) return;
  const std::string answer = Runner.answers.front();
  Runner.answers.erase(Runner.answers.begin());
  Message.MsgInput = answer;
  Message.MsgResult = answer == "yes" ? AnswerYes : answer == "no" ? AnswerNo : 0;
}

void CompareLine(int line, const std::string& wanted) {
  const auto got = Runner.outcome.find(line);
  EXPECT_EQ(got == Runner.outcome.end() ? "-" : got->second, wanted)
      << Runner.file << ":" << line << " in cycle " << Runner.cycle;
}

void CompareCycle(bool last) {
  for (const auto& [line, values] : Runner.expected)
    CompareLine(line, values[std::min(Runner.cycle, values.size() - 1)]);
  if (last) {
    for (const auto& [line, value] : Runner.expectedAtLast)
      CompareLine(line, value);
  }
  Runner.outcome.clear();
  ++Runner.cycle;
}

std::vector<Faces> FacesIn(const std::string& text) {
  std::vector<Faces> rolls;
  for (const std::string& pair : Split(text, ' '))
    rolls.push_back({pair[0] - '0', pair[2] - '0'});
  return rolls;
}

class ScriptFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    StartUp(folder_.Path());
    Scripts = {};
    AutoBet = {};
    FrontEnd = {};
    FrontEnd.ShowStep = TakeStep;
    FrontEnd.ShowMessage = AnswerQuestion;
    Settings.BetNeededToShoot = 0;
  }
  void TearDown() override {
    FrontEnd = {};
    Scripts = {};
    AutoBet = {};
  }

  void ObeyDirective(const std::string& line);
  void ReadExpectations(const std::vector<std::string>& lines);
  void Play(const std::filesystem::path& path);

  TemporaryFolder folder_;
  int owner_ = 1;
  std::vector<Faces> dice_;
};

void ScriptFiles::ObeyDirective(const std::string& line) {
  std::stringstream words(line.substr(3));
  std::string word, rest;
  words >> word;
  std::getline(words >> std::ws, rest);
  if (word == "player") {
    const std::vector<std::string> parts = Split(rest, '=');
    SeatPlayer(Table.PlayerCount + 1, parts[0], std::stoi(parts[1]));
  } else if (word == "owner") {
    owner_ = std::stoi(rest);
  } else if (word == "answer") {
    Runner.answers.push_back(rest);
  } else if (word == "dice") {
    dice_ = FacesIn(rest);
  } else if (word == "rights") {
    Scripts.AllowReset[owner_] = Scripts.AllowAct4Others[owner_] = Scripts.AllowActProb[owner_] =
        -1;
  } else if (word == "rolls") {
    const size_t blank = rest.find(' ');
    std::ofstream file(folder_.Path() + rest.substr(0, blank), std::ios::binary);
    for (const Faces& faces : FacesIn(rest.substr(blank + 1)))
      file << static_cast<char>(RollByte(faces));
  } else if (word == "set") {
    const std::vector<std::string> parts = Split(rest, '='), field = Split(parts[0], '@');
    const auto place = field.size() > 1 ? std::optional(std::stoi(field[1])) : std::nullopt;
    EXPECT_EQ(SetField(field[0], place, parts[1]), std::nullopt) << rest;
  } else {
    ADD_FAILURE() << "unknown directive: " << line;
  }
}

void ScriptFiles::ReadExpectations(const std::vector<std::string>& lines) {
  for (size_t k = 0; k < lines.size(); ++k) {
    if (lines[k].starts_with("'@ ")) ObeyDirective(lines[k]);
    const int line = static_cast<int>(k) + 1;
    if (const size_t at = lines[k].rfind("'=> "); at != std::string::npos)
      Runner.expectedAtLast[line] = TrimSpaces(lines[k].substr(at + 4));
    if (const size_t at = lines[k].rfind("'= "); at != std::string::npos)
      Runner.expected[line] = Split(lines[k].substr(at + 3), '|');
    Runner.setsName[line] = TrimSpaces(lines[k]).starts_with("csn0 =");
  }
}

void ScriptFiles::Play(const std::filesystem::path& path) {
  Runner = {};
  Runner.file = path.filename().string();
  const std::vector<std::string> lines = LinesOf(path);
  ReadExpectations(lines);
  Scripts.Places[owner_].lines = lines;
  SetScriptActive(owner_, true);
  AutoBet.ShowSteps = true;
  CompiledScript script;
  const std::optional<ScriptError> error = CheckScript(owner_, script);
  ASSERT_FALSE(error) << Runner.file << ":" << error->line << ": " << error->text;
  CheckScriptErrors();
  AutoBet.Initializing = AutoBet.NewSessionBegins = true;
  RunAutoBet();
  AutoBet.Initializing = false;
  CompareCycle(dice_.empty());
  for (size_t k = 0; k < dice_.size(); ++k) {
    MakeRoll(dice_[k]);
    CompareCycle(k + 1 == dice_.size());
  }
}

TEST_F(ScriptFiles, ComeToWhatStandsBesideThem) {
  const auto paths = ScriptsIn(TESSAREL_TEST_SCRIPTS);
  ASSERT_FALSE(paths.empty());
  for (const auto& path : paths) {
    SetUp();
    owner_ = 1;
    dice_.clear();
    Play(path);
  }
}

std::string Described(const std::optional<ScriptError>& error) {
  if (!error) return "no error";
  return std::to_string(error->line) + ":" + std::to_string(error->startColumn + 1) + " " +
         OnOneLine(error->text);
}

TEST_F(ScriptFiles, AreRefusedWithTheMessageBehindThem) {
  for (const auto& path : ScriptsIn(TESSAREL_TEST_SCRIPTS "/checker")) {
    SetUp();
    std::vector<std::string> script;
    int number = 0;
    for (const std::string& line : LinesOf(path)) {
      ++number;
      if (line.starts_with("'@ ")) {
        ObeyDirective(line);
      } else if (line.starts_with("'! ")) {
        Scripts.Places[1].lines = std::exchange(script, {});
        CompiledScript compiled;
        EXPECT_EQ(Described(CheckScript(1, compiled)), line.substr(3))
            << path.filename().string() << ":" << number;
      } else if (!script.empty() || !line.starts_with("'")) {
        script.push_back(line);
      }
    }
  }
}

// The systems that come with the program, each for an evening that most of them would not last on
// less money.
TEST_F(ScriptFiles, OfTheSamplesRunWithoutAnError) {
  const auto paths = ScriptsIn(TESSAREL_SAMPLES);
  ASSERT_FALSE(paths.empty());
  for (const auto& path : paths) {
    SCOPED_TRACE(path.filename().string());
    SetUp();
    FrontEnd.ReportScriptError = [](int, int32_t line, const std::string& text) {
      ADD_FAILURE() << "line " << line << ": " << text;
    };
    SeatPlayer(1, "Ann", 1'000'000);
    Scripts.Places[1].lines = LinesOf(path);
    SetScriptActive(1, true);
    Dice.SeedRequest = 4711;
    ASSERT_TRUE(SeedRNG(-1));
    CompiledScript script;
    ASSERT_EQ(Described(CheckScript(1, script)), "no error");
    CheckScriptErrors();
    AutoBet.Initializing = AutoBet.NewSessionBegins = true;
    RunAutoBet();
    AutoBet.Initializing = false;
    Settings.AutoStopRolls = 2'000;
    Table.HyperDriveOn = true;
    MakeRoll();
    EXPECT_EQ(Stats.RollCount[AllSessions][0], 2'000);
    EXPECT_GT(Stats.Bets[AllSessions + 1][bet::PassLine].Tendered.Count +
                  Stats.Bets[AllSessions + 1][bet::DontPass].Tendered.Count,
              0);
  }
}

}  // namespace
}  // namespace tessarel
