#include "files/game_file.h"

#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <random>

#include "autobet/script_files.h"
#include "base/file_io.h"
#include "base/record_file.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "engine/atm.h"
#include "engine/bets.h"
#include "engine/check_stacks.h"
#include "files/file_dialog.h"
#include "log/events_log.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/rail.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "reset.h"
#include "state/books_check.h"
#include "state/view_state.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"

namespace tessarel {
namespace {

constexpr int FixedRecords = 430, PlaceRecords = 467;

// A program just started in a folder of its own.
class GameFileTest : public FolderTest {
 protected:
  GameFileTest() { Restart(); }
  ~GameFileTest() override { EXPECT_EQ(CheckTable(), ""); }
  void Restart() const {
    StartUp(folder_.Path());
    Settings.BetNeededToShoot = 0;
    Shown.clear();
  }

  std::string Saved(const std::string& name) const {
    SaveGame(name);
    return Read(name);
  }
  // Alters the records of a saved game.
  template <class Alter>
  void Patch(const std::string& name, Alter&& alter) const {
    RecordFile file = RecordFile::Load(Path(name));
    alter(file);
    file.Save(Path(name));
  }
  static void Seed(int seed) {
    Dice.SeedRequest = seed;
    ASSERT_TRUE(SeedRNG(-1));
  }
  // The messages shown, by their titles and the files that they name.
  void ExpectToldOf(const std::vector<std::pair<std::string, std::string>>& messages) const {
    ASSERT_EQ(Shown.size(), messages.size());
    for (size_t k = 0; k < messages.size(); ++k) {
      EXPECT_EQ(Shown[k].Title, messages[k].first);
      EXPECT_NE(Shown[k].Text.find("\r\r" + Path(messages[k].second)), std::string::npos);
    }
    Shown.clear();
  }
  static void ExpectSound() {
    EXPECT_EQ(CheckTable(), "");
    EXPECT_EQ(CheckBooks(), "");
  }
};

// Games as people and scripts play them, made from a seed.
class RandomPlay {
 public:
  explicit RandomPlay(uint32_t seed) : random_(seed) {}

  void SetTable() {
    const int players = Upto(4);
    for (int k = 0; k < players; ++k) {
      const int place = 1 + Upto(7);
      if (IsTaken(Table, place)) continue;
      SeatPlayer(place, "Player " + std::to_string(place), 200 + Upto(5000));
      Table.HandleWinningBets[place] = Upto(7);
      Table.HandleLosingBets[place] = Upto(7);
      for (int slot = FirstHandlingSlot; slot <= LastHandlingSlot; ++slot) {
        Table.HandleAmount[place][slot] = Upto(3);
        Table.HandleUnits[place][slot] = Upto(6);
      }
      for (const int slot : {5, 7, 9, 10})
        Table.HandleOperator[place][slot] = Upto(2);
      for (auto* flag : {&Table.AutoTakeFullOdds, &Table.AutoLayFullOdds, &Table.AllowNegBankroll,
                         &Table.DeclinesDice}) {
        At(*flag, place) = Upto(1) != 0;
      }
      for (int number = 1; number <= bet::Midway; ++number)
        Table.BetWorkingDefault[place][number] = Upto(1);
    }
    Settings.OddsCalcMethod = Upto(5);
    Settings.LayVigAllBets = Upto(1) != 0;
    Settings.BuyVigAllBets = Upto(1) != 0;
    Settings.Denomination[1] = Upto(1) == 0 ? Money(1) : Money::FromRaw(5000);
    FigurePayoffUnits();
  }

  void Play(int rolls) {
    for (int roll = 0; roll < rolls; ++roll) {
      ForEachPlayer([this](int place) { Act(place); });
      if (Upto(150) == 0) NewSession({Upto(1) != 0, Upto(1) != 0, true, ContinueRollFile});
      MakeRoll();
    }
  }

 private:
  int Upto(int last) { return static_cast<int>(random_() % static_cast<uint32_t>(last + 1)); }

