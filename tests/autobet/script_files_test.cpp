#include "autobet/script_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "autobet/older_scripts.h"
#include "autobet/values.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "play/game_commands.h"
#include "play/players.h"
#include "play/start_up.h"
#include "state/table.h"

namespace tessarel {
namespace {

using Strings = std::vector<std::string>;

std::vector<std::string> Shown;

class FilesOfScripts : public ::testing::Test {
 protected:
  void SetUp() override {
    Shown.clear();
    StartUp(folder_.Path());
  }
  void TearDown() override {
    StartUp(folder_.Path());
    FrontEnd = {};
    Folders = {};
  }

  static void Answer(void (*show)()) { FrontEnd.ShowMessage = show; }
  void Put(const std::string& name, std::string_view bytes) const {
    std::ofstream(folder_.Path() + name, std::ios::binary) << bytes;
  }
  std::string BytesOf(const std::string& name) const {
    std::ifstream file(folder_.Path() + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  Strings LinesOf(std::string_view bytes) const {
    Put("lines.bet", bytes);
    Strings lines;
    EXPECT_TRUE(ReadScriptLines(folder_.Path() + "lines.bet", lines));
    return lines;
  }

  TemporaryFolder folder_;
};

std::string Padded(std::string text, size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string Piece(const std::string& text, int kind) {
  const std::string kindBytes = {static_cast<char>(kind), static_cast<char>(kind >> 8)};
  return Padded(text, 128) + kindBytes + std::string(126, '\x7f');
}

std::string Header(const std::string& text) {
  return Piece(text + " and more", 0);
}

TEST_F(FilesOfScripts, EndOfTheLastLineBeginsNoOther) {
  const struct {
    std::string_view bytes;
    Strings lines;
  } cases[] = {
      {"", {}},
      {"\n", {""}},
      {"a", {"a"}},
      {"a\n", {"a"}},
      {"a\n\n  b ", {"a", "", "  b "}},
      {"a\r\nb\r\n\r\n", {"a", "b", ""}},
      {"\xEF\xBB\xBF"
       "a",
       {"a"}},
      {"a\rb\n", {"a\rb"}},
      {std::string_view("\0\xff\x80 \xc3\xa9\n\0", 8),
       {std::string("\0\xff\x80 \xc3\xa9", 6), {'\0'}}},
      {"Tessarel AutoBets, Data Format 4.0\nwhile",
       {"Tessarel AutoBets, Data Format 4.0", "while"}},
  };
  for (const auto& test : cases)
    EXPECT_EQ(LinesOf(test.bytes), test.lines) << test.bytes;
  Strings lines = {"kept"};
  EXPECT_FALSE(ReadScriptLines(folder_.Path() + "missing.bet", lines));
  EXPECT_FALSE(ReadScriptLines(folder_.Path(), lines));
  EXPECT_EQ(lines, Strings{"kept"});
}

TEST_F(FilesOfScripts, OlderFormIsReadUnderItsThreeHeaders) {
  const std::string full(128, 'x');
  const std::string records = Piece("while point is", 1) + Piece("6", 5) + Piece("", 1) +
                              Piece("bet 5 on pass-line", 2) + Piece("then", 256 + 2) +
                              Piece(full, 13) + Piece("y 'caf\xe9", 3);
  const Strings lines = {"if point is 6", "bet 5 on passline then", full + "y 'caf\xc3\xa9"};
  for (const char* header :
       {"Ostrelvane AutoBets, Data Format 5.0", "Tessarel AutoBets, Data Format 3.9",
        "Tessarel AutoBets, Data Format 5.0"}) {
    EXPECT_EQ(LinesOf(Header(header) + records), lines) << header;
  }
  EXPECT_EQ(LinesOf("Tessarel AutoBets, Data Format 5.0"), Strings());
}

TEST(OlderScripts, FileThatEndsEarlyGivesItsWholePieces) {
  const std::string whole = Header("Tessarel AutoBets, Data Format 3.9") + Piece("one", 1) +
                            Piece("two", 2) + Piece("more", 7);
  const auto pieceEnd = [](size_t number) { return number * 256 + 130; };
  for (size_t size = 34; size <= whole.size(); ++size) {
    Strings expected;
    if (size >= pieceEnd(1)) expected.push_back("one");
    if (size >= pieceEnd(2)) expected.push_back("two");
    if (size >= pieceEnd(3)) expected.back() += " more";
    EXPECT_EQ(OlderScriptLines(whole.substr(0, size)), expected) << size;
  }
}

TEST_F(FilesOfScripts, OlderWordingBecomesTheCurrentOne) {
  // clang-format off
  const std::pair<const char*, const char*> cases[] = {
      {"When point is 6 AND WHEN die1 = 3 or while rnd > 1 then", "if point is 6 and die1 = 3 "
       "or rnd > 1 then"},
      {"add 5 to stack #12", "add 5 to checkstack12"},
      {"add stack01 to Stack # 3", "add checkstack1 to checkstack3"},
      {"add 1 to chip stack 4", "add 1 to checkstack4"},
      {"add 1 to checkstack4", "add 1 to checkstack4"}, {"clear chip stacks", "clear checkstacks"},
      {"bet 10 on Dont Pass", "bet 10 on dontpass"},
      {"bet 10 on pass-line odds", "bet 10 on passlineodds"},
      {"bet 10 on dont come 4 odds", "bet 10 on dontcomeodds4"},
      {"bet 10 on dont-come odds 10", "bet 10 on dontcomeodds10"},
      {"bet 12 on place 6 ; buy 10", "bet 12 on place6 ; buy10"},
      {"bet 1 on hard way 8", "bet 1 on hard8"}, {"bet 1 on 4 rolls no 7", "bet 1 on 4rollsno7"},
      {"bet 1 on 7 point 7", "bet 1 on 7point7"}, {"bet 1 on hop 1-3", "bet 1 on hop13"},
      {"bet 1 on c and e", "bet 1 on cande"}, {"if game rolls > 5 then", "if # of rolls > 5 then"},
      {"if passline has won more than 3 then", "if passline wins > 3 then"},
      {"if passline have lost less than 3 then", "if passline lose < 3 then"},
      {"auto-take full odds = true", "autotake full odds = true"},
      {"auto-remove place bets = true", "autodown place bets = true"},
      {"autohandle winnings = 1", "autohandle winning bets = 1"},
      {"if initializing autobet then", "if Initializing script then"},
      {"if last roll was a come-out roll then", "if last roll was a comeout roll then"},
      {"show message \"when stack #5\" 'while come-out", "show message \"when stack #5\" 'while "
       "come-out"},
      {"show message \"unclosed when", "show message \"unclosed when"},
      {"goto whenever2 : whileaway", "goto if2 : whileaway"},
      {"\x01when\x01 \xff when \xc3\x89when", "\x01when\x01 \xff if \xc3\x89when"}, {"", ""},
  };
  // clang-format on
  for (const auto& [older, current] : cases) {
    EXPECT_EQ(UpgradeWording(older), current) << older;
    EXPECT_EQ(UpgradeWording(current), current) << older;
  }
}

TEST_F(FilesOfScripts, SavedScriptReadsBackAsItWas) {
  const std::string path = folder_.Path() + "system.bet";
  Scripts.Places[3] = {{"bet 5 on passline", "", "  'end\xff"}, "", "out.txt", true};
  const ScriptPlace before = Scripts.Places[3];
  EXPECT_NE(FaultOf([] { SaveScriptFile(3); }), 0);
  EXPECT_NE(FaultOf([&] { SaveScriptFileAs(3, folder_.Path() + "none/a.bet"); }), 0);
  EXPECT_EQ(Scripts.Places[3], before);
  SaveScriptFileAs(3, path);
  EXPECT_EQ(BytesOf("system.bet"), "bet 5 on passline\n\n  'end\xff\n");
  EXPECT_EQ(Scripts.Places[3].ScriptFile, "system.bet");
  EXPECT_FALSE(Scripts.Places[3].changed);
  Scripts.ProgramReady = true;
  EXPECT_TRUE(ReadScriptFile(5, "system.bet"));
  EXPECT_FALSE(Scripts.ProgramReady);
  EXPECT_EQ(Scripts.Places[5].lines, before.lines);
  EXPECT_FALSE(ReadScriptFile(5, "missing.bet"));
  EXPECT_EQ(Scripts.Places[5].ScriptFile, "system.bet");
  const TemporaryFolder elsewhere;
  SaveScriptFileAs(5, elsewhere.Path() + "a.bet");
  EXPECT_EQ(Scripts.Places[5].ScriptFile, elsewhere.Path() + "a.bet");
}

TEST_F(FilesOfScripts, ActivationAsksForOneCycleAndKeepsTheOthersActive) {
  SeatPlayer(1, "Ann", 100);
  SeatPlayer(4, "Bob", 100);
  SetScriptActive(4, true);
  Answer([] { Shown.push_back(Message.MsgTitle + ": " + Message.MsgText); });
  ActivateScript(1);
  const std::string middle =
      " for one cycle BEFORE the dice roll in order to check and set any initial conditions.  This "
      "is called initializing. If you're not ready yet, then just recheck the active checkbox "
      "later or note that all players' active auto-bets are automatically initialized whenever NEW "
      "is selected from the GAME menu.\r\rWould you like to initialize ";
  const std::string chance = "\r\rYou have an opportunity now to run ";
  EXPECT_EQ(Shown, Strings{"Auto-Bet: Ann's auto-bet script has been activated." + chance +
                           "Ann's script" + middle + "Ann's auto-bet script now?"});
  EXPECT_EQ(Scripts.ScriptActive, (PerPlace<bool>{true, true, false, false, true}));
  EXPECT_FALSE(Scripts.ProgramReady);
  EXPECT_FALSE(AutoBet.Initializing);

  NewScript(1);
  Shown.clear();
  ActivateScript(9);
  EXPECT_EQ(Shown, Strings{"Auto-Bet: All players' auto-bet scripts have been activated." + chance +
                           "each script" + middle + "all auto-bet scripts now?"});
  EXPECT_EQ(Scripts.ScriptActive, (PerPlace<bool>{true, true, false, false, true}));
}

TEST_F(FilesOfScripts, FirstCycleIsMarkedOnlyWhileItRuns) {
  SeatPlayer(2, "Ann", 100);
  Scripts.Places[2].lines = {"if initializing script then",   "add 1 to checkstack5", "endif",
                             "if beginning new session then", "add 1 to checkstack6", "endif"};
  const auto stacks = [] { return std::pair(Bet(2, FirstStack + 5), Bet(2, FirstStack + 6)); };
  ActivateScript(2);
  EXPECT_EQ(stacks(), std::pair(Money(1), Money(0)));
  EXPECT_TRUE(StartNewGame({.keepStacks = true}, true));
  EXPECT_EQ(stacks(), std::pair(Money(2), Money(1)));
  EXPECT_FALSE(AutoBet.Initializing);
  EXPECT_FALSE(AutoBet.NewSessionBegins);
  Put("key.bet", "if initializing script then\nadd 5 to checkstack5 player(2)\nendif\n");
  Scripts.AllowAct4Others[0] = true;
  RunHotKeyScript("key.bet");
  EXPECT_FALSE(AutoBet.HotKeyRun);
  EXPECT_FALSE(Scripts.ProgramReady);
  EXPECT_EQ(Scripts.Places[0].ScriptFile, "key.bet");
}

TEST_F(FilesOfScripts, HotKeyTellsWhyItsScriptDoesNotRun) {
  Answer([] { Shown.push_back(Message.MsgTitle + ": " + Message.MsgText); });
  RunHotKeyScript("missing.bet");
  Put("bad.bet", "if point is\n");
  RunHotKeyScript("bad.bet");
  EXPECT_EQ(Shown,
            (Strings{"Error: File not found, Error #53 occurred at: RunHotKeyScript",
                     "Auto-Bet Script Error: The Auto-Bet script for this hot-key contains a "
                     "syntax error which must be corrected before you can use it."}));
  EXPECT_EQ(Message.MsgFlags, 513);
}

}  // namespace
}  // namespace tessarel
