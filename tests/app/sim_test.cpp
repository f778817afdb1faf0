// tessarel-sim as people script against it: exit statuses, what goes to which stream, and files.

#include <poll.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "dice/probability.h"
#include "dice/probability_file.h"
#include "files/sessions_log.h"
#include "reset.h"

namespace tessarel {
namespace {

using Json = nlohmann::ordered_json;

struct Outcome {
  int status = -1;
  std::string out, err;
};

class Sim : public FolderTest {
 protected:
  // The line that runs the program in the test's folder; `arguments` as one writes them in a
  // shell, `before` are commands of the shell.
  std::string Line(const std::string& arguments, const std::string& before) const {
    return "cd '" + Path("") + "' && " + before + " '" TESSAREL_SIM "' " + arguments + " >'" +
           streams_.Path() + "out' 2>'" + streams_.Path() + "err'";
  }
  Outcome Ended(int status) const {
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, streams_.Read("out"),
            streams_.Read("err")};
  }
  Outcome Run(const std::string& arguments, const std::string& before = "") const {
    return Ended(std::system(Line(arguments, before).c_str()));
  }
  // Presses Ctrl-C as soon as the program has written to a file of the test's folder.
  Outcome Interrupt(const std::string& arguments) const {
    const std::string line = Line(arguments, "exec");
    pollfd watch{inotify_init1(IN_CLOEXEC), POLLIN, 0};
    inotify_add_watch(watch.fd, Path("").c_str(), IN_MODIFY);
    const pid_t child = fork();
    if (child == 0) {
      execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
      _exit(127);
    }
    EXPECT_EQ(poll(&watch, 1, 60'000), 1) << arguments;
    kill(child, SIGINT);
    int status = 0;
    waitpid(child, &status, 0);
    close(watch.fd);
    return Ended(status);
  }

  // The JSON of a run that ends well.
  Json Result(const std::string& arguments) const {
    const Outcome outcome = Run("run --json - " + arguments);
    EXPECT_EQ(outcome.status, 0) << arguments << "\n" << outcome.err;
    return Json::parse(outcome.out, nullptr, false);
  }

  TemporaryFolder streams_;
};

// What must be the same in two runs that see the same dice.
Json Played(Json result) {
  for (const char* key : {"seconds", "rng", "seed", "stop_reason", "messages"})
    result.erase(key);
  return result;
}

Json Keys(const Json& object) {
  Json keys = Json::array();
  for (const auto& item : object.items())
    keys.push_back(item.key());
  return keys;
}

constexpr const char* Bets =
    "--player Ann=5000 --player Bob@4 --bet 'Pass Line=10@1' --bet 'Pass Line Odds=20@1' "
    "--bet 'Place 6=12@1' --bet 'Hard 8=1@1' --bet 'Don'\"'\"'t Pass=5@4' --bet Field=2.5@4 ";

TEST_F(Sim, RefusesWhatCannotBeDoneInOneSentence) {
  Write("bad.rol", std::string("\x90\x90\x1d", 3));
  std::filesystem::create_directory(Path("folder"));
  Write("kept.json", "old");
  const std::pair<std::string, const char*> cases[] = {
      {"check a.bet", "The script \"a.bet\" does not exist"},
      {"check folder", "The script \"folder\" does not exist"},
      {"run --script=a.bet", "The script \"a.bet\" does not exist"},
      {"run --script bad.rol@9", "Place 9 does not exist"},
      {"run --player Ann --script bad.rol@2", "no player at place 2 for the script"},
      {"run --script bad.rol --script bad.rol@1", "place 1 has a script already"},
      {"run --script bad.rol --record bad.rol", "cannot be the script as well"},
      {"run --probability a.prb", "\"a.prb\" does not exist"},
      {"advantage --probability bad.rol", "not a true Tessarel Probability File"},
      {"advantage --set NoSuchField=1", "NoSuchField"},
      {"advantage --payoff 'Hard 8=0:1'", "must be positive"},
      {"run --bet Field=5 --sessions-log bad.rol", "The folder \"bad.rol\" cannot be made"},
      {"run --player a/b --player a_b --sessions-log .", "cannot be the sessions log as well"},
      {"run --player A --sessions-log . --json a.slg", "cannot be the result as well"},
      {"run --save nowhere/a.tsg", "its folder does not exist"},
      {"run --save a.tsg --json a.tsg", "cannot be the result as well"},
      {"run --new a.tsg", "The game \"a.tsg\" does not exist"},
      {"run bad.rol", "\"bad.rol\" cannot be opened: This is not a Tessarel game file."},
      {"run --home nowhere", "The folder \"nowhere\" does not exist"},
      {"run --player Ann --player aNN", "There's already a player named aNN."},
      {"run --player 123", "A player's name can't be all numeric"},
      {"run --player Ann@9", "Place 9 does not exist"},
      {"check --player Ann@2 --player Bob@2 bad.rol", "Place 2 is taken by Ann"},
      {"run --player A1 --player A2 --player A3 --player A4 --player A5 --player A6 --player A7 "
       "--player A8 --player A9",
       "only eight places"},
      {"run --player Ann=10000000", "beyond the limits"},
      {"run --bet Pass=5", "no bet named \"Pass\""},
      {"run --bet 'Pass Line=-5'", "cannot be below zero"},
      {"run --bet 'Pass Line=99999999999999999999'", "no amount of money"},
      {"run --bet 'Pass Line=5@2'", "no player at place 2"},
      {"run --bet Fire=5 --set UseFireBet=0 --events-log new.txt", "off the layout"},
      {"run --set NoSuch=1", "no setting named \"NoSuch\""},
      {"run --set BarNumber=3", "BarNumber must be 2 or 12"},
      {"run --player Ann --set DoBias@5=1", "place 5, where nobody plays"},
      {"run --rolls 2000000001", "0 to 2,000,000,000"},
      {"run --hands 99999999999999999999", "out of limits"},
      {"run --seed 0", "seed value is out of limits"},
      {"run --seed 2147483648", "1 to 2147483647"},
      {"run --rng 0", "generators are 1 to 8"},
      {"dice --rng 9 --seed 1 --count 1", "generators are 1 to 8"},
      {"dice --rng 1 --seed 1 --count -1", "out of limits"},
      {"run --rng 4 --seed 2147332759", "Overflow, Error #6 occurred at: SeedRNG"},
      {"run --answers nowhere", "The answers file \"nowhere\" cannot be read: File not found."},
      {"run --dice nowhere", "\"nowhere\" does not exist"},
      {"run --dice folder", "\"folder\" is not an ordinary file"},
      {"run --record folder", "The recording \"folder\" cannot be written: it is a folder"},
      {"run --record no/x.rol", "its folder does not exist"},
      {"run --events-log no/x.txt", "its folder does not exist"},
      {"run --json folder", "The result \"folder\" cannot be written: it is a folder"},
      {"run --record x.rol --json ./x.rol", "cannot be the result as well"},
      {"run --dice bad.rol --events-log bad.rol", "cannot be the dice roll file as well"},
      {"run --rolls 5 --bet 'Pass Line=5' --json kept.json --answers nowhere", "nowhere"},
  };
  for (const auto& [arguments, says] : cases) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_EQ(outcome.err.substr(0, 14), "tessarel-sim: ") << arguments;
    EXPECT_NE(outcome.err.find(says), std::string::npos) << arguments << "\n" << outcome.err;
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
  }
  EXPECT_EQ(folder_.EntryCount(), 3);
  EXPECT_EQ(Read("kept.json"), "old");
}

TEST_F(Sim, AnswersAWrongCommandLineWithTheUsageLine) {
  // clang-format off
  const char* const lines[] = {
      "", "play", "run --nosuch", "run --nosuch --player Ann@9", "run --rolls", "run --rolls ten",
      "run --rolls 1.5", "run --rolls ''", "run --rolls 5 --rolls 6", "run --hands 1x",
      "run --seed x", "run --seed 0x10", "run --rng one", "run --mode slow", "run --mode 1",
      "run --json ''", "run --player Ann@x", "run --player Ann=much", "run --script a.bet@one",
      "run --script ''", "check", "advantage --set BarNumber", "check a.bet b.bet",
      "check --tokens=all a.bet", "run --bet Field", "run --bet Field=", "run --bet Field=5@here",
      "run --set MinPlacardBet", "run --payoff 'Place 6'", "run --dice a.rol --record b.rol",
      "run --quiet=5x", "run --new", "run a.tsg b.tsg", "dice --rng 1 --seed 1",
      "dice --rng 1 --seed 1 --count x", "dice --rng 1 --seed 1 --count 1 more",
      "dice --rng 3 --seed 1 --count 1 --raw"};
  // clang-format on
  for (const char* arguments : lines) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_NE(outcome.err.find("\nUsage: tessarel-sim "), std::string::npos) << arguments;
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 2) << outcome.err;
  }
  EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(Sim, HelpIsNoFault) {
  for (const char* arguments : {"--help", "run --help", "dice --help"}) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_NE(outcome.out.find("dice"), std::string::npos) << outcome.out;
  }
}

