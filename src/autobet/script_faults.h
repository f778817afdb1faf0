// Why a statement of a running script has failed. The numbers are known to users: steps and tests
// show them, and an argument out of limits has the number of its function.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel {

// clang-format off
enum class ScriptFault : int32_t {
  None = 0,

  // An argument of the function of this number (function:: in autobet/word_numbers.h).
  LayBet = 1, DontComeBet = 2, DontComeOddsBet = 3, ComeBet = 4, ComeOddsBet = 5, PlaceBet = 6,
  BuyBet = 7, BigBet = 8, HardBet = 9, HopBet = 10, Stack = 21, MovingAverage = 22, Player = 50,
  SquareRoot = 100, BankrollAverage = 110, Precision = 139, Die = 190, OddsFactorNumber = 191,
  FindInText = 203, StackName = 800, FirstOfTextFunctions = 801, LastOfTextFunctions = 812,
  PlayerName = 850,

  // The sides of a "thru".
  ThruPlayers = 51, ThruHands = 52, ThruModifiers = 53,

  // Figures.
  NoResolvedWagers = 300, NoWins = 301, NoLosses = 302, NoVig = 1000,
  RollTotal = 1001, PointNumber = 1002, RollPair = 1009, RollFace = 1010,
  OddsRatioUnknown = 915, OddsNumeratorUnknown = 916, OddsDenominatorUnknown = 917,

  // Rights.
  NoPlayer = 851, OtherPlayer = 852, NoNewSessions = 853, NoProbabilityFiles = 854,
  NotTheShooter = 855, NoRollFiles = 856,

  // Values to be set.
  NotAPlaceBet = 12, WinHandling = 860, LossHandling = 861, SessionHasBegun = 870, RollRate = 900,
  Seed = 905, GeneratorMissing = 910, Generator = 911, CompRate = 912, OddsFactor = 914,

  // Messages, sounds and files.
  MessagesOff = 990, SoundsOff = 992, RollFileNotOpen = 1003, OutputFileNotOpen = 1004,
  FileNotOpened = 1005, BadFileName = 1006, NotARollFile = 1007, NotAProbabilityFile = 1008,

  TextTooLong = 998, NoValue = 9997, NoString = 9998, DivisionByZero = 9999,
  Machinery = 10000,  // a fault that was trapped
};
// clang-format on

// An argument of a function is out of limits.
constexpr ScriptFault FaultOfFunction(int32_t function) {
  return static_cast<ScriptFault>(function);
}

// One or two lines, separated by a carriage return; for Machinery the text of the fault that was
// trapped. Empty for None.
std::string ScriptFaultText(ScriptFault fault);

}  // namespace tessarel
