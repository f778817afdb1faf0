// Check stacks: named money counters beside the bets, of which four show on the rail; and how an
// amount is shown as a pile of checks. Amounts change through ChangeBet only.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/money.h"
#include "engine/bet_request.h"
#include "state/bet_numbers.h"

namespace tessarel {

// An amount as checks of the five denominations, and what is left below the smallest one.
struct CheckPile {
  std::array<int64_t, 6> count{};  // 1 to 5, by denomination
  Money fraction;
};
CheckPile SplitIntoChecks(Money amount);

// A line of the list of stacks.
struct StackRow {
  int stack = 0;  // 0 to 99
  std::string value, name;
};
// The stacks of a place that hold something or have a name; with `zeros` all hundred.
std::vector<StackRow> StackRows(int place, bool zeros);

// Sets the value or the name of stack 0 to 99.
void SetStackValue(int place, int stack, Money value, Telling telling = Telling::Aloud);
void SetStackName(int place, int stack, std::string name);

void DeleteStackValues(int place);
void DeleteStackNames(int place);

// Chooses the four stacks (0 to 99) on the rail. They have to differ: refused with a message and
// without any change otherwise.
bool SetVisibleStacks(int place, const std::array<int, 4>& stacks);

}  // namespace tessarel
