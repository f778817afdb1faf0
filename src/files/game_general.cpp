// The first records of a game file: the windows, the folders, the game between two rolls, the names
// of the files in use and the options of the program.
#include <algorithm>
#include <array>

#include "config/advantage.h"
#include "dice/generators.h"
#include "dice/probability.h"
#include "files/file_dialog.h"
#include "files/game_blocks.h"
#include "files/game_views.h"
#include "log/events_log.h"
#include "state/settings.h"
#include "stats/selection.h"

namespace tessarel {

namespace {

// Slots that go through a load and a save as they are.
template <class Words>
constexpr WordField Carried(Words& words, int first, int last) {
  return {first, &At(words, first), last - first + 1};
}
template <class Words>
constexpr MoneyField CarriedInt(Words& words, int first, int last) {
  return {first, &At(words, first), last - first + 1};
}

constexpr int SavedViewWords = 40;

// clang-format off
constexpr WordField WindowFields[] = {
    Carried(GameViews.Windows, 0, 12), Carried(GameViews.Windows, 15, 45)};
constexpr WordField MoreWindowFields[] = {
    Carried(GameViews.MoreWindows, 0, 63)};
constexpr WordField SavedViewFields[] = {
    Carried(GameViews.SavedViews, 0, SavedViewWords - 1)};

constexpr WordField TableFields[] = {
    Carried(GameViews.Table, 1, 1),  // the place now selected
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
    Carried(GameViews.Table, 15, 18),  // rotation, two angles, zoom
    Carried(GameViews.Table, 20, 21),  // the roll display; the Auto-Play screen's player
    {22, &ViewSelections.SummaryPlayer},
    {23, &ViewSelections.BetResultsPlayer},
    {24, &ViewSelections.CSPlayer},
    Carried(GameViews.Table, 25, 27),  // configuration, bankroll graph, scripts
    {28, &ViewSelections.SessionsPlayer},
    {29, &ViewSelections.HandsPlayer},
    {30, &ViewSelections.BetTrendsPlayer},
    {31, &Table.MarkedNumbers},
    {32, &Table.FourRollCount},
};
constexpr int PlayerCountSlot = 0, ChipCountSlot = 19;

constexpr WordField LogFields[] = {
    {0, &EventsLog.LogOn},
    {1, &Settings.ClearEventsLogOnNew},
    {2, &EventsLog.KeepLatestRollOnTop},
    Carried(GameViews.Log, 3, 5),  // size, bold, italic
    {6, &EventsLog.LogWins},
    {7, &EventsLog.LogLosses},
    {8, &EventsLog.LogBets},
    {9, &EventsLog.LogCheckStacks},
    {10, &EventsLog.LogDecisions},
    {11, &EventsLog.LogShooters},
    {12, &EventsLog.LogBankroll},
    {13, &EventsLog.LogRolls},
};

constexpr MoneyField OptionFields[] = {
    CarriedInt(GameViews.General, 0, 1),  // Alt keys, the chip to bet with
    {2, &Settings.CheckStyle},
    {3, &Settings.DiceStyle},
    {4, &Settings.DiceAction},
    {5, &GameViews.ReportAmount},
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
    CarriedInt(GameViews.General, 22, 23),  // two more of the printer
    {24, &Settings.SnapMouse},
    {26, &Dice.AskForSeed},
    {27, &Dice.ReseedEachSession},
    {28, &Settings.BasicFontSize},
    {29, &Probability.ProbabilityMatrixActive},
    {30, &Probability.optProbability},
};
constexpr int GeneratorSlot = 25, RollsOutOfSlot = 31;
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
  records.Words(SavedViewFields);
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
