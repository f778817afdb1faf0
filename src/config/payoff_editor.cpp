#include "config/payoff_editor.h"

#include <algorithm>
#include <span>

#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "engine/bet_limits.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

enum class CaptionForm { BetName, Number, AsWritten };

// A run of rows for bets in a row.
struct Block {
  int FirstRow, LastRow, FirstBet;
  CaptionForm Form = CaptionForm::BetName;
  std::string_view Before = "", After = "";  // around the point number, or the caption itself
};

// A bet with a table of its own: its heading, then its rows.
struct OwnTable {
  int HeadingRow, Bet, FirstSub;
  std::span<const std::string_view> Captions;
};

// clang-format off
constexpr Block Blocks[] = {
    { 1,  6, bet::Lay4},
    { 7, 12, bet::DontCome4,     CaptionForm::Number, "DP/DC "},
    {13, 18, bet::DontCome4Odds, CaptionForm::Number, "DP/DC ", " Odds"},
    {19, 24, bet::Come4,         CaptionForm::Number, "Pass/Come "},
    {25, 30, bet::Come4Odds,     CaptionForm::Number, "Pass/Come ", " Odds"},
    {31, 42, bet::Place4},
    {43, 43, bet::PassLine,      CaptionForm::AsWritten, "Passline/Come (c.o.)"},
    {44, 44, bet::DontPass,      CaptionForm::AsWritten, "Don't Pass/Come (c.o.)"},
    {45, 56, bet::Big6},
    {57, 80, bet::Over7},
};
static_assert(std::end(Blocks)[-1].FirstBet + 80 - 57 == bet::Point7);

constexpr std::string_view SevenPointSevenCaptions[] = {"      Comeout 7", "      Point 7"};
constexpr std::string_view MidwayCaptions[] = {
    "      Hard 6", "      Easy 6", "      7", "      Easy 8", "      Hard 8"};
constexpr std::string_view SharpShooterCaptions[] = {
    "      0 points", "      1 point", "      2 points", "      3 points", "      4 points",
    "      5 points", "      6 points", "      7 points", "      8 points", "      9 points",
    "      10+ points"};
constexpr std::string_view RideTheLineCaptions[] = {
    "      0 passes", "      1 pass", "      2 passes", "      3 passes", "      4 passes",
    "      5 passes", "      6 passes", "      7 passes", "      8 passes", "      9 passes",
    "      10 passes", "      11+ passes"};
constexpr std::string_view FireCaptions[] = {
    "      0 points", "      1 point", "      2 points", "      3 points", "      4 points",
    "      5 points", "      6 points"};

constexpr OwnTable OwnTables[] = {
    { 81, bet::SevenPoint7,  1, SevenPointSevenCaptions},
    { 84, bet::Midway,       1, MidwayCaptions},
    { 90, bet::SharpShooter, 1, SharpShooterCaptions},
    {102, bet::RideTheLine,  1, RideTheLineCaptions},
    {115, bet::Fire,         0, FireCaptions},
};
// clang-format on

constexpr auto EditorRows = [] {
  std::array<PayoffEditorRow, PayoffEditorRowCount + 1> rows{};
  for (const Block& block : Blocks) {
    for (int row = block.FirstRow; row <= block.LastRow; ++row)
      At(rows, row).Bet = block.FirstBet + row - block.FirstRow;
  }
  for (const OwnTable& table : OwnTables) {
    At(rows, table.HeadingRow) = {table.Bet, -1, true};
    for (int k = 0; k < static_cast<int>(table.Captions.size()); ++k)
      At(rows, table.HeadingRow + 1 + k) = {table.Bet, table.FirstSub + k, false};
  }
  return rows;
}();
static_assert(std::all_of(EditorRows.begin() + 1, EditorRows.end(), [](const PayoffEditorRow& row) {
  return row.Bet != 0;
}));

struct Pair {
  int Low, High;
};

constexpr auto FieldPairs = [] {
  std::array<Pair, FieldRowCount + 1> pairs{};
  for (int low = 1; low <= 6; ++low) {
    for (int high = low; high <= 6; ++high)
      At(pairs, PairIndex(low, high)) = {low, high};
  }
  return pairs;
}();

constexpr PairSet PairBit(int low, int high) {
  return PairSet{1} << PairIndex(low, high);
}