  void Act(int place) {
    for (int k = Upto(3); k > 0; --k) {
      const Money change = Money::FromRaw((Upto(80) - 15) * 5000);
      ChangeBet({place, 1 + Upto(LastBet - 1), change}, Telling::Silent);
    }
    if (Upto(20) == 0) SetStackValue(place, Upto(99), Money::FromRaw(Upto(1'000'000)));
    if (Upto(20) == 0) SetStackName(place, Upto(99), "Step " + std::to_string(Upto(9)));
    if (Upto(30) == 0) ATM(place, Upto(1) != 0, Upto(50), false);
    if (Upto(10) == 0)
      SetBetWorking(place, 1 + Upto(LastBet - 1), Upto(1) != 0 ? CalledOn : CalledOff);
  }

  std::mt19937 random_;
};

constexpr int GamesToPlay = 150;

TEST_F(GameFileTest, SavedGameGoesOnAsOneThatWasNeverSaved) {
  int midHand = 0, withBets = 0;
  for (int game = 1; game <= GamesToPlay && !HasFailure(); ++game) {
    SCOPED_TRACE(game);
    const auto seed = static_cast<uint32_t>(game);
    Restart();
    Seed(game);
    RandomPlay before(seed);
    before.SetTable();
    before.Play(game % 97);
    const std::string saved = Saved("saved.tsg");
    midHand += Table.Point != 0 ? 1 : 0;
    withBets += Table.Held.Empty() ? 0 : 1;
    Seed(game + 1);
    RandomPlay(seed + 1).Play(60);
    const std::string live = Saved("live.tsg");

    Restart();
    ASSERT_TRUE(OpenGame("saved.tsg"));
    ExpectSound();
    EXPECT_TRUE(Shown.empty());
    EXPECT_TRUE(Saved("again.tsg") == saved);
    Seed(game + 1);
    RandomPlay(seed + 1).Play(60);
    EXPECT_TRUE(Saved("reloaded.tsg") == live);
  }
  EXPECT_GT(midHand, GamesToPlay / 3);
  EXPECT_GT(withBets, GamesToPlay / 2);
}

TEST_F(GameFileTest, ValuesStandInTheirRecordsAndSlots) {
  SeatPlayer(3, "Ann", 1000);
  SeatPlayer(8, "Bob", 500);
  Settings.MaxFireBet = 7;
  ChangeBet({3, bet::PassLine, 10});
  ChangeBet({3, bet::Buy4, 20});
  SetStackValue(3, 1, Money::FromRaw(15000));
  SetStackName(3, 99, "Lost so far");
  MakeRoll(Faces{2, 4});
  for (int slot = FirstHandlingSlot; slot <= LastHandlingSlot; ++slot)
    Table.HandleUnits[3][slot] = (slot + 1) % 7;
  GameViews.Chips.assign(26, {1, 2, 3, 4, -5});
  GameViews.Windows.Main.Height = 640;
  FileDialog.LastFolder[1] = "/systems/";
  SaveGame("a.tsg");
  const RecordFile file = RecordFile::Load(Path("a.tsg"));
  ASSERT_EQ(file.Count(), FixedRecords + 2 * PlaceRecords + 2);

  const int ann = FixedRecords + 1, bob = ann + PlaceRecords, chips = bob + PlaceRecords;
  // clang-format off
  const struct { int record; std::string text; } texts[] = {
      {1, "Tessarel Pro Game File, Data Format 2.5"}, {6, "/systems/"}, {12, ""},
      {ann + 1, "Ann"}, {ann + 4, Path("ann.slg")}, {ann + 41 + 99, "Lost so far"}, {bob + 1, "Bob"}};
  const struct { int record, slot, word; } words[] = {
      {2, 4, 640}, {11, 0, 2}, {11, 2, 3}, {11, 4, 3}, {11, 5, 6}, {11, 8, 2}, {11, 9, 4},
      {11, 19, 26}, {11, 13, Dice.CurrentSeed}, {16, 13, -1}, {19, 42, -1}, {19, 43, 0},
      {41, 1, 0xFFFFFF}, {42, 5, 1}, {44, 0, 1}, {44, 6, 1}, {44 + 4, 17, 1}, {108, 0, 1},
      {108, 6, 0}, {108, 7, 1}, {419, 0, 1}, {424, 10, 1}, {424, 18, 65280}, {426, 24, 1}, {426, 38, 2},
      {426, 50, 120}, {ann + 32, 0, 0}};
  const struct { int record, slot; Money amount; } amounts[] = {
      {18, 2, 1000}, {18, 9, 12}, {18, 22, 7}, {21, 2, 30}, {21, 11, 500}, {22, 0, 1},
      {23, 0, Payoffs.Payoff[33].PayNum}, {32, 1, 3}, {38, 5, 999}, {429, 2, 150}, {ann, 0, 3},
      {ann, 6, 100}, {ann, 9, 103}, {bob, 0, 8}, {ann + 5, 5, 1000}, {ann + 6, 0, 0},
      {ann + 7, 43 - 32, 10}, {ann + 6 + 3, 101 - 96, Money::FromRaw(15000)}, {ann + 13, 0, 1000},
      {ann + 14, 43 - 32, 10}, {ann + 20, 0, 1000}, {ann + 28, 42 - 32, 10}, {ann + 31, 7, 1},
      {ann + 141, 1, 1000}, {bob + 141, 1, 500}, {ann + 458, 3, 1000}, {ann + 460, 21, 1000},
      {bob + 460, 8, 500}, {ann + 466, 12, 6}, {ann + 466, 17, 4},
      {ann + 466, 18, 5}, {ann + 466, 19, 6}, {ann + 466, 20, 0}};
  // clang-format on
  for (const auto& [record, text] : texts)
    EXPECT_EQ(file.At(record).Text(), text) << record;
  for (const auto& [record, slot, word] : words)
    EXPECT_EQ(file.At(record).Word(slot), word) << record << " " << slot;
  for (const auto& [record, slot, amount] : amounts)
    EXPECT_EQ(PlainText(file.At(record).Amount(slot)), PlainText(amount)) << record << " " << slot;
  EXPECT_EQ(file.At(43).Short(bet::PassLine), 1);
  EXPECT_EQ(file.At(ann + 40).Short(bet::Buy4), Table.BetWorking[3][bet::Buy4]);
  EXPECT_EQ(file.At(chips + 1).Short(4), -5);

  Restart();
  EXPECT_EQ(Saved("empty.tsg").size(), size_t{FixedRecords * Record::Size});
}

TEST_F(GameFileTest, WindowsComeBackAsTheyWereSet) {
  SessionsView.Include = include::Winning | include::Losing;
  SessionsView.Stat = SessionHandle;
  ViewSelections.SessionsPlayer = 7;
  RollFileEdit.optInsertRolls = 1;
  RollFileEdit.txtDiceRollOutputFormat = "Total";
  const std::string saved = Saved("a.tsg");
  const RecordFile file = RecordFile::Load(Path("a.tsg"));
  constexpr int Words[][3] = {{11, 28, 7}, {426, 11, 6}, {426, 12, 5}, {426, 16, 1}};
  for (const auto& [record, slot, word] : Words)
    EXPECT_EQ(file.At(record).Word(slot), word) << record << " " << slot;
  EXPECT_EQ(file.At(427).LongText(), "Total");
  Restart();
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_TRUE(Saved("again.tsg") == saved);
  SessionsView.Stat = 11;
  ViewSelections.SessionsPlayer = -1;
  SaveGame("a.tsg");
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_EQ(SessionsView.Stat, SessionNet);
  EXPECT_EQ(ViewSelections.SessionsPlayer, 0);
}

TEST_F(GameFileTest, TitleAndNameFollowTheFile) {
  Table.TableDirty = true;
  SaveGame("a.tsg");
  EXPECT_EQ(GameFile.WindowTitle, "Tessarel (a.tsg)");
  EXPECT_EQ(GameFile.GameFileName, Path("a.tsg"));
  EXPECT_FALSE(Table.TableDirty);
  SaveGame("DEFAULT.TSG");
  EXPECT_EQ(GameFile.WindowTitle, "Tessarel (DEFAULT.TSG)");
  ASSERT_TRUE(OpenGame("DEFAULT.TSG"));
  EXPECT_EQ(GameFile.WindowTitle, "Tessarel");
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_TRUE(SaveDefaultGame());
  EXPECT_EQ(GameFile.WindowTitle + GameFile.GameFileName, "Tessarel");
}

TEST_F(GameFileTest, CutOffFilesAreReportedOnceAndLeaveATableToPlayAt) {
  RandomPlay play(7);
  SeatPlayer(2, "Ann", 1000);
  play.Play(40);
  const std::string whole = Saved("whole.tsg");
  for (size_t cut = 0; cut < whole.size(); cut += Record::Size) {
    SCOPED_TRACE(cut / Record::Size);
    Write("cut.tsg", whole.substr(0, cut + cut / Record::Size % 2 * 100));
    Shown.clear();
    const bool opened = OpenGame("cut.tsg");
    // A part of the last record reads as the whole of it.
    const bool lastOfAll = cut / Record::Size % 2 == 1 && cut + Record::Size == whole.size();
    EXPECT_EQ(opened, lastOfAll);
    const std::string report = "Error: Input past end of file, Error #62 occurred at: OpenGame";
    EXPECT_EQ(Said(), opened ? Strings{} : Strings{report});
    MakeRoll();
    ExpectSound();
    if (HasFailure()) break;
  }
}

TEST_F(GameFileTest, AlteredFilesLeaveATableToPlayAt) {
  SeatPlayer(2, "Ann", 1000);
  SeatPlayer(5, "Bob", 1000);
  RandomPlay(3).Play(50);
  const std::string whole = Saved("whole.tsg");
  constexpr int64_t Values[] = {INT64_MIN, INT64_MAX, -1,        0,        1,
                                10'000,    990'000,   INT32_MIN, INT32_MAX};
  for (uint32_t seed = 0; seed < 300 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string bytes = whole;
    for (auto k = random() % 200; k > 0; --k) {
      const int64_t value =
          random() % 4 == 0 ? static_cast<int64_t>(random()) : Values[random() % 9];
      // The first records of the file hold what all the rest hangs on.
      const size_t room = random() % 2 == 0 ? 45 * Record::Size : bytes.size();
      const size_t at = Record::Size + random() % (room - Record::Size - 8) / 4 * 4;
      for (size_t b = 0; b < 8; ++b)
        bytes[at + b] = static_cast<char>(value >> (8 * b));
    }
    Restart();
    Write("altered.tsg", bytes);
    OpenGame("altered.tsg");
    ExpectSound();
    ClosePopupRoll();  // which would be waited for
    for (int roll = 0; roll < 3; ++roll)
      MakeRoll();
    EXPECT_EQ(CheckTable(), "");
    SaveGame("altered again.tsg");
  }
}

TEST_F(GameFileTest, ValuesOutsideTheirLimitsAreBroughtBack) {
  Settings.Language = 6;
  Settings.BasicFontSize = 20;
  Settings.InfoTipLevel = 5;
  Settings.RollDelay = 301;
  Settings.Denomination[1] = 0;
  Payoffs.Payoff[bet::Place6].PayDen = 0;
  Table.Shooter = 99;
  Dice.CurrentSeed = -5;
  SaveGame("a.tsg");
  Restart();
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_EQ(Settings.Language, 0);
  EXPECT_EQ(Settings.BasicFontSize, 13);
  EXPECT_EQ(Settings.InfoTipLevel, 0);
  EXPECT_EQ(Settings.RollDelay, Money(300));
  EXPECT_EQ(SmallestCheck(), Money(1));
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayDen, Money(6));
  EXPECT_EQ(Table.Shooter, 0);
  EXPECT_EQ(Dice.CurrentSeed, 0);
}

TEST_F(GameFileTest, UnitsOfHandledBetsAreMendedAndDollarsWhereNoneAreKept) {
  SeatPlayer(3, "Ann", 1000);
  constexpr int Slots[] = {12, 17, 18, 19};  // the last two are 0 in older files
  constexpr std::pair<int, int> Units[] = {{0, 0}, {6, 6}, {7, 6}, {-1, 0}, {INT32_MAX, 6}};
  for (const auto& [kept, read] : Units) {
    SCOPED_TRACE(kept);
    Table.HandleUnits[3].fill(5);
    SaveGame("a.tsg");
    Patch("a.tsg", [&Slots, kept = kept](RecordFile& file) {
      for (const int slot : Slots)
        file.At(FixedRecords + PlaceRecords).PutAmount(slot, kept);
    });
    ASSERT_TRUE(OpenGame("a.tsg"));
    const PerHandlingSlot<Money> expected = {0, 0, 0, 0, 0, read, 5, 5, 5, 5, read, read, read};
    EXPECT_EQ(Table.HandleUnits[3], expected);
  }
}

TEST_F(GameFileTest, RefusesFilesThatAreNoGames) {
  SeatPlayer(1, "Ann", 1000);
  const std::string none = "This is not a Tessarel game file.\r\r",
                    other = "This file appears to be from an incompatible version.\r\r";
  const struct {
    std::string name, header, says;
    bool windowShown;
  } cases[] = {{"a.tsg", "tessarel pro game file", none, true},
               {"a.tsg", "My Tessarel notes", other, false},
               {"Default.tsg", "Tessarel Pro Game File, Data Format 2.4", other, true},
               {"Default.tsg", "Tessarel Pro Game File, Data Format 2.4", "", false},
               {"default.tsg", "x", none, false}};
  for (const auto& [name, header, says, windowShown] : cases) {
    GameFile.MainWindowShown = windowShown;
    Write(name, header);
    EXPECT_FALSE(OpenGame(name));
    EXPECT_EQ(Said(), says.empty() ? Strings{} : Strings{"Error: " + says + name});
    EXPECT_EQ(Table.PlayerCount, 1);
  }
}

TEST_F(GameFileTest, TellsWhatBecameOfTheFilesInUse) {
  const auto later = [this](const std::string& name) {
    std::filesystem::last_write_time(
        Path(name), std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  };
  SeatPlayer(1, "Ann", 1000);
  Table.SessionLogName[1] = Path("other.slg");
  for (const char* name : {"a.bet", "other.slg", "log.txt"})
    Write(name, "");
  Write("a.rol", "\x90\x90\x90\x90");
  ASSERT_TRUE(ReadScriptFile(1, "a.bet"));
  SetScriptActive(1, true);
  EventsLog.EventLogName = Path("log.txt");
  SaveProbabilityFile("a.prb");
  Probability.ProbabilityMatrixActive = true;
  OpenRollFile("a.rol");
  RewindForPlayback();
  RollFile.NextRoll = 3;
  OpenPopupRoll("pop.txt");
  SaveGame("a.tsg");

  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_EQ(Said(), Strings{});
  EXPECT_EQ(RollFile.RollFileMode, RollFilePlay);
  EXPECT_EQ(RollFile.NextRoll, 3);
  EXPECT_EQ(PopupRoll.PopupRollFileName, Path("pop.txt"));
  EXPECT_TRUE(PopupRoll.PopupRollActive);
  EXPECT_EQ(Probability.ProbabilityFileName, Path("a.prb"));
  EXPECT_EQ(EventsLog.EventLogName, Path("log.txt"));
  EXPECT_EQ(Scripts.Places[1].ScriptFile, "a.bet");
  EXPECT_FALSE(Scripts.ScriptActive[1]);
  EXPECT_TRUE(GameFile.ScriptWasActive[1]);

  for (const char* name : {"a.bet", "a.rol", "a.prb"})
    later(name);
  ASSERT_TRUE(OpenGame("a.tsg"));
  ExpectToldOf({{"Altered Dice Roll File", "a.rol"},
                {"Altered Probability File", "a.prb"},
                {"Auto-Bet File Changed", "a.bet"}});
  EXPECT_EQ(RollFile.RollFileMode + RollFile.NextRoll, RollFileOff + 1);
  EXPECT_EQ(RollFile.RollFileName, Path("a.rol"));

  for (const char* name : {"a.bet", "a.rol", "a.prb", "log.txt", "other.slg"})
    std::filesystem::remove(Path(name));
  Write("Events Log.ref", "of the lost log.");
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_TRUE(Message.MsgText.ends_with("opened instead:\r\r" + Path("ann.slg")));
  ExpectToldOf({{"Missing Dice Roll File", "a.rol"},
                {"Missing Probability File", "a.prb"},
                {"Missing Events Log", "log.txt"},
                {"Auto-Bet File Not Found", "a.bet"},
                {"Sessions Log Not Found", "other.slg"}});
  EXPECT_EQ(RollFile.RollFileName + EventsLog.EventLogName + Scripts.Places[1].ScriptFile, "");
  EXPECT_FALSE(FileExists(EventsIndexName()));
  EXPECT_EQ(Table.SessionLogName[1], Path("ann.slg"));
}

TEST_F(GameFileTest, NamesOfOtherSystemsAndOfTheProgramsFolderAreFound) {
  std::filesystem::create_directory(Path("sub"));
  for (const char* name : {"sub/a.rol", "sub/log.txt", "sub/own.slg"})
    Write(name, "");
  SeatPlayer(1, "Ann", 1000);
  OpenRollFile("sub/a.rol");
  EventsLog.EventLogName = Path("sub/log.txt");
  Table.SessionLogName[1] = Path("sub/own.slg");
  SaveProbabilityFile("sub/a.prb");
  SaveGame("a.tsg");
  Patch("a.tsg", [](RecordFile& file) {
    file.At(12).PutText("sub\\a.rol");
    file.At(14).PutText("sub\\a.prb");
    file.At(15).PutText("sub\\log.txt");
    file.At(FixedRecords + 5).PutText("sub\\own.slg");
  });
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_EQ(Said(), Strings{});
  EXPECT_EQ(RollFile.RollFileName, Path("sub/a.rol"));
  EXPECT_EQ(EventsLog.EventLogName, Path("sub/log.txt"));
  EXPECT_EQ(Table.SessionLogName[1], Path("sub/own.slg"));
}

TEST_F(GameFileTest, UnsavedMatrixGoesWithTheAutomaticFileOnly) {
  Probability.ProbabilityMatrixActive = Probability.ProbabilityChanged = true;
  Probability.ProbabilityMatrix.Shares[1][1] = 4242;
  SaveGame("a.tsg");
  EXPECT_FALSE(FileExists(Path("default.prb")));
  ASSERT_TRUE(SaveDefaultGame());
  Restart();
  ASSERT_TRUE(OpenGame("default.tsg"));
  EXPECT_EQ(Probability.ProbabilityMatrix.Shares[1][1], 4242);
  EXPECT_EQ(Probability.ProbabilityFileName, Path("default.prb"));
  ASSERT_TRUE(OpenGame("a.tsg"));
  EXPECT_EQ(Probability.ProbabilityMatrix, TrueMatrix());
}

TEST_F(GameFileTest, StartsWithTheNamedGameElseTheAutomaticOne) {
  const std::string unknown = "This is not a recognized Tessarel game file.\r\r",
                    instead = "\r\rThe last default game file will be opened instead.";
  SeatPlayer(1, "Ann", 1000);
  SaveGame("a.tsg");
  Write("bad.tsg", "Tessarel");
  const auto start = [this](const std::string& commandLine) {
    Restart();
    OpenDefaultGame(commandLine);
    return Table.PlayerName[1] + "|" + (Shown.empty() ? "" : Said().back());
  };
  EXPECT_EQ(start(""), "|");
  EXPECT_EQ(start(" \"" + Path("a.tsg") + "\" "), "Ann|");
  EXPECT_EQ(start("a.txt"), "|Unable to Open File: " + unknown + "a.txt");
  Restart();
  SeatPlayer(1, "Zoe", 1000);
  ASSERT_TRUE(SaveDefaultGame());
  EXPECT_EQ(start(""), "Zoe|");
  EXPECT_EQ(start("bad.tsg"), "Zoe|Unable to Open File: " + unknown + "bad.tsg" + instead);
  Write("default.tsg", Read("a.tsg").substr(0, (FixedRecords + 10) * Record::Size));
  const std::string damaged = Read("default.tsg");
  EXPECT_EQ(start("").substr(0, 1), "|");
  EXPECT_EQ(Table.PlayerCount, 0);
  ASSERT_TRUE(SaveDefaultGame());
  EXPECT_EQ(Read("default.tsg.unread"), damaged) << "leaving overwrites what was not opened";
}

TEST_F(GameFileTest, FullDiskLeavesTheOldGame) {
  SeatPlayer(1, "Ann", 1000);
  ASSERT_TRUE(SaveDefaultGame());
  const std::string before = Read("default.tsg");
  SeatPlayer(2, "Bob", 1000);
  Table.TableDirty = true;
  struct rlimit old = {};
  getrlimit(RLIMIT_FSIZE, &old);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const struct rlimit full = {FixedRecords * Record::Size, old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  EXPECT_FALSE(SaveDefaultGame());
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(Read("default.tsg") == before);
  EXPECT_EQ(folder_.EntryCount(), 1);
  EXPECT_EQ(Said(), Strings{"Error: Disk full, Error #61 occurred at: SaveGame"});
  EXPECT_TRUE(Table.TableDirty);
  EXPECT_TRUE(SaveDefaultGame());
  ASSERT_TRUE(OpenGame("default.tsg"));
  EXPECT_EQ(Table.PlayerName[2], "Bob");
}

}  // namespace
}  // namespace tessarel