// The dice come from a roll file, whose place the game keeps; the script counts on in its stacks.
TEST_F(Sim, SavedGameGoesOnWhereItStood) {
  Write("a.bet",
        "if cs0 is 0 then\n  cs0 = 5\nendif\ncs1 = cs1 + 1\n"
        "if next roll is a comeout roll then\n  bet cs0 on passline\n  cs0 = cs0 + 1\nendif\n");
  Result("--rolls 600 --set BetNeededToShoot=0 --record dice.rol --seed 3");
  const std::string players = std::string(Bets) + "--set BetNeededToShoot=0 --player Cy=9000 " +
                              "--script a.bet@2 --dice dice.rol ";
  const std::string wagers = std::string(Bets).substr(std::string(Bets).find("--bet"));
  const Json whole = Played(Result(players + "--rolls 600"));
  Result(players + "--rolls 250 --save a.tsg");
  const std::string saved = Read("a.tsg");
  Result("a.tsg --rolls 0 --save b.tsg");
  EXPECT_TRUE(Read("b.tsg") == saved);
  EXPECT_EQ(Played(Result("a.tsg --rolls 350 " + wagers)), whole);
  // Once in the initialising cycle and once a roll.
  EXPECT_EQ(whole["players"][1]["checkstacks"][1]["amount"], 601);

  const Json fresh = Result("--new a.tsg --rolls 10 --save a.tsg");
  EXPECT_EQ(fresh["roll_counts"][0], 10);
  EXPECT_EQ(fresh["players"].size(), 3u);
  EXPECT_NE(Run("run a.tsg --rolls 0 --report -").out.find("Game file:  a.tsg"), std::string::npos);
  std::filesystem::remove(Path("a.bet"));
  const Outcome outcome = Run("run b.tsg");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("Cy's script"), std::string::npos) << outcome.err;
}