template <class... Numbers>
constexpr PairSet Totals(Numbers... totals) {
  PairSet set = 0;
  for (int row = 1; row <= FieldRowCount; ++row) {
    const int total = At(FieldPairs, row).Low + At(FieldPairs, row).High;
    if (((total == totals) || ...)) set |= PairSet{1} << row;
  }
  return set;
}

constexpr PairSet AllPairs = (PairSet{2} << FieldRowCount) - 2;
constexpr PairSet TwoAndTwelve = PairBit(1, 1) | PairBit(6, 6);
constexpr PairSet ThreeAndEleven = PairBit(1, 2) | PairBit(5, 6);

// What a sub-row's caption leaves out on the command line.
struct CountWord {
  std::string_view Word;
  CheckedText<1> Row;  // the caption that is shown for it
};
constexpr CountWord CountWords[] = {{" points", Text::PointsRow},
                                    {" point", Text::PointRow},
                                    {" passes", Text::PassesRow},
                                    {" pass", Text::PassRow}};

void RequireRow(PayoffCell cell) {
  const int last = cell.Grid == PayoffGrid::Bets ? PayoffEditorRowCount : FieldRowCount;
  if (cell.Row < 1 || cell.Row > last) RaiseIndexOutOfRange();
}

std::string_view OwnCaption(int row) {
  const PayoffEditorRow& shown = At(EditorRows, row);
  const auto* table =
      std::ranges::find_if(OwnTables, [&](const OwnTable& own) { return own.Bet == shown.Bet; });
  return At(table->Captions, shown.SubIndex - table->FirstSub);
}

// A count in the language in force; the names of outcomes are as on the layout.
std::string ShownOwnCaption(std::string_view caption) {
  for (const CountWord& count : CountWords) {
    if (!caption.ends_with(count.Word)) continue;
    caption.remove_suffix(count.Word.size());
    caption.remove_prefix(caption.find_first_not_of(' '));
    return "      " + Say(count.Row, caption);
  }
  return std::string(caption);
}

std::string BetCaption(int row) {
  const PayoffEditorRow& shown = At(EditorRows, row);
  if (shown.SubIndex >= 0) return ShownOwnCaption(OwnCaption(row));
  const auto* block = std::ranges::find_if(
      Blocks, [row](const Block& run) { return row >= run.FirstRow && row <= run.LastRow; });
  if (block == std::end(Blocks) || block->Form == CaptionForm::BetName)
    return std::string(BetName[shown.Bet]);
  std::string caption(block->Before);
  if (block->Form == CaptionForm::Number) caption += std::to_string(PointOf(shown.Bet));
  return caption.append(block->After);
}

std::string FieldCaption(int row) {
  constexpr size_t TotalWidth = 5;
  const auto [low, high] = At(FieldPairs, row);
  const auto pair = [](int first, int second) {
    std::string text = "(0.0)";
    text[1] = static_cast<char>('0' + first);
    text[3] = static_cast<char>('0' + second);
    return text;
  };
  std::string caption = std::to_string(low + high);
  caption.resize(TotalWidth, ' ');
  caption += pair(low, high);
  return low == high ? caption : caption + " " + pair(high, low);
}

std::span<PayoffRow> OwnRows(int number) {
  switch (number) {
    case bet::SevenPoint7:
      return Payoffs.SevenPointSevenPayoff;
    case bet::Midway:
      return Payoffs.MidwayPayoff;
    case bet::SharpShooter:
      return Payoffs.SharpShooterPayoff;
    case bet::RideTheLine:
      return Payoffs.RideTheLinePayoff;
    default:
      return Payoffs.FirePayoff;
  }
}

PayoffRow& RowToEdit(PayoffCell cell) {
  RequireRow(cell);
  if (cell.Grid == PayoffGrid::Field) return Payoffs.FieldPayoff[cell.Row];
  const PayoffEditorRow& shown = At(EditorRows, cell.Row);
  if (shown.Heading) RaiseIndexOutOfRange();
  if (shown.SubIndex < 0) return Payoffs.Payoff[shown.Bet];
  const std::span<PayoffRow> rows = OwnRows(shown.Bet);
  return At(rows, shown.SubIndex);
}

