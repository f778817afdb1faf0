#include "autobet/script_faults.h"

#include <algorithm>
#include <string_view>

#include "autobet/token_names.h"
#include "autobet/values.h"
#include "texts/say.h"

namespace tessarel {

namespace {

struct FaultRow {
  ScriptFault Fault;
  Text What;
  std::string_view Bet{}, Values{};  // of a bet function
};

constexpr std::string_view PointValues = "4,5,6,8,9,10";

// By number, ascending.
// clang-format off
constexpr FaultRow FaultRows[] = {
    {ScriptFault::LayBet, Text::RunBetLimits, "Lay", PointValues},
    {ScriptFault::DontComeBet, Text::RunBetLimits, "Don't Come", PointValues},
    {ScriptFault::DontComeOddsBet, Text::RunBetLimits, "Don't Come Odds", PointValues},
    {ScriptFault::ComeBet, Text::RunBetLimits, "Come", PointValues},
    {ScriptFault::ComeOddsBet, Text::RunBetLimits, "Come Odds", PointValues},
    {ScriptFault::PlaceBet, Text::RunBetLimits, "Place", PointValues},
    {ScriptFault::BuyBet, Text::RunBetLimits, "Buy", PointValues},
    {ScriptFault::BigBet, Text::RunBetLimits, "Big", "6,8"},
    {ScriptFault::HardBet, Text::RunBetLimits, "Hard", "4,6,8,10"},
    {ScriptFault::HopBet, Text::RunBetLimits, "Hop", "11-66 or 1.1-6.6"},
    {ScriptFault::NotAPlaceBet, Text::RunNotAPlaceBet},
    {ScriptFault::Stack, Text::RunStackLimits},
    {ScriptFault::MovingAverage, Text::RunMovingAverageLimits},
    {ScriptFault::Player, Text::RunPlayerLimits},
    {ScriptFault::ThruPlayers, Text::RunThruPlayers},
    {ScriptFault::ThruHands, Text::RunThruHands},
    {ScriptFault::ThruModifiers, Text::RunThruModifiers},
    {ScriptFault::SquareRoot, Text::RunSquareRoot},
    {ScriptFault::BankrollAverage, Text::RunBankrollAverageLimits},
    {ScriptFault::Precision, Text::RunPrecision},
    {ScriptFault::Die, Text::RunDieLimits},
    {ScriptFault::OddsFactorNumber, Text::RunOddsFactorNumber},
    {ScriptFault::FindInText, Text::RunFindInText},
    {ScriptFault::NoResolvedWagers, Text::RunNoResolvedWagers},
    {ScriptFault::NoWins, Text::RunNoWins},
    {ScriptFault::NoLosses, Text::RunNoLosses},
    {ScriptFault::StackName, Text::RunStackNameLimits},
    {ScriptFault::PlayerName, Text::RunPlayerNameLimits},
    {ScriptFault::NoPlayer, Text::RunNoPlayer},
    {ScriptFault::OtherPlayer, Text::RunOtherPlayer},
    {ScriptFault::NoNewSessions, Text::RunNoNewSessions},
    {ScriptFault::NoProbabilityFiles, Text::RunNoProbabilityFiles},
    {ScriptFault::NotTheShooter, Text::RunNotTheShooter},
    {ScriptFault::NoRollFiles, Text::RunNoRollFiles},
    {ScriptFault::WinHandling, Text::RunWinHandling},
    {ScriptFault::LossHandling, Text::RunLossHandling},
    {ScriptFault::SessionHasBegun, Text::RunSessionHasBegun},
    {ScriptFault::RollRate, Text::RunRollRate},
    {ScriptFault::Seed, Text::RunSeed},
    {ScriptFault::GeneratorMissing, Text::RunGeneratorMissing},
    {ScriptFault::Generator, Text::RunGeneratorLimits},
    {ScriptFault::CompRate, Text::RunCompRate},
    {ScriptFault::OddsFactor, Text::RunOddsFactor},
    {ScriptFault::OddsRatioUnknown, Text::RunOddsRatioUnknown},
    {ScriptFault::OddsNumeratorUnknown, Text::RunOddsNumeratorUnknown},
    {ScriptFault::OddsDenominatorUnknown, Text::RunOddsDenominatorUnknown},
    {ScriptFault::MessagesOff, Text::RunMessagesOff},
    {ScriptFault::SoundsOff, Text::RunSoundsOff},
    {ScriptFault::TextTooLong, Text::RunTextTooLong},
    {ScriptFault::NoVig, Text::RunNoVig},
    {ScriptFault::RollTotal, Text::RunRollTotal},
    {ScriptFault::PointNumber, Text::RunPointNumber},
    {ScriptFault::RollFileNotOpen, Text::RunRollFileNotOpen},
    {ScriptFault::OutputFileNotOpen, Text::RunOutputFileNotOpen},
    {ScriptFault::FileNotOpened, Text::UnableToOpenFile},
    {ScriptFault::BadFileName, Text::RunBadFileName},
    {ScriptFault::NotARollFile, Text::RunNotARollFile},
    {ScriptFault::NotAProbabilityFile, Text::RunNotAProbabilityFile},
    {ScriptFault::RollPair, Text::RunRollPair},
    {ScriptFault::RollFace, Text::RunRollFace},
    {ScriptFault::NoValue, Text::RunNoValue},
    {ScriptFault::NoString, Text::RunNoString},
    {ScriptFault::DivisionByZero, Text::RunDivisionByZero},
};
// clang-format on
static_assert(std::ranges::is_sorted(FaultRows, {}, &FaultRow::Fault));

// An argument of a text function, which has no text of its own.
bool IsOfTextFunction(ScriptFault fault) {
  return fault >= ScriptFault::FirstOfTextFunctions && fault <= ScriptFault::LastOfTextFunctions;
}

std::string TextFunctionText(ScriptFault fault) {
  const std::string name = FunctionName(static_cast<int32_t>(fault));
  return name.empty() ? name : Say(Text::RunTextFunctionLimits, name);
}

}  // namespace

std::string ScriptFaultText(ScriptFault fault) {
  if (fault == ScriptFault::Machinery) return AutoBet.FaultText;
  if (IsOfTextFunction(fault)) return TextFunctionText(fault);
  const auto* const row = std::ranges::lower_bound(FaultRows, fault, {}, &FaultRow::Fault);
  if (row == std::end(FaultRows) || row->Fault != fault) return {};
  return row->Bet.empty() ? SayChosen(row->What) : SayChosen(row->What, row->Bet, row->Values);
}

}  // namespace tessarel
