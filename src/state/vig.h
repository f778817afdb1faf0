// The vig of Lay and Buy bets: where it is kept and when it is charged. What it amounts to is
// figured in engine/bet_limits.h.
#pragma once

#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

constexpr bool CarriesVig(int number) {
  return InFamily(number, LayFamily) || InFamily(number, BuyFamily);
}

// Whether the vig is charged with the bet, not when it wins. False for bets that carry none.
inline bool ChargesVigUpFront(int number) {
  return (InFamily(number, LayFamily) && Settings.LayVigAllBets) ||
         (InFamily(number, BuyFamily) && Settings.BuyVigAllBets);
}

// The vig kept with a bet that carries one.
inline Money& StoredVig(int place, int number) {
  auto& vigs = InFamily(number, LayFamily) ? Table.LayVig : Table.BuyVig;
  return vigs[place][(number - 1) % FamilySize];
}

// The vig that a bet carries; 0 for bets without.
inline Money VigOf(int place, int number) {
  return CarriesVig(number) ? StoredVig(place, number) : Money();
}

// The part of it that has been charged with the bet.
inline Money VigUpFront(int place, int number) {
  return ChargesVigUpFront(number) ? StoredVig(place, number) : Money();
}

}  // namespace tessarel