// The come box pays like the line bet it is shown with.
int Twin(int number) {
  return number == bet::PassLine ? bet::Come : number == bet::DontPass ? bet::DontCome : 0;
}

void StorePayoff(PayoffCell cell, Money num, Money form, Money den) {
  const auto store = [&](PayoffRow& row) {
    row.PayNum = num;
    row.PayForm = form;
    row.PayDen = den;
  };
  store(RowToEdit(cell));
  if (cell.Grid == PayoffGrid::Field) return;
  const PayoffEditorRow& shown = At(EditorRows, cell.Row);
  if (const int twin = Twin(shown.Bet); twin != 0) store(Payoffs.Payoff[twin]);
}

// The net win of a row that shows this payoff.
Money NetWinShownAs(Money shown, Money form, Money den) {
  return form == Money(FormFor) ? shown - den : shown;
}

std::optional<PayoffRefusal> TestPositive(int firstRow, int lastRow, std::string_view bet = {}) {
  for (int row = firstRow; row <= lastRow; ++row) {
    const PayoffCell cell{PayoffGrid::Bets, row};
    if (PayoffOf(cell).PayNum > Money()) continue;
    if (bet.empty()) return PayoffRefusal{Say(Text::PayoffNotPositive, PayoffCaption(cell)), cell};
    return PayoffRefusal{Say(Text::PayoffsNotPositive, bet), cell};
  }
  return std::nullopt;
}

// No row may cost more than the wager, and one at least must win.
std::optional<PayoffRefusal> TestTable(PayoffCell first, int count, std::string_view bet) {
  bool wins = false;
  for (int k = 0; k < count; ++k) {
    const PayoffCell cell{first.Grid, first.Row + k};
    const PayoffRow& row = PayoffOf(cell);
    if (row.PayNum < -row.PayDen) {
      return PayoffRefusal{Say(Text::LossExceedsWager, bet), cell};
    }
    wins = wins || row.PayNum > Money();
  }
  if (wins) return std::nullopt;
  return PayoffRefusal{Say(Text::NoPositivePayoff, bet), first};
}

std::optional<PayoffRefusal> TestMaxFireBet() {
  if (!Settings.UseFireBet || Settings.MaxFireBet >= Settings.MinPlacardPropBet)
    return std::nullopt;
  return PayoffRefusal{Say(Text::MaxFireBelowMinimum), std::nullopt};
}

std::optional<PayoffCell> CellByName(std::string_view name) {
  for (const PayoffGrid grid : {PayoffGrid::Bets, PayoffGrid::Field}) {
    const int last = grid == PayoffGrid::Bets ? PayoffEditorRowCount : FieldRowCount;
    for (int row = 1; row <= last; ++row) {
      const PayoffCell cell{grid, row};
      if (const std::string known = PayoffRowName(cell);
          !known.empty() && EqualIgnoringCase(known, name))
        return cell;
    }
  }
  return std::nullopt;
}

// Why no row has this name. A bet's own name may lead to the row that holds its payoff.
std::string NoSuchRow(std::string_view name) {
  const int number = BetByName(name);
  if (number == 0) return Say(Text::NoPayoffRowNamed, name);
  const std::string bet(BetName[number]);
  for (int row = 1; row <= PayoffEditorRowCount; ++row) {
    const PayoffEditorRow& shown = At(EditorRows, row);
    if (shown.Heading || shown.SubIndex >= 0) continue;
    if (shown.Bet == number || Twin(shown.Bet) == number)
      return Say(Text::PayoffRowIsNamed, bet, BetCaption(row));
  }
  return Say(Text::PayoffRowNotEditable, bet);
}

}  // namespace

