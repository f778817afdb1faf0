#include "engine/unattended.h"

#include <string>
#include <string_view>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr std::string_view LimitText = "9,999,999";

std::string WithReset(std::string text) {
  return std::move(text) + "\r\r" + Say(Text::ResetTable);
}

}  // namespace

std::string StopText(StopCause cause) {
  switch (cause) {
    case StopCause::None:
      return "";
    case StopCause::NobodyToBet:
      return Say(Text::NobodyToBet);
    case StopCause::ShooterWithoutLineBet:
      return Say(Text::ShooterWithoutLineBet);
    case StopCause::ShooterWithoutBet:
      return Say(Text::ShooterWithoutBet);
    case StopCause::MaximumRolls:
      return WithReset(Say(Text::StoppedByMaximumRolls));
    case StopCause::NoGenerator:
      return Say(Text::NoGenerator);
    case StopCause::AutoStop:
      return Say(Text::StoppedByAutoStop);
    case StopCause::BelowBankrollLimit:
      return WithReset(Say(Text::StoppedBelowLimit, LimitText));
    case StopCause::AboveBankrollLimit:
      return WithReset(Say(Text::StoppedAboveLimit, LimitText));
    case StopCause::BankrollLimitOfGonePlayer:
      return Say(Text::ResetTable);
    case StopCause::ScriptCommand:
      return Say(Text::StoppedByCommand);
    case StopCause::ScriptInterrupted:
      return Say(Text::AutoBettingInterrupted);
    case StopCause::InvalidRoll:
      return Say(Text::StoppedByInvalidRoll);
    case StopCause::EndOfRollFile:
      return Say(Text::StoppedByEndOfFile);
    case StopCause::NothingToDraw:
      return Say(Text::NoDiceToDraw);
    case StopCause::PopupRollFault:
      return Table.StopFault;
  }
  return "";
}

void StopUnattended() {
  if (!Table.AutoRollOn && !Table.HyperDriveOn) return;
  Table.AutoRollOn = Table.HyperDriveOn = false;
  if (Table.Stop != StopCause::None) {
    ShowMessage(StopText(Table.Stop), Say(Text::HyperDriveStopped), msg::OkAlert, help::AutoRoll,
                MessageKind::RunStopped);
  }
  FrontEnd.DrawTable();
  FrontEnd.RefreshViews();
}

}  // namespace tessarel
