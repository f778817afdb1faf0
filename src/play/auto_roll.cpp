#include "play/auto_roll.h"

#include <algorithm>
#include <optional>
#include <string>

#include "autobet/values.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/money.h"
#include "engine/unattended.h"
#include "play/roll_driver.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Numbers of the general text table.

constexpr Money LongestDelay = 300;  // seconds

bool Runs() {
  return Table.AutoRollOn || Table.HyperDriveOn;
}

void Start(UnattendedMode mode) {
  if (Runs() || Table.RollInProgress) return;
  Table.AutoRollOn = true;
  Table.HyperDriveOn = mode == UnattendedMode::HyperDrive;
  FrontEnd.DrawStatus();
  MakeRoll();
  StopUnattended();
}

// The number that the user types over the present one.
std::optional<Money> AskForNumber(std::string_view question, std::string_view title, Money now) {
  if (!AskForText(std::string(question), std::string(title), PlainText(now), help::AutoRoll))
    return std::nullopt;
  return ParseTypedMoney(Message.MsgInput);
}

}  // namespace

void ToggleAutoRoll(UnattendedMode mode) {
  Runs() ? StopAutoRoll() : Start(mode);
}

void StartAutoRoll() {
  Start(UnattendedMode::AutoRoll);
}

void StartHyperDrive() {
  Start(UnattendedMode::HyperDrive);
}

void StopAutoRoll() {
  StopUnattended();
}

std::string_view HyperDriveCaption() {
  return Wording(Table.HyperDriveOn ? Text::HyperDriveActive : Text::StartHyperDrive);
}

std::string_view AutoRollCaption() {
  const bool active = Table.AutoRollOn && !Table.HyperDriveOn;
  return Wording(active ? Text::AutoRollActive : Text::StartAutoRoll);
}

void AskSetAutoStop() {
  const auto rolls = AskForNumber(Wording(Text::AskAutoStop), Wording(Text::AutoStopTitle),
                                  Settings.AutoStopRolls);
  if (!rolls) return;
  Settings.AutoStopRolls = Money::FromWhole(std::clamp<int64_t>(rolls->Floor(), 0, MaxRolls));
}

void AskSetTimeDelay() {
  const auto delay = AskForNumber(Wording(Text::AskRollDelay), Wording(Text::AutoRollDelayTitle),
                                  Settings.RollDelay);
  if (delay) Settings.RollDelay = std::clamp(*delay, Money(), LongestDelay);
}

bool ConfirmScriptActive() {
  if (!AutoBet.ScriptRunning) return true;
  const std::string question =
      Say(Text::AskToStopAutoBetting) + "\r\r" +
      Say(Text::ScriptProcessing, Table.PlayerName[AutoBet.CurrentScriptPlayer]);
  const int32_t answer =
      ShowMessage(question, Say(Text::AutoBetActive), msg::AskNoDefault, help::BettingSystems);
  if (answer != AnswerYes) return false;
  InterruptAutoBetting();
  return true;
}

void InterruptAutoBetting() {
  AutoBet.ScriptRunning = false;
  AutoBet.AutoBetMessageStop = true;
  if (Table.HyperDriveOn) Table.Stop = StopCause::ScriptInterrupted;
  StopUnattended();
}

}  // namespace tessarel
