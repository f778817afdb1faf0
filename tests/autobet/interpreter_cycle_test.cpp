#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autobet/interpreter.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

std::vector<std::string> Shown;

void ActivateScript(const TemporaryFolder& folder, std::vector<std::string> lines) {
  StartUp(folder.Path());
  FrontEnd = {};
  SeatPlayer(1, "Ann", 1000);
  Scripts.Places[1].lines = std::move(lines);
  SetScriptActive(1, true);
  CheckScriptErrors();
}

// The line and the text of each step of a script of one player.
std::vector<std::string> StepsOf(std::vector<std::string> lines) {
  const TemporaryFolder folder;
  ActivateScript(folder, std::move(lines));
  Shown.clear();
  FrontEnd.ShowStep = [](const ScriptStep& step) {
    Shown.push_back(std::to_string(step.line) + " " + OnOneLine(step.text));
  };
  AutoBet.ShowSteps = true;
  RunAutoBet();
  FrontEnd = {};
  AutoBet.ShowSteps = false;
  return Shown;
}

TEST(ScriptCycle, TellsOnceWhereAJumpLeads) {
  const std::vector<std::string> wanted = {
      "1 Beginning of condition block.",
      "1 Condition is true.",
      "1 End of condition block and beginning of action block. / Conditions were true, so next "
      "action block will be performed.",
      "2 A jump will be made to the designated subroutine. / Label.",
      "8 Action taken.",
      "9 Return to place where subroutine was initiated.",
      "3 End of action block. / End of If/Then structure.",
      "6 A jump will be made to the designated label. / Label.",
  };
  EXPECT_EQ(StepsOf({"if 1 = 1 then", "gosub 5", "else", "cs1 = 2", "endif", "goto \"end\"",
                     "5:", "cs1 = 1", "return", "\"end\""}),
            wanted);
}

TEST(ScriptCycle, RunsTheProgramItBeganWith) {
  const TemporaryFolder folder;
  ActivateScript(folder, {"show message \"a\"", "csn1 = \"a text that has its own memory\""});
  FrontEnd.ShowMessage = [] {
    Scripts.Places[1].lines = {"cs1 = 1"};
    CheckScriptErrors();
    EXPECT_FALSE(CompileHotKeyScript());
  };
  RunAutoBet();
  FrontEnd = {};
  EXPECT_EQ(Table.CheckStackName[1][1], "a text that has its own memory");
  EXPECT_FALSE(Scripts.ProgramReady);
}

TEST(ScriptCycle, TakesUpWhatChangesDuringTheHyperDrive) {
  const TemporaryFolder folder;
  ActivateScript(folder, {"cs1 = 1"});
  Settings.BetNeededToShoot = 0;
  Table.HyperDriveOn = true;
  FrontEnd.RunPendingEvents = [] {
    if (RollsInSession() == 1) {
      Scripts.Places[1].lines = {"cs2 = 2"};
      SetScriptActive(1, true);
    } else if (RollsInSession() == 3) {
      Scripts.Places[1].lines = {"cs2 ="};
      SetScriptActive(1, true);
    }
  };
  MakeRoll();
  FrontEnd = {};
  EXPECT_EQ(Bet(1, FirstStack + 1), Money(1));
  EXPECT_EQ(Bet(1, FirstStack + 2), Money(2));
  EXPECT_EQ(RollsInSession(), 3);
  EXPECT_FALSE(Table.HyperDriveOn);
  NewScript(1);
}

}  // namespace
}  // namespace tessarel