// clang-format off
constexpr std::array<FieldPreset, FieldPresetCount> FieldPresets = {{
    {"mnuSFField", "&Field w/ 2x on Two and Twelve",
     {{{Totals(3, 4, 9, 10, 11), 1}, {TwoAndTwelve, 2}, {Totals(5, 6, 7, 8), -1}}}},
    {"mnuSFPass", "&Pass Line",
     {{{Totals(6, 8), -1, FormTo, 11}, {Totals(5, 9), -1, FormTo, 5}, {Totals(4, 10), -1, FormTo, 3},
       {Totals(2, 3, 12), -1}, {Totals(7, 11), 1}}}},
    {"mnuSFDontPass", "&Don't Pass (bar 12)",
     {{{Totals(6, 8), 1, FormTo, 11}, {Totals(5, 9), 1, FormTo, 5}, {Totals(4, 10), 1, FormTo, 3},
       {Totals(2, 3), 1}, {Totals(7, 11), -1}, {PairBit(6, 6), 0}}}},
    {"mnuSFPlace6", "Place &6",
     {{{AllPairs, 0}, {Totals(6), 7, FormTo, 6}, {Totals(7), -1}}}},
    {"mnuSFPlaceLose8", "Place to &Lose 8",
     {{{AllPairs, 0}, {Totals(7), 4, FormTo, 5}, {Totals(8), -5, FormTo, 5}}}},
    {"mnuSFBuy10", "Buy &10 (5 % vig)",
     {{{AllPairs, 0}, {Totals(10), 39, FormTo, 21}, {Totals(7), -1}}}},
    {"mnuSFLay4", "Lay &4 (5% vig on win only)",
     {{{AllPairs, 0}, {Totals(7), 19, FormTo, 40}, {Totals(4), -1}}}},
    {"mnuSFHard8", "H&ard 8",
     {{{AllPairs, 0}, {PairBit(4, 4), 9}, {PairBit(2, 6) | PairBit(3, 5) | Totals(7), -1}}}},
    {"mnuSFHorn", "&Horn",
     {{{AllPairs, -1}, {TwoAndTwelve, 27, FormFor, 4}, {ThreeAndEleven, 12, FormFor, 4}}}},
    {"mnuSFWorld", "&World",
     {{{AllPairs, -1}, {TwoAndTwelve, 26, FormFor, 5}, {ThreeAndEleven, 11, FormFor, 5},
       {Totals(7), 0, FormFor, 5}}}},
    {"mnuSFHop13", "H&op 13",
     {{{AllPairs, -1}, {PairBit(1, 3), 15}}}},
    {"mnuSFMidway", "&Midway",
     {{{AllPairs, -1}, {Totals(6, 7, 8), 1}, {PairBit(3, 3) | PairBit(4, 4), 2}}}},
    {"mnuSFCrapless", "&Crapless Craps Pass Line",
     {{{Totals(6, 8), -1, FormTo, 11}, {Totals(5, 9), -1, FormTo, 5}, {Totals(4, 10), -1, FormTo, 3},
       {Totals(3, 11), -1, FormTo, 2}, {Totals(2, 12), -5, FormTo, 7}, {Totals(7), 1}}}},
}};
// clang-format on
static_assert(std::all_of(FieldPresets.begin(), FieldPresets.end(), [](const FieldPreset& preset) {
  PairSet covered = 0;
  for (const FieldPresetItem& item : preset.Items)
    covered |= item.Pairs;
  return covered == AllPairs;
}));

PayoffEditorRow PayoffEditorRowAt(int row) {
  RequireRow({PayoffGrid::Bets, row});
  return At(EditorRows, row);
}

std::string PayoffCaption(PayoffCell cell) {
  RequireRow(cell);
  return cell.Grid == PayoffGrid::Field ? FieldCaption(cell.Row) : BetCaption(cell.Row);
}

std::string PayoffRowName(PayoffCell cell) {
  RequireRow(cell);
  if (cell.Grid == PayoffGrid::Field) {
    const auto [low, high] = At(FieldPairs, cell.Row);
    return "Field " + std::to_string(low) + "-" + std::to_string(high);
  }
  const PayoffEditorRow& shown = At(EditorRows, cell.Row);
  if (shown.Heading) return {};
  if (shown.SubIndex < 0) return BetCaption(cell.Row);
  std::string_view caption = OwnCaption(cell.Row);
  caption.remove_prefix(caption.find_first_not_of(' '));
  for (const CountWord& count : CountWords) {
    if (caption.ends_with(count.Word)) caption.remove_suffix(count.Word.size());
  }
  return std::string(BetName[shown.Bet]) + " " + std::string(caption);
}

const PayoffRow& PayoffOf(PayoffCell cell) {
  return RowToEdit(cell);
}

void SetShownPayoff(PayoffCell cell, Money shown) {
  const PayoffRow& row = PayoffOf(cell);
  StorePayoff(cell, NetWinShownAs(shown, row.PayForm, row.PayDen), row.PayForm, row.PayDen);
}