TEST_F(Sim, DiceAreThoseOfTheTable) {
  EXPECT_EQ(Run("dice --rng 1 --seed 5 --count 0").out, "");
  for (const char* rng : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
    const std::string generator = std::string("--rng ") + rng + " --seed 4711 ";
    Result(generator + "--rolls 300 --set BetNeededToShoot=0 --record table.rol");
    std::string dice;
    for (const char byte : Read("table.rol")) {
      dice += std::to_string((byte & 28) / 4) + " " + std::to_string((byte & 224) / 32) + "\n";
    }
    EXPECT_EQ(Run("dice --count 300 " + generator).out, dice) << rng;
  }
  // The published first word of the generator from the seed 5489 is 3499211612.
  const std::string words = Run("dice --rng 1 --seed 5489 --count 3 --raw").out;
  EXPECT_EQ(words.size(), 12u);
  EXPECT_EQ(words.substr(0, 4), "\x5c\xbb\x91\xd0");
}

TEST_F(Sim, ResultHasItsKeysInOrderAndExactMoney) {
  const Json result = Result(std::string(Bets) +
                             "--set Denomination=0.5,1,5,25,100 --rolls 400 "
                             "--seed 77");
  ASSERT_EQ(result["players"].size(), 2u);
  const Json &bob = result["players"][1], &field = bob["results"][1];
  const std::pair<Json, const char*> keys[] = {
      {result, R"(["version","rolls","sessions","hands","seconds","rng","seed","stop_reason",)"
               R"("messages","table","players","roll_counts","hand_figures"])"},
      {result["table"], R"(["Point","LastPoint","Shooter","LastShooter","Die1","Die2","DiceTotal",)"
                        R"("MarkedNumbers","FourRollCount","FirePointsMask","FirePoints",)"
                        R"("SharpShooterPoints","RideTheLinePasses"])"},
      {result["hand_figures"], R"(["HandCount","RollTotal","MostRolls","MostComeoutRolls",)"
                               R"("MostPasses","MostMisses"])"},
      {bob, R"(["place","name","Bankroll","BankrollBegin","BankrollHigh","BankrollLow",)"
            R"("InvestedBankroll","MoneyOnTable","bets","checkstacks","results"])"},
      {result["players"][0]["bets"][0],
       R"(["bet","name","amount","contract","working","vig","streak"])"},
      {field, R"(["bet","name","tendered","won","lost"])"},
      {field["won"], R"(["count","sum","high","low","last_roll","last"])"}};
  for (const auto& [object, names] : keys)
    EXPECT_EQ(Keys(object).dump(), names);
  EXPECT_EQ(bob["place"], 4);
  EXPECT_EQ(result["roll_counts"].size(), 91u);
  EXPECT_EQ(result["roll_counts"][0], 400);

  EXPECT_EQ(field["name"], "Field");
  EXPECT_EQ(field["tendered"]["sum"].dump(), "1000");
  EXPECT_EQ(field["tendered"]["high"].dump(), "2.5");
  double net = 0;
  for (const Json& bet : bob["results"])
    net += bet["won"]["sum"].get<double>() - bet["lost"]["sum"].get<double>();
  EXPECT_EQ(bob["Bankroll"].get<double>(), 1000 + net);
}

