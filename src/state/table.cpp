#include "state/table.h"

#include <algorithm>
#include <utility>

#include "state/scripts.h"
#include "state/vig.h"

namespace tessarel {

TableState Table;

void SetBetAmount(int place, int number, Money amount) {
  Money& stored = Table.BetAmount[place][number];
  if (stored == amount) return;
  stored = amount;
  MarkChanged(place, number);
  if (number > LastBet) return;
  const bool stands = amount > Money();
  Table.Standing[place].Set(number, stands);
  if (place == 0) return;
  const auto visitBit = static_cast<uint8_t>(1u << (VisitOfPlace[place] - 1));
  uint8_t& holders = Table.Holders[number];
  holders = static_cast<uint8_t>(stands ? holders | visitBit : holders & ~visitBit);
  Table.Held.Set(number, holders != 0);
}

void SetPlayerName(int place, std::string name) {
  const uint32_t bit = 1u << place;
  Table.TakenPlaces = name.empty() ? Table.TakenPlaces & ~bit : Table.TakenPlaces | bit;
  Table.PlayerCount = std::popcount(Table.TakenPlaces);
  Table.PlayerName[place] = std::move(name);
  Scripts.ProgramReady = false;  // scripts know the players by their names
}

void RebuildDerived() {
  Table.Holders = {};
  Table.Held.Clear();
  Table.TakenPlaces = 0;
  for (int place = 1; place <= LastPlace; ++place) {
    if (!Table.PlayerName[place].empty()) Table.TakenPlaces |= 1u << place;
    Table.Standing[place].Clear();
    for (int number = 1; number <= LastNumber; ++number) {
      MarkChanged(place, number);
      if (number > LastBet || Bet(place, number) <= Money()) continue;
      Table.Standing[place].Add(number);
      Table.Held.Add(number);
      Table.Holders[number] |= static_cast<uint8_t>(1u << (VisitOfPlace[place] - 1));
    }
  }
  Table.PlayerCount = std::popcount(Table.TakenPlaces);
  Table.WorkingChanged.fill(-1);
}

Money FigureMoneyOnTable(int place) {
  Money sum;
  for (int number = 1; number <= LastBet; ++number)
    sum += Bet(place, number) + VigUpFront(place, number);
  return sum;
}

namespace {

std::string CheckPlace(int place) {
  const std::string who = "place " + std::to_string(place) + ": ";
  const auto visitBit = static_cast<uint8_t>(1u << (VisitOfPlace[place] - 1));
  for (int number = 1; number <= LastBet; ++number) {
    const Money amount = Bet(place, number);
    const std::string which = who + std::string(BetName[number]);
    if (amount < Money()) return which + " is below zero";
    const bool stands = amount > Money();
    if (stands && !IsTaken(Table, place)) return which + " stands at an open place";
    if (Table.Standing[place].Has(number) != stands) return which + " and the standing set";
    if (((Table.Holders[number] & visitBit) != 0) != stands) return which + " and its holders";
  }
  if (IsTaken(Table, place) == Table.PlayerName[place].empty()) return who + "name and place";
  const Money onTable = FigureMoneyOnTable(place);
  if (onTable != Table.MoneyOnTable[place]) {
    return who + "money on the table is " + PlainText(Table.MoneyOnTable[place]) +
           ", bets and vig are " + PlainText(onTable);
  }
  const Money bankroll = BankrollOf(place);
  for (const Scope scope : CountedScopes) {
    if (Table.Bankroll[place + scope] != bankroll) return who + "bankroll slots differ";
  }
  return "";
}

}  // namespace

std::string CheckTable() {
  if (Table.PlayerCount != std::popcount(Table.TakenPlaces)) return "player count";
  for (int number = 1; number <= LastBet; ++number) {
    if (AnyHolds(number) != (Table.Holders[number] != 0)) return "held bets and their holders";
  }
  for (int place = 1; place <= LastPlace; ++place) {
    std::string fault = CheckPlace(place);
    if (!fault.empty()) return fault;
  }
  if (Table.Shooter != 0 && !IsTaken(Table, Table.Shooter)) return "the shooter's place is open";
  return "";
}

void MoveHighAndLow(int place) {
  const Money bankroll = BankrollOf(place);
  for (const Scope scope : CountedScopes) {
    Money& high = Table.BankrollHigh[place + scope];
    Money& low = Table.BankrollLow[place + scope];
    high = std::max(high, bankroll);
    low = std::min(low, bankroll);
  }
}

std::string StickPosition(int place) {
  return place <= 4 ? std::to_string(5 - place) + "-left" : std::to_string(place - 4) + "-right";
}

}  // namespace tessarel
