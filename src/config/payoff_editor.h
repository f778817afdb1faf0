// Editing the payoff tables: the rows of the two grids with their captions, what an entry in a cell
// does to the stored row, the presets that turn the Field into another bet, and the tests that the
// tables must pass before the configuration closes. The configuration screen, the reports and the
// command line work on these; nothing here knows how a grid is drawn.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "state/payoffs.h"

namespace tessarel {

inline constexpr int PayoffEditorRowCount = 122;  // rows of the grid of bets, from 1
inline constexpr int FieldRowCount = 21;          // rows of the grid of the Field, from 1

enum class PayoffGrid { Bets, Field };

// A row of either grid: 1 to 122 of the bets, 1 to 21 of the Field.
struct PayoffCell {
  PayoffGrid Grid = PayoffGrid::Bets;
  int Row = 0;

  friend bool operator==(const PayoffCell&, const PayoffCell&) = default;
};

// What a row of the grid of bets stands for.
struct PayoffEditorRow {
  int Bet = 0;           // 1 to 93
  int SubIndex = -1;     // the row of the bet's own table; -1: its row of Payoff
  bool Heading = false;  // only names the bet over the rows of its own table
};
PayoffEditorRow PayoffEditorRowAt(int row);

// The caption of a row. Those below a heading are indented. Index fault outside the grid.
std::string PayoffCaption(PayoffCell cell);

// The name of a row on the command line, which stands alone: "Place 6", "Fire 4", "Field 1-1".
// Empty for a heading.
std::string PayoffRowName(PayoffCell cell);

// The stored row. Index fault for a heading and outside the grid.
const PayoffRow& PayoffOf(PayoffCell cell);

// The payoff as it reads: with "for" the stake is part of it.
inline Money ShownPayoff(const PayoffRow& row) {
  return row.PayForm == Money(FormFor) ? row.PayNum + row.PayDen : row.PayNum;
}

// The entries of the three columns. Each keeps what the other two columns show; a row that stands
// for a pair of bets writes both. Index fault for a heading.
void SetShownPayoff(PayoffCell cell, Money shown);
void SetPayoffForm(PayoffCell cell, PayForm form);
void SetPayoffBase(PayoffCell cell, Money base);

// What a key in the word column chooses: t "to", f "for", the space bar the other one. Empty for
// any other key.
std::optional<PayForm> PayoffFormOfKey(char key, const PayoffRow& row);

// A set of pairs of dice, bit n for row n of the Field.
using PairSet = uint32_t;

// Some rows of a preset; the payoff is in whole numbers.
struct FieldPresetItem {
  PairSet Pairs = 0;
  int PayNum = 0;
  PayForm Form = FormTo;
  int PayDen = 1;
};

// A bet that the Field can be made to pay like. Later items win over earlier ones.
struct FieldPreset {
  std::string_view Menu, Caption;
  std::array<FieldPresetItem, 7> Items;  // those without pairs are not used
};
inline constexpr int FieldPresetCount = 13;
extern const std::array<FieldPreset, FieldPresetCount> FieldPresets;

void SetFieldPayoffs(const FieldPreset& preset);

// Asks, then fills all tables with their original values. Returns whether it did.
bool RestoreDefaultPayoffs();

// Why the tables are refused.
struct PayoffRefusal {
  std::string Text;
  std::optional<PayoffCell> Cell;  // the row at fault; empty: MaxFireBet
};

// The first test that the tables fail.
std::optional<PayoffRefusal> TestPayoffs();

// Gives the Field's row of Payoff the base that its winning rows have in common, or 1.
void FigureFieldBase();

// "Place 6=7:6": sets the net win and the base of the row of that name (letter case ignored).
// Returns what is wrong with it, or nothing.
std::optional<std::string> SetPayoffByName(std::string_view assignment);

}  // namespace tessarel