TEST_F(Sim, SameCommandLineGivesTheSameBytesInEitherMode) {
  const std::string line = std::string("run --rolls 3000 --seed 99 ") + Bets;
  const Outcome first = Run(line);
  EXPECT_EQ(first.status, 0);
  EXPECT_EQ(first.err, "");
  EXPECT_EQ(Run(line).out, first.out);
  EXPECT_EQ(Run(line + "--mode table").out, first.out);
  EXPECT_NE(first.out.find("Ann (place 1)"), std::string::npos);

  const std::string logged = std::string(Bets) + "--rolls 200 --seed 99 --events-log ";
  EXPECT_EQ(Played(Result(logged + "hyper.txt")),
            Played(Result(logged + "table.txt --mode table")));
  const auto withoutTime = [](const std::string& log) { return log.substr(log.find('\n')); };
  const std::string log = withoutTime(Read("hyper.txt"));
  EXPECT_NE(log.find("Roll #200:"), std::string::npos);
  EXPECT_TRUE(log == withoutTime(Read("table.txt")));
}

TEST_F(Sim, ReplayOfARecordingGivesTheSameResult) {
  const std::string bets = std::string(Bets) + "--bet Come=5@1 ";
  for (const char* mode : {"", "--mode table "}) {
    const Json recorded = Result(bets + "--rolls 1234 --seed 31 --record run.rol " + mode);
    EXPECT_EQ(Read("run.rol").size(), 1234u);
    const Json replayed = Result(bets + "--dice run.rol " + mode);
    EXPECT_EQ(Played(recorded), Played(replayed));
    EXPECT_EQ(replayed["stop_reason"], "Stopped due to end of Dice Roll File reached.");
    EXPECT_EQ(recorded["stop_reason"], "");
    EXPECT_EQ(Result(bets + "--dice run.rol --rolls 34 " + mode)["rolls"], 34);
  }
}

TEST_F(Sim, RunEndsWhereItsDiceEnd) {
  const std::string hardEight(1, '\x90');
  const std::string end = "Stopped due to end of Dice Roll File reached.";
  const std::tuple<std::string, int, std::string> cases[] = {
      {"", 0, end},
      {hardEight + hardEight, 2, end},
      {hardEight + hardEight + '\x1d' + hardEight, 2,
       "Stopped due to Dice Roll File value out of limits."}};
  for (const auto& [bytes, rolls, reason] : cases) {
    Write("play.rol", bytes);
    for (const char* mode : {"hyper", "table"}) {
      const Json result = Result("--bet Field=5 --set BetNeededToShoot=2 --dice play.rol --mode " +
                                 std::string(mode));
      EXPECT_EQ(result["rolls"], rolls) << mode;
      EXPECT_EQ(result["stop_reason"], reason) << mode;
      EXPECT_TRUE(result["players"][0]["bets"].empty()) << "bet for a roll that did not come";
      EXPECT_EQ(result["players"][0]["Bankroll"], 1000 - 5 * rolls);
    }
  }
}

