// The settings by name: one row for each setting that a user may set as FIELD=VALUE, with what it
// takes. The command line sets them through SetField, which refuses what is outside a row's limits
// and goes by the rules of change where a setting has them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/money.h"

namespace tessarel {

enum class FieldKind {
  Amount,       // money
  WholeNumber,  // may be kept as money
  Flag,         // 0, 1 or -1, kept as 0 or -1
  Mark          // 0, 1 or -1, kept as 0 or 1
};

enum class FieldShape {
  Single,   // VALUE
  InOrder,  // all values, separated by commas
  ByBet,    // some of them, as BET:VALUE by bet name or number, separated by commas
  ByIndex   // the same by number
};

// Allowed are Low, Low + Step and so on up to High.
struct FieldRange {
  Money Low, High, Step;
};

using FieldValue = std::variant<Money*, int32_t*, bool*>;

struct SettingField {
  std::string_view Name;
  FieldKind Kind = FieldKind::Amount;
  FieldRange Range;                              // flags and marks take none
  FieldValue (*Reach)(int place, int key) = {};  // where it is kept
  bool PerPlace = false;
  // The rule of change, for single values: false when it refuses, its text in Message.MsgText.
  bool (*Change)(int place, Money value) = nullptr;
  FieldShape Shape = FieldShape::Single;
  int FirstKey = 0, LastKey = 0;
};

std::span<const SettingField> SettingFields();

// Sets a field (letter case ignored); a per-place field without a place is set for every player.
// Returns what is wrong in one sentence, with nothing written except, when a rule of change refuses
// one of several players, for those before him.
std::optional<std::string> SetField(std::string_view name,
                                    std::optional<int> place,
                                    std::string_view value);

// Brings every setting, those of all places included, into what its row allows: the nearest value,
// flags that are neither on nor off to on. For settings that were read from a file; nothing is
// asked.
void BringFieldsIntoRange();

}  // namespace tessarel
