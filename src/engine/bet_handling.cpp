#include "engine/bet_handling.h"

#include "engine/bets.h"
#include "engine/table.h"

namespace tessarel {

namespace {

int FlatUnder(int odds) {
  const bool line = odds == bet::PassLineOdds || odds == bet::DontPassOdds;
  return line ? odds - 1 : odds - FamilySize;
}

void StayOrComeDown(int place) {
  if (Table.BetCantStay) {
    TakeDownBet(place);
  } else {
    SameBet(place);
  }
}

}  // namespace

void SameBet(int place) {
  Table.Amount = Money();
  ChangeBet(place, Table.CurrentBet);
}

void HandleWonBet(int place) {
  StayOrComeDown(place);
}

void HandleLostBet(int place) {
  TakeDownBet(place);
}

void HandleIdleOdds(int place) {
  Table.NetWin = Money();
  const bool line = Table.CurrentBet == bet::PassLineOdds || Table.CurrentBet == bet::DontPassOdds;
  Table.BetCantStay = line || Bet(place, FlatUnder(Table.CurrentBet)) == Money();
  StayOrComeDown(place);
}

}  // namespace tessarel
