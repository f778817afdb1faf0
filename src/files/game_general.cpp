// The first records of a game file: the windows, the folders, the game between two rolls, the names
// of the files in use and the options of the program.
#include <algorithm>
#include <array>
#include <utility>

#include "config/advantage.h"
#include "dice/generators.h"
#include "dice/probability.h"
#include "files/file_dialog.h"
#include "files/game_blocks.h"
#include "log/events_log.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "stats/selection.h"

namespace tessarel {

namespace {

constexpr auto& Windows = GameViews.Windows;
constexpr auto& Views = GameViews;

constexpr std::array<WordField, 5> PlaceFields(int slot, WindowPlace& place) {
  return {{{slot, &place.State},
           {slot + 1, &place.Left},
           {slot + 2, &place.Top},
           {slot + 3, &place.Width},
           {slot + 4, &place.Height}}};
}

constexpr std::array<WordField, 3> CornerFields(int slot, WindowCorner& corner) {
  return {{{slot, &corner.State}, {slot + 1, &corner.Left}, {slot + 2, &corner.Top}}};
}

constexpr std::array<WordField, 4> FrameFields(int slot, WindowFrame& frame) {
  return {{{slot, &frame.Left},
           {slot + 1, &frame.Top},
           {slot + 2, &frame.Width},
           {slot + 3, &frame.Height}}};
}

constexpr std::array<WordField, 4> PoseFields(int slot, TablePose& pose) {
  return {{{slot, &pose.Rotation},
           {slot + 1, &pose.Tilt},
           {slot + 2, &pose.Lean},
           {slot + 3, &pose.Zoom}}};
}

template <size_t... Poses>
constexpr auto SavedPoseFieldsOf(std::index_sequence<Poses...>) {
  constexpr int WordsOfPose = 4;
  return Joined(PoseFields(WordsOfPose * static_cast<int>(Poses), Views.SavedPoses[Poses])...);
}

// clang-format off
constexpr auto WindowFields = Joined(
    PlaceFields(0, Windows.Main), PlaceFields(5, Windows.RollFiles),
    CornerFields(10, Windows.AutoPlay), PlaceFields(15, Windows.ScriptEditor),
    PlaceFields(20, Windows.RollConsole), PlaceFields(25, Windows.Dice),
    std::to_array({WordRow(30, Views.Table.RailLeft), WordRow(38, Views.Table.RailTop)}));
static_assert(TakeEachSlotOnce(WindowFields, {.Unused = {13, 14}}));

constexpr auto MoreWindowFields = Joined(
    PlaceFields(0, Windows.Sessions), PlaceFields(5, Windows.EventsLog),
    PlaceFields(10, Windows.Summary), PlaceFields(15, Windows.BankrollGraph),
    PlaceFields(20, Windows.RollTotals), PlaceFields(26, Windows.RollFrequencies),
    PlaceFields(31, Windows.BetResults), PlaceFields(36, Windows.BetTrends),
    PlaceFields(41, Windows.CheckStacks), PlaceFields(46, Windows.Hands),
    PlaceFields(51, Windows.HotKeys), FrameFields(56, Windows.FileDialog),
    CornerFields(61, Windows.MoveTable),
    std::to_array<WordField>({{25, &Views.Carried.RollTotals}, {60, &Views.Carried.FileDialog}}));
static_assert(TakeEachSlotOnce(MoreWindowFields));

constexpr auto SavedPoseFields = SavedPoseFieldsOf(std::make_index_sequence<10>());
static_assert(TakeEachSlotOnce(SavedPoseFields));

constexpr int PlayerCountSlot = 0, ChipCountSlot = 19;
constexpr auto TableFields = Joined(PoseFields(15, Views.Pose), std::to_array<WordField>({
    {1, &Views.Players.Table},
    {2, &Table.Shooter},
    {3, &Table.PreviousShooter},
    {4, &Table.LastShooter},
    {5, &Table.Point},
    {6, &Table.LastPoint},
    {7, &Table.PointBeforeLast},
    {8, &Table.Die1},
    {9, &Table.Die2},
    {10, &Table.SharpShooterPoints},
    {11, &Table.RideTheLinePasses},
    {12, &Table.FirePointsMask},
    {13, &Dice.CurrentSeed},
    {14, &Dice.LastSeed},
    {20, &Views.Carried.RollDisplay},
    {21, &Views.Players.AutoPlay},
    {22, &ViewSelections.SummaryPlayer},
    {23, &ViewSelections.BetResultsPlayer},
    {24, &ViewSelections.CSPlayer},
    {25, &Views.Players.Configuration},
    {26, &Views.Players.BankrollGraph},
    {27, &Views.Players.Scripts},
    {28, &ViewSelections.SessionsPlayer},
    {29, &ViewSelections.HandsPlayer},
    {30, &ViewSelections.BetTrendsPlayer},
    {31, &Table.MarkedNumbers},
    {32, &Table.FourRollCount},
}));
static_assert(TakeEachSlotOnce(TableFields, {.Single = {PlayerCountSlot, ChipCountSlot}}));

constexpr auto LogFields = std::to_array<WordField>({
    {0, &EventsLog.LogOn},
    {1, &Settings.ClearEventsLogOnNew},
    {2, &EventsLog.KeepLatestRollOnTop},
    {3, &Views.EventsLog.Size},
    {4, &Views.EventsLog.Bold},
    {5, &Views.EventsLog.Italic},
    {6, &EventsLog.LogWins},
    {7, &EventsLog.LogLosses},
    {8, &EventsLog.LogBets},
    {9, &EventsLog.LogCheckStacks},
    {10, &EventsLog.LogDecisions},
    {11, &EventsLog.LogShooters},
    {12, &EventsLog.LogBankroll},
    {13, &EventsLog.LogRolls},
});
static_assert(TakeEachSlotOnce(LogFields));

constexpr int GeneratorSlot = 25, RollsOutOfSlot = 31;
constexpr auto OptionFields = std::to_array<MoneyField>({
    {0, &Views.Carried.AltKeys},
    {1, &Views.Table.ChosenCheck},
    {2, &Settings.CheckStyle},
    {3, &Settings.DiceStyle},
    {4, &Settings.DiceAction},
    {5, &Views.ReportAmount},
    {6, &Settings.UseCentsSymbol},
    {7, &Settings.AutoArrangeChips},
    {8, &Settings.StickPersonVoice},
    {9, &Settings.DiceSound},
    {10, &Settings.CheckSound},
    {11, &Settings.WinSound},
    {12, &Settings.DisableAutoBetSounds},
    {13, &Settings.DisableAllSound},
    {14, &Settings.InfoTipLevel},
    {15, &Settings.Language},
    {20, &Settings.Notices},
    {21, &Settings.ColorPrint},
    {22, &Views.PrintWinColor},
    {23, &Views.PrintLossColor},
    {24, &Settings.SnapMouse},
    {26, &Dice.AskForSeed},
    {27, &Dice.ReseedEachSession},
    {28, &Settings.BasicFontSize},
    {29, &Probability.ProbabilityMatrixActive},
    {30, &Probability.optProbability},
});
static_assert(TakeEachSlotOnce(
    OptionFields, {.Single = {GeneratorSlot, RollsOutOfSlot}, .Unused = {16, 17, 18, 19}}));
// clang-format on

void FolderRecords(GameRecords& records) {
  for (std::string& folder : FileDialog.LastFolder)
    records.Text(folder);
}

void TableRecord(GameRecords& records, GameCounts& counts) {
  records.Words(TableFields);
  records.Word(PlayerCountSlot, counts.Players);
  records.Word(ChipCountSlot, counts.Chips);
  counts.Players = std::clamp(counts.Players, 0, LastPlace);
  counts.Chips = std::clamp(counts.Chips, 0, MostChips);
}

void OptionRecord(GameRecords& records) {
  records.Moneys(OptionFields);
  int32_t generator = Dice.CurrentRNG;
  constexpr double MostRollsOutOf = 1e12;
  Money rollsOutOf = Money::FromDouble(std::min(Probability.RollsOutOf, MostRollsOutOf));
  records.Amount(GeneratorSlot, generator);
  records.Amount(RollsOutOfSlot, rollsOutOf);
  if (!records.Reading()) return;
  SelectRNG(generator);  // one that cannot be had leaves the one in use
  Probability.RollsOutOf = std::min(rollsOutOf.ToDouble(), MostRollsOutOf);
}

}  // namespace

void GeneralRecords(GameRecords& records, FilesInUse& files, GameCounts& counts) {
  records.Words(WindowFields);
  records.Words(MoreWindowFields);
  records.Words(SavedPoseFields);
  FolderRecords(records);
  TableRecord(records, counts);
  records.TextAndDate(files.RollFile.Name, files.RollFile.Date);
  records.Text(files.PopupRoll);
  records.TextAndDate(files.Probability.Name, files.Probability.Date);
  records.TextAndDate(files.EventsLog.Name, files.EventsLog.Date);
  records.Words(LogFields);
  OptionRecord(records);
}

}  // namespace tessarel
