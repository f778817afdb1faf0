#include "engine/check_stacks.h"

#include <algorithm>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/bets.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

CheckPile SplitIntoChecks(Money amount) {
  CheckPile pile;
  for (size_t check = 5; check >= 1; --check) {
    const Money value = Settings.Denomination[check];
    if (value <= Money() || amount < value) continue;
    pile.count[check] = amount.Raw() / value.Raw();
    amount = Money::FromRaw(amount.Raw() % value.Raw());
  }
  pile.fraction = amount;
  return pile;
}

std::vector<StackRow> StackRows(int place, bool zeros) {
  std::vector<StackRow> rows;
  for (int stack = 0; stack < StackCount; ++stack) {
    const Money value = Bet(place, FirstStack + stack);
    const std::string& name = Table.CheckStackName[place][stack];
    if (!zeros && value == Money() && name.empty()) continue;
    rows.push_back({stack, FormatMoney(value), name});
  }
  return rows;
}

void SetStackValue(int place, int stack, Money value) {
  Table.Amount = value - Bet(place, FirstStack + stack);
  ChangeBet(place, FirstStack + stack);
  if (!Table.HyperDriveOn) FrontEnd.DrawBet(place, FirstStack + stack);
}

void SetStackName(int place, int stack, std::string name) {
  Table.CheckStackName[place][stack] = std::move(name);
}

void DeleteStackValues(int place) {
  for (int stack = 0; stack < StackCount; ++stack)
    SetStackValue(place, stack, Money());
}

void DeleteStackNames(int place) {
  Table.CheckStackName[place] = {};
}

bool SetVisibleStacks(int place, const std::array<int, 4>& stacks) {
  auto sorted = stacks;
  std::sort(sorted.begin(), sorted.end());
  if (std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end()) {
    ShowMessage(Say(Text::StacksMustDiffer), Say(Text::SetVisibleStacks), msg::OkAlert);
    return false;
  }
  for (int k = 0; k < 4; ++k) {
    Table.VisibleStack[place][k + 1] = FirstStack + At(stacks, k);
  }
  if (!Table.HyperDriveOn) FrontEnd.DrawTable();
  return true;
}

}  // namespace tessarel