TEST_F(Sim, CountsEndARun) {
  const std::string bet = "--bet 'Pass Line=5' --seed 8 --set AllowNegBankroll=1 ";
  EXPECT_EQ(Result(bet)["rolls"], 100'000);
  EXPECT_EQ(Result(bet + "--hands 7")["hands"], 7);
  EXPECT_EQ(Result(bet + "--hands 7 --rolls 10")["rolls"], 10);
  EXPECT_EQ(Result(bet + "--hands 1 --rolls 1000")["hands"], 1);
  const Json nothing = Result(bet + "--rolls 0");
  EXPECT_EQ(nothing["players"][0]["bets"].size(), 0u);
  EXPECT_EQ(nothing["table"]["DiceTotal"], 0);
  const Json stopped = Result(bet + "--set AutoStopRolls=25");
  EXPECT_EQ(stopped["rolls"], 25);
  EXPECT_EQ(stopped["stop_reason"], "Stopped by Auto-Stop.");
}

TEST_F(Sim, RefusedRollEndsTheRunWithItsReason) {
  const Outcome outcome = Run("run --player Ann --mode table --json -");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err.substr(0, 83),
            "[Line Bet Required] A line bet is required to shoot. /  / Ann must make a Pass Line");
  const Json result = Json::parse(outcome.out);
  EXPECT_EQ(result["stop_reason"], "Shooter has no line bet.");
  ASSERT_EQ(result["messages"].size(), 1u);
  EXPECT_EQ(result["messages"][0]["title"], "Line Bet Required");
  EXPECT_NE(std::string(result["messages"][0]["text"]).find("shoot.\r\rAnn"), std::string::npos);

  const Outcome hyper = Run("run --player Ann --json -");
  EXPECT_EQ(hyper.err, "");
  EXPECT_TRUE(Json::parse(hyper.out)["messages"].empty());
  EXPECT_NE(Run("run").out.find("No players are available to bet."), std::string::npos);

  for (const char* mode : {"hyper", "table"}) {
    const std::string broke = Result(
        "--player Ann=9999998 --set MaxPlacardBet=5000 --bet Field=5000 "
        "--set BetNeededToShoot=0 --seed 4 --mode " +
        std::string(mode))["stop_reason"];
    EXPECT_NE(broke.find("the max bankroll limit of $9,999,999"), std::string::npos) << mode;
  }
}

TEST_F(Sim, PromptsTakeTheAnswersInOrder) {
  Write("answers", "much\n99999999\n2500.5\r\n70\n");
  const std::string ask = "--player Ann --player Bob --set BankrollInitType=1 --rolls 0 ";
  const Json answered = Result(ask + "--mode table --answers answers")["players"];
  EXPECT_EQ(answered[0]["Bankroll"].dump(), "2500.5");
  EXPECT_EQ(answered[1]["Bankroll"], 70);
  EXPECT_EQ(Result(ask + "--mode table")["players"][0]["Bankroll"], 1000);
}

TEST_F(Sim, CheckPrintsTokensOrWhereTheScriptIsWrong) {
  Write("good.bet", "bet 2.5 on passline\r\n'1 / 3\n");
  EXPECT_EQ(Run("check good.bet").out, "");
  const std::string stream = "-3 0\n101 0\n-61 481\n-31 2.5\n57 0\n-11 43\n";
  const Outcome translated = Run("check --tokens=translated good.bet");
  EXPECT_EQ(translated.out.substr(0, stream.size()), stream);
  EXPECT_EQ(Run("check --tokens=translated --player Ann@6 good.bet").out.substr(0, 5), "-3 6\n");
  Write("bad.bet", "'first\nbet 5 on nonsense\n");
  for (const char* tokens : {"", "--tokens ", "--tokens=translated "}) {
    const Outcome bad = Run(std::string("check ") + tokens + "./bad.bet");
    EXPECT_EQ(bad.status, 1) << tokens;
    EXPECT_EQ(bad.out.substr(0, 22), "./bad.bet:2:10: error:") << tokens;
    EXPECT_EQ(std::ranges::count(bad.out, '\n'), 1) << bad.out;
    EXPECT_EQ(bad.err, "") << tokens;
  }
  const Outcome run = Run("run --script good.bet --player Ann --player Bob --script bad.bet@2");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "tessarel-sim: bad.bet:2:10: error: Unknown or misplaced element: / nonsense\n");
}

TEST_F(Sim, EverySessionInitialisesTheScripts) {
  std::filesystem::create_directory(Path("a@b.c"));
  Write("a@b.c/count.bet",
        "if initializing script then\nadd 1 to checkstack5\nelse\nadd 1 to checkstack6\nendif\n");
  const Json result = Result(
      "--player Ann --player Bob@3 --script count.bet --home a@b.c --script count.bet@3 "
      "--sessions 4 --rolls 2 --set BetNeededToShoot=0");
  const Json stacks =
      Json::parse(R"([{"stack":5,"name":"","amount":4},{"stack":6,"name":"","amount":8}])");
  for (const Json& player : result["players"])
    EXPECT_EQ(player["checkstacks"], stacks);
}