void SetPayoffForm(PayoffCell cell, PayForm form) {
  const PayoffRow& row = PayoffOf(cell);
  StorePayoff(cell, NetWinShownAs(ShownPayoff(row), form, row.PayDen), form, row.PayDen);
}

void SetPayoffBase(PayoffCell cell, Money base) {
  const PayoffRow& row = PayoffOf(cell);
  StorePayoff(cell, NetWinShownAs(ShownPayoff(row), row.PayForm, base), row.PayForm, base);
}

std::optional<PayForm> PayoffFormOfKey(char key, const PayoffRow& row) {
  switch (key) {
    case 't':
    case 'T':
      return FormTo;
    case 'f':
    case 'F':
      return FormFor;
    case ' ':
      return row.PayForm == Money(FormFor) ? FormTo : FormFor;
    default:
      return std::nullopt;
  }
}

void SetFieldPayoffs(const FieldPreset& preset) {
  for (const FieldPresetItem& item : preset.Items) {
    for (int row = 1; row <= FieldRowCount; ++row) {
      if ((item.Pairs >> row & 1) != 0)
        StorePayoff({PayoffGrid::Field, row}, item.PayNum, item.Form, item.PayDen);
    }
  }
}

bool RestoreDefaultPayoffs() {
  const int32_t answer =
      ShowMessage(Say(Text::AskDefaultPayoffs), Say(Text::RestoreDefaultPayoffs), msg::AskYesNo);
  if (answer != AnswerYes) return false;
  DefaultPayoffs();
  SetOddsPayoffRows();
  FrontEnd.DrawTable();
  return true;
}

std::optional<PayoffRefusal> TestPayoffs() {
  const auto ownTable = [](int firstRow, int lastRow, int number) {
    return TestTable({PayoffGrid::Bets, firstRow}, lastRow - firstRow + 1, BetName[number]);
  };
  std::optional<PayoffRefusal> refusal = TestPositive(1, 80);
  if (!refusal) refusal = TestPositive(82, 83, BetName[bet::SevenPoint7]);
  if (!refusal) refusal = TestPositive(85, 89, BetName[bet::Midway]);
  if (!refusal) refusal = ownTable(91, 101, bet::SharpShooter);
  if (!refusal) refusal = ownTable(103, 114, bet::RideTheLine);
  if (!refusal) refusal = TestMaxFireBet();
  if (!refusal) refusal = ownTable(116, 122, bet::Fire);
  if (!refusal) refusal = TestTable({PayoffGrid::Field, 1}, FieldRowCount, BetName[bet::Field]);
  return refusal;
}

void FigureFieldBase() {
  std::optional<Money> common;
  for (int row = 1; row <= FieldRowCount; ++row) {
    const PayoffRow& field = Payoffs.FieldPayoff[row];
    if (field.PayNum <= Money()) continue;
    if (common && *common != field.PayDen) {
      common = Money(1);
      break;
    }
    common = field.PayDen;
  }
  Payoffs.Payoff[bet::Field].PayDen = common.value_or(Money(1));
}

std::optional<std::string> SetPayoffByName(std::string_view assignment) {
  const size_t equals = assignment.rfind('=');
  if (equals == std::string_view::npos) return Say(Text::PayoffIsSetAs, assignment);
  const std::string_view name = assignment.substr(0, equals);
  const std::string_view ratio = assignment.substr(equals + 1);
  const std::optional<PayoffCell> cell = CellByName(name);
  if (!cell) return NoSuchRow(name);

  const size_t colon = ratio.find(':');
  const std::optional<Money> num = ParseMoney(ratio.substr(0, colon));
  const std::optional<Money> den =
      colon == std::string_view::npos ? std::nullopt : ParseMoney(ratio.substr(colon + 1));
  if (!num || !den) {
    return Say(Text::PayoffMustBe, PayoffRowName(*cell), ratio);
  }
  if (*den <= Money()) {
    return Say(Text::PayoffSecondNotPositive, PayoffRowName(*cell), PlainText(*den));
  }
  StorePayoff(*cell, *num, FormTo, *den);
  return std::nullopt;
}

}  // namespace tessarel
