#include "engine/seats.h"

#include <type_traits>

#include "engine/bets.h"
#include "state/books.h"
#include "state/place_fields.h"
#include "state/scripts.h"
#include "state/table.h"

namespace tessarel {

void SetBankroll(int place, Money amount) {
  SetBankrollSlots(place, amount);
  BeginBankroll(place + CurrentHand, amount);
  BeginBankroll(place + CurrentSession, amount);
  MoveHighAndLow(place);
  Table.InvestedBankroll[place] = amount;
  Table.BankrollAtRoll[place] = Table.BankrollAfterRoll[place] = amount;
}

void OpenPlaceDefaults(int place) {
  Table.BetWorkingDefault[place] = Table.BetWorkingDefault[0];
  for (int number = 1; number <= LastBet; ++number)
    ResetBetWorking(place, number);
  for (int position = 1; position <= 4; ++position) {
    Table.VisibleStack[place][position] = FirstStack + position - 1;
  }
}

void ClearPlace(int place) {
  ClearPlayerStats(place);
  ForEachPlaceField(
      [place](auto& array) { array[place] = std::decay_t<decltype(array[place])>{}; });
  ForEachSlotField([place](auto& array) {
    for (int slot = place; slot < SlotCount; slot += SlotsInScope) {
      array[slot] = std::decay_t<decltype(array[slot])>{};
    }
  });
  for (auto& bankrolls : Table.GraphBankroll)
    bankrolls[place] = Money();
  NewScript(place);
  OpenPlaceDefaults(place);
  RebuildDerived();
}

}  // namespace tessarel
