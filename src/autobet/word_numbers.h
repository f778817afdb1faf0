// The numbers of the variables, functions and actions of the language, by name, and the ranges that
// share a rule. The vocabulary writes these numbers into its token words, scripts in memory carry
// them, and several run-time errors have the number of a function, so they never change.
#pragma once

#include <cstdint>

#include "state/bet_numbers.h"

namespace tessarel {

// Bets are variables 1 to 93 and check stacks 100 to 199 (state/bet_numbers.h).
// clang-format off
namespace variable {
// Of a player.
inline constexpr int32_t FirstStackName = 800;  // the name of check stack n is 800 + n
inline constexpr int32_t AvailableBankroll = 651, LastAvailableBankroll = 655;
inline constexpr int32_t WinHandling = 670, LossHandling = 671;
inline constexpr int32_t AutoTakeOdds = 700, AutoLayOdds = 701, AutoDownPlaceBets = 702,
    AutoPassDice = 703;

// Statistics of a player in a hand or session.
inline constexpr int32_t FirstStatistic = 1000, LastOfPlayer = 1999;
inline constexpr int32_t Comps = 1100, SimulatedHours = 1200;
inline constexpr int32_t BeginningBankroll = 1300, Bankroll = 1301, HighBankroll = 1302,
    LowBankroll = 1303, AverageBankroll = 1304;
inline constexpr int32_t Hands = 1500, MostRolls = 1501, RollsPerHand = 1502, MostComeouts = 1503,
    ComeoutsPerHand = 1504, MostPasses = 1505, PassesPerHand = 1506, MostMisses = 1507,
    MissesPerHand = 1508;

// Statistics of the rolls.
inline constexpr int32_t FirstRollFigure = 2000;
inline constexpr int32_t ComeoutCount = 2600, MissPercent = 2605;
inline constexpr int32_t ProbablePercent = 4501, RollsSinceLast = 4505, ChiSquare = 4510,
    PValue = 4511, DegreesOfFreedom = 4512;
inline constexpr int32_t PointCount = 4606, PointPercent = 4607;

// Groups. A family of six bets has a word for all of them, and with "inside" and "outside".
inline constexpr int32_t LayBets = 4000, DontComeBets = 4010, DontComeOddsBets = 4020,
    ComeBets = 4030, ComeOddsBets = 4040, PlaceBets = 4050, BuyBets = 4060;
inline constexpr int32_t InsideOfGroup = 1, OutsideOfGroup = 2;  // added to the word of a family
inline constexpr int32_t BigBets = 4070, HardBets = 4071, HopBets = 4072, AllBets = 4100;
inline constexpr int32_t AllStacks = 980, AllStackNames = 990;

// Of the table as a whole.
inline constexpr int32_t FirstOfTable = 5000;
inline constexpr int32_t Initializing = 5000, NewSession = 5001, NewHand = 5002;
inline constexpr int32_t RollFileEnded = 5005, RollFileNext = 5006, RollFileLength = 5007;
inline constexpr int32_t Shooter = 5200, LastShooter = 5201, OriginalShooter = 5202, Bettor = 5203,
    AutoBettor = 5204;
inline constexpr int32_t ShooterPasses = 5300, ShooterMisses = 5301;
inline constexpr int32_t Point = 5500, LastPoint = 5501, DecidedPoint = 5502;
inline constexpr int32_t DiceTotal = 5510, DicePair = 5511, Die1 = 5512, Die2 = 5513;
inline constexpr int32_t RollsPerHour = 5603, MinimumBet = 5610, MaximumBet = 5611;
inline constexpr int32_t OddsFactor4 = 5612, OddsFactor5 = 5613, OddsFactor6 = 5614,
    OddsFactor8 = 5615, OddsFactor9 = 5616, OddsFactor10 = 5617;
inline constexpr int32_t BarNumber = 5630, Seed = 5655, Generator = 5672, CompRate = 5691;
inline constexpr int32_t DateAndTime = 5693, Timer = 5696, Answer = 5697, Random = 5698;
inline constexpr int32_t NextIsComeout = 5704, NextIsNoComeout = 5705, LastWasComeout = 5706,
    LastWasNoComeout = 5707;
inline constexpr int32_t SevenOut = 5708, PointIsDecided = 5709, PointIsEstablished = 5710,
    PointIsNotEstablished = 5711;
}  // namespace variable

namespace function {
// These name a variable by its number: a bet, a check stack or its name.
inline constexpr int32_t Lay = 1, DontCome = 2, DontComeOdds = 3, Come = 4, ComeOdds = 5, Place = 6,
    Buy = 7, Big = 8, Hard = 9, Hop = 10, LastOfBets = Hop;
inline constexpr int32_t Stack = 21, StackName = 800;

inline constexpr int32_t AverageBankroll = 22;
inline constexpr int32_t ProbablePercent = 25, ProbableCount = 26, RolledPercent = 27,
    RolledCount = 28, RollsSinceLast = 29, TruePercent = 30, TrueCount = 31, SkewedCount = 32,
    SkewedPercent = 33, ChiSquare = 34, PValue = 137;
inline constexpr int32_t ComeoutCount = 40, ComeoutPercent = 41, PassCount = 42, PassPercent = 43,
    MissCount = 44, MissPercent = 45;
inline constexpr int32_t PointCount = 46, PointPercent = 47;

inline constexpr int32_t Player = 50;  // also stands for a player beside a variable
inline constexpr int32_t SquareRoot = 100, WholePart = 101, AbsoluteValue = 102, Round = 139;
inline constexpr int32_t CodeOfText = 104, ValueOfText = 117, LengthOfText = 118;
inline constexpr int32_t BankrollAverage = 110;  // has a name, but no word
inline constexpr int32_t Input = 125, InputText = 825;
inline constexpr int32_t Highest = 126, Lowest = 127, Mean = 128, Deviation = 129, Sum = 130,
    Count = 131, HighestText = 132, LowestText = 133;
inline constexpr int32_t Die = 190, OddsFactor = 191, PlayerName = 850;
inline constexpr int32_t FindInText = 203, Left = 801, Right = 802, RemoveLeft = 803,
    RemoveRight = 804, Mid = 805, RemoveMid = 806, Insert = 809, TextOfNumber = 810,
    TextOfCode = 811, Blanks = 812;
}  // namespace function

namespace action {
inline constexpr int32_t NewSession = 100, NewSessionKeepStacks = 101, NewSessionKeepRollFile = 102,
    NewSessionKeepBoth = 103;
inline constexpr int32_t ProbabilitiesOff = 114, StopRolling = 115, ShowSteps = 116, PassDice = 118,
    RollFileOff = 119, SeedFromClock = 130;
inline constexpr int32_t ShowMessage = 210, AskQuestion = 211, PlaySound = 212,
    ProbabilitiesOn = 213;
inline constexpr int32_t AppendOutput = 220, ClearOutput = 221, WriteOutput = 223;
inline constexpr int32_t AtmDeposit = 225, AtmWithdraw = 226, SeedWith = 230;
inline constexpr int32_t Swap = 300, PlayBackRollFile = 310;
inline constexpr int32_t BuyPlaceBet = 450, CallOff = 451, CallOn = 452, RemoveButton = 453,
    TakeDown = 460;
inline constexpr int32_t Bet = 481, Multiply = 482, Divide = 483, Add = 484, Subtract = 485,
    Round = 487, RoundDown = 488, RoundUp = 489;
}  // namespace action
// clang-format on

constexpr bool IsStackName(int32_t number) {
  return number >= variable::FirstStackName && number < variable::FirstStackName + StackCount;
}

// How many qualifier tokens follow a variable in the normal form: 0, 1 player, 2 player and hand,
// 3 player, hand and second modifier, 4 all.
constexpr int QualifierCount(int32_t number) {
  if (number < 1 || number >= variable::FirstOfTable) return 0;
  if (IsBet(number)) return 4;
  if (number < variable::FirstStatistic) return 1;
  if (number <= variable::LastOfPlayer) return 2;
  return number < 3000 ? 3 : 4;
}

// The functions that name a bet, and with them those that name a check stack or its name.
constexpr bool NamesBet(int32_t function) {
  return function >= function::Lay && function <= function::LastOfBets;
}
constexpr bool NamesVariable(int32_t function) {
  return NamesBet(function) || function == function::Stack || function == function::StackName;
}

// Statistics of the totals and combinations rolled, which a set of rolls qualifies.
constexpr bool CountsRollsOfSet(int32_t function) {
  return (function >= function::ProbablePercent && function <= function::ChiSquare) ||
         function == function::PValue;
}
// The one that gives such a statistic for chosen rolls, by the variable that gives it for all of
// them; 0 for another variable.
constexpr int32_t RollFunctionOf(int32_t variable) {
  if (variable == variable::PValue) return function::PValue;
  const bool hasOne = variable >= variable::ProbablePercent && variable <= variable::ChiSquare;
  return hasOne ? variable - variable::ProbablePercent + function::ProbablePercent : 0;
}

// All statistics of the rolls: with those of the come-outs, passes, misses and points. They take
// a list of rolls.
constexpr bool IsRollStatistic(int32_t function) {
  return CountsRollsOfSet(function) ||
         (function >= function::ComeoutCount && function <= function::PointPercent);
}

// The actions with one argument, those that do something to each bet they name, and among these
// those that change it by an amount.
constexpr bool TakesArgument(int32_t action) {
  return action >= action::ShowMessage && action <= action::SeedWith;
}
constexpr bool ChangesBets(int32_t action) {
  return action >= action::BuyPlaceBet;
}
constexpr bool IsBetArithmetic(int32_t action) {
  return action >= action::Bet && action <= action::RoundUp;
}

}  // namespace tessarel