TEST_F(Sim, FilesComeFromTheHomeFolderAndAppearWhole) {
  std::filesystem::create_directory(Path("home"));
  Write("home/run.rol", "old recording");
  const Outcome outcome =
      Run("run --home home --rolls 20 --quiet --record run.rol --json run.json "
          "--events-log log.txt --bet 'Pass Line=5'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
  EXPECT_EQ(Read("home/run.rol").size(), 20u);
  EXPECT_EQ(Json::parse(Read("home/run.json"))["rolls"], 20);
  EXPECT_NE(Read("home/log.txt").find("New session started"), std::string::npos);
  EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(Sim, AFailingDiskLeavesTheOldFiles) {
  const std::string before = "trap '' XFSZ; ulimit -f 8;";  // files of 4 KiB in POSIX shells
  Write("old.rol", "old recording");
  Write("old.json", "old result");
  const std::string line = "run --bet 'Pass Line=5' --quiet --rolls ";
  for (const char* files : {"200000 --record old.rol --json old.json", "30000 --record old.rol",
                            "5000 --events-log log.txt --record old.rol --json old.json"}) {
    const Outcome outcome = Run(line + files, before);
    EXPECT_EQ(outcome.status, 1) << files;
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("tessarel-sim: The r"), std::string::npos) << outcome.err;
    EXPECT_EQ(Read("old.rol"), "old recording");
    EXPECT_EQ(Read("old.json"), "old result");
  }
  EXPECT_EQ(Run("run --rolls 5 --bet Field=1 --json old.json", "trap '' XFSZ; ulimit -f 0;").status,
            1);
  EXPECT_EQ(Read("old.json"), "old result");
}

TEST_F(Sim, WagerWithoutAPlaceIsMadeByEveryPlayer) {
  const Json result = Result(
      "--player A --player B@6 --bet Field=5 --set BetNeededToShoot=0 "
      "--rolls 20 --seed 1");
  for (const Json& player : result["players"])
    EXPECT_EQ(player["results"][0]["tendered"]["count"], 20);
}

TEST_F(Sim, SessionsFollowOneAnotherWithTheirEnds) {
  const Json result = Result(
      "--player A=500 --player B@5=100 --bet 'Pass Line=10' --bet 'Pass Line=50@5' --sessions 40 "
      "--rolls 200 --seed 9");
  EXPECT_EQ(result["sessions"], 40);
  ASSERT_EQ(result["by_session"].size(), 80u);
  int ruined = 0;
  for (const Json& end : result["by_session"]) {
    EXPECT_LE(end["BankrollLow"], end["Bankroll"]);
    EXPECT_LE(end["Bankroll"], end["BankrollHigh"]);
    EXPECT_GE(end["BankrollHigh"], end["place"] == 1 ? 500 : 100);
    if (end["Bankroll"] == 0) ++ruined;
  }
  EXPECT_GT(ruined, 0);
  const Json& last = result["by_session"][79];
  EXPECT_EQ(last["session"], 40);
  EXPECT_EQ(last["Bankroll"], result["players"][1]["Bankroll"]);
  EXPECT_FALSE(Result("--rolls 0").contains("by_session"));
}

TEST_F(Sim, EverySessionGoesIntoTheLogOfEachPlayerIfLogsAreAskedFor) {
  const std::string run =
      "run --quiet --player 'Ann B' --player C --bet Field=5 --set BetNeededToShoot=0 "
      "--sessions 3 --rolls 20 --home .";
  EXPECT_EQ(Run(run).status, 0);
  EXPECT_FALSE(std::filesystem::exists(Path("ann b.slg")));
  for (const size_t sessions : {3, 6}) {
    EXPECT_EQ(Run(run + " --sessions-log new/logs").status, 0);
    for (const auto* log : {"new/logs/ann b.slg", "new/logs/c.slg"})
      EXPECT_EQ(Read(log).size(), 256 * (sessions + 1));
  }
  // Going on with a game logs its session anew when it rolls, as a whole.
  Run(run + " --save a.tsg --sessions-log saved");
  const std::pair<const char*, std::vector<int>> continued[] = {
      {"a.tsg --rolls 0", {20, 20, 20}},
      {"a.tsg --rolls 5 --save b.tsg", {20, 20, 25}},
      {"b.tsg --new --rolls 2", {20, 20, 25, 2}},
      {"a.tsg --rolls 6", {20, 20, 25, 2, 26}},
  };
  for (const auto& [arguments, rolls] : continued) {
    EXPECT_EQ(Run(std::string("run --quiet --sessions-log saved ") + arguments).status, 0);
    for (const auto* log : {"saved/ann b.slg", "saved/c.slg"}) {
      std::vector<int> logged;
      for (const Session& session : ReadSessions(Path(log)))
        logged.push_back(static_cast<int>(session[SessionRolls].Floor()));
      EXPECT_EQ(logged, rolls) << log << " " << arguments;
    }
  }
  Write("new/logs/c.slg", "precious");
  const Outcome refused = Run(run + " --sessions-log new/logs");
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.err.find("is not a true Tessarel Sessions Log"), std::string::npos);
  EXPECT_EQ(Read("new/logs/c.slg"), "precious");
}

