#include "engine/unattended.h"

#include <string>
#include <string_view>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/dice_texts.h"
#include "texts/rail_texts.h"
#include "texts/roll_texts.h"

namespace tessarel {

namespace {

constexpr std::string_view LimitText = "9,999,999";

std::string WithReset(std::string text) {
  return std::move(text) + "\r\r" + LocalizedText(RollTexts.ResetTable);
}

}  // namespace

std::string StopText(StopCause cause) {
  switch (cause) {
    case StopCause::None:
      return "";
    case StopCause::NobodyToBet:
      return LocalizedText(RollTexts.NobodyToBet);
    case StopCause::ShooterWithoutLineBet:
      return LocalizedText(RollTexts.ShooterWithoutLineBet);
    case StopCause::ShooterWithoutBet:
      return LocalizedText(RollTexts.ShooterWithoutBet);
    case StopCause::MaximumRolls:
      return WithReset(LocalizedText(RollTexts.StoppedByMaximumRolls));
    case StopCause::NoGenerator:
      return LocalizedText(RollTexts.NoGenerator);
    case StopCause::AutoStop:
      return LocalizedText(RollTexts.StoppedByAutoStop);
    case StopCause::BelowBankrollLimit:
      return WithReset(FillIn(RailTexts.StoppedBelowLimit, {LimitText}));
    case StopCause::AboveBankrollLimit:
      return WithReset(FillIn(RailTexts.StoppedAboveLimit, {LimitText}));
    case StopCause::BankrollLimitOfGonePlayer:
      return LocalizedText(RollTexts.ResetTable);
    case StopCause::ScriptCommand:
      return LocalizedText(RollTexts.StoppedByCommand);
    case StopCause::ScriptInterrupted:
      return LocalizedText(RollTexts.AutoBettingInterrupted);
    case StopCause::InvalidRoll:
      return LocalizedText(DiceTexts.StoppedByInvalidRoll);
    case StopCause::EndOfRollFile:
      return LocalizedText(DiceTexts.StoppedByEndOfFile);
    case StopCause::NothingToDraw:
      return LocalizedText(DiceTexts.NothingToDraw);
    case StopCause::PopupRollFault:
      return Table.StopFault;
  }
  return "";
}

void StopUnattended() {
  if (!RunIsOn()) return;
  Table.AutoRollOn = Table.HyperDriveOn = false;
  if (Table.Stop != StopCause::None) {
    ShowMessage(StopText(Table.Stop), LocalizedText(RollTexts.HyperDriveStopped), msg::OkAlert,
                help::AutoRoll);
  }
  FrontEnd.DrawTable();
  FrontEnd.RefreshViews();
}

}  // namespace tessarel