TEST_F(Sim, ProbabilityFileSkewsDiceAndAdvantage) {
  Probability.ProbabilityMatrix.Shares = {};
  for (const auto& [face, share] : {std::pair(2, 60'000), std::pair(6, 40'000)}) {
    const MatrixCell cell = CellOfFaces({face, face});
    for (const int column : {cell.Column, TotalColumn})
      At(At(Probability.ProbabilityMatrix.Shares, column), cell.Row) = share;
  }
  SaveProbabilityFile(Path("two.prb"));
  const std::string dice = Run("dice --rng 2 --seed 5 --count 1000 --probability two.prb").out;
  EXPECT_EQ(std::ranges::count(dice, '2') + std::ranges::count(dice, '6'), 2000);
  EXPECT_NEAR(static_cast<double>(std::ranges::count(dice, '6') / 2), 400, 80);
  const Json counts = Result(
      "--set BetNeededToShoot=0 --player A --rolls 500 --probability two.prb")["roll_counts"];
  EXPECT_EQ(counts[4].get<int>() + counts[12].get<int>(), 500);
  const Json advantage = Json::parse(Run("advantage --json --probability two.prb").out);
  EXPECT_DOUBLE_EQ(advantage[51]["EvPerDec"], 7);  // Hard 4 cannot lose
}

TEST_F(Sim, ReportShowsTheViewsOfTheRun) {
  const std::string arguments =
      "run --player Ann=1000 --bet 'Pass Line=10' --rolls 50 --seed 3 --quiet --report ";
  const Outcome shown = Run(arguments + "-");
  EXPECT_EQ(shown.status, 0);
  for (const char* part : {"Tessarel", "\nPass Line ", "Expected value $-", "Comps $"})
    EXPECT_NE(shown.out.find(part), std::string::npos) << part << "\n" << shown.out;
  EXPECT_EQ(Run(arguments + "night.txt").out, "");
  EXPECT_EQ(Read("night.txt"), shown.out);
}

TEST_F(Sim, SettleBetPromptIsAskedInTableMode) {
  Write("two.rol", "\x98\xb4");  // 6-4, then 5-5
  Write("answers", "5 50 + u1\n3\n");
  const Json result = Result(
      "--mode table --player Ann=1000 --set BetNeededToShoot=0 --set Notices=0 --bet Field=10 "
      "--rolls 1 --dice two.rol --answers answers");
  EXPECT_EQ(result["messages"][0]["title"], "Ann Won");
  EXPECT_EQ(result["messages"][0]["text"], "Field $10\rPayoff at 1 to 1: $10\rNet payoff: $10");
  EXPECT_EQ(result["players"][0]["bets"][0]["amount"], 15);
}

TEST_F(Sim, CtrlCStopsAfterTheRollWithTheResultsSoFar) {
  for (const char* mode : {"hyper", "table"}) {
    const Outcome outcome = Interrupt(
        "run --rolls 2000000000 --bet 'Pass Line=5' --set AllowNegBankroll=1 "
        "--record run.rol --json - --mode " +
        std::string(mode));
    EXPECT_EQ(outcome.status, 0) << mode;
    const Json result = Json::parse(outcome.out, nullptr, false);
    ASSERT_TRUE(result.is_object()) << mode;
    EXPECT_EQ(result["stop_reason"], "interrupted");
    EXPECT_GT(result["rolls"], 0);
    EXPECT_EQ(result["rolls"], Read("run.rol").size());
  }
}

TEST_F(Sim, CtrlCEndsAScriptThatGoesOnForEver) {
  const std::string loop = "open/clear file for output \"begun\"\noutput to file 1\ndo\nloop\n";
  Write("at once.bet", loop);
  Write("later.bet", "bet 5 on passline\nif # of rolls > 5 then\n" + loop + "endif\n");
  for (const auto& [script, rolls] : {std::pair("at once", 0), std::pair("later", 6)}) {
    for (const char* mode : {"hyper", "table"}) {
      const Outcome outcome = Interrupt("run --rolls 10 --json - --script '" + std::string(script) +
                                        ".bet' --mode " + mode);
      EXPECT_EQ(outcome.status, 0) << script << mode;
      EXPECT_EQ(Json::parse(outcome.out, nullptr, false)["rolls"], rolls) << script << mode;
    }
  }
}

TEST_F(Sim, ScriptErrorsAreToldAtTheTable) {
  Write("deep.bet", "\"Down\":\nif # of rolls = 1 then\ngosub \"Down\"\nendif\n");
  const std::string run =
      "run --script deep.bet --set BetNeededToShoot=0 --rolls 1 --quiet --mode ";
  const Outcome outcome = Run(run + "table");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err.substr(0, 44), "[Auto-Bet] deep.bet:3: Overflow, Error #6 / ");
  EXPECT_EQ(Run(run + "hyper").err, "");
}

TEST_F(Sim, FixedWagersWaitForTheEndOfALongCycle) {
  Write("long.bet",
        "bet 0 on field\ncs1 = 0\ndo\nadd 1 to cs1\nif cs1 > 5000 then\nexitdo\nendif\nloop\n"
        "if field > 0 then\nadd 1 to cs2\nendif\n");
  const Json player = Result(
      "--script long.bet --bet Field=5 --rolls 3 --set BetNeededToShoot=0 "
      "--player Ann --seed 1")["players"][0];
  EXPECT_EQ(player["checkstacks"].size(), 1u) << player["checkstacks"];
  EXPECT_EQ(player["results"][0]["tendered"]["count"], 3);
}

TEST_F(Sim, CountsGoOnInTheSessionsThatAScriptStarts) {
  Write("again.bet", "bet 5 on passline\nif # of rolls = 50 then\nstart new session\nendif\n");
  const std::string run =
      "--script again.bet --set AllowReset=1 --seed 1 --record run.rol --rolls ";
  const Json result = Result(run + "120");
  EXPECT_EQ(result["rolls"], 120);
  EXPECT_EQ(result["sessions"], 3);
  EXPECT_EQ(result["by_session"].size(), 3u);
  EXPECT_EQ(Read("run.rol").size(), 120u);
  const Json played = Result("--script again.bet --set AllowReset=1 --dice run.rol");
  EXPECT_EQ(played["rolls"], 50) << "the session that the script starts closes the file";
}

TEST_F(Sim, AScriptThatTakesTheRecorderEndsTheRecordedRun) {
  Write("other.rol", "\x90");
  Write("take.bet", "bet 5 on passline\nplayback dice roll file \"other.rol\"\n");
  const Outcome outcome =
      Run("run --script take.bet --set AllowActProb=1 --record run.rol --rolls 9 --set "
          "BetNeededToShoot=0");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("a script has ended the recording"), std::string::npos) << outcome.err;
  EXPECT_FALSE(std::filesystem::exists(Path("run.rol")));
}

TEST_F(Sim, AdvantagePrintsALineForEachBetUnderTheRulesAskedFor) {
  const std::string table = Run("advantage").out;
  EXPECT_EQ(std::ranges::count(table, '\n'), 94);
  EXPECT_NE(table.find("\n43  Pass Line                -0.4189%     54.4243%     -1.4141%"
                       "     99.9900%         3.38\n"),
            std::string::npos)
      << table;
  const std::pair<const char*, const char*> cases[] = {
      {"", R"({"bet":43,"name":"Pass Line","EvPerRoll":-0.004189,"EvPerDec":-0.014141,)"},
      {"--zero-outcomes", R"("name":"Hard 8","EvPerRoll":-0.027778,"EvPerDec":-0.027778,)"},
      {"--payoff 'Hard 8=10:1'", R"("name":"Hard 8","EvPerRoll":0.0,"EvPerDec":0.0,)"},
      {"--set LayVigPct=0", R"("name":"Lay 4","EvPerRoll":0.0,"EvPerDec":0.0,)"}};
  for (const auto& [options, expected] : cases) {
    const Outcome outcome = Run(std::string("advantage --json ") + options);
    EXPECT_EQ(outcome.status, 0) << options;
    EXPECT_NE(outcome.out.find(expected), std::string::npos) << options;
  }
}

}  // namespace
}  // namespace tessarel
