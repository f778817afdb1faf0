// The list of everything that the table and the statistics keep per place, for whoever has to clear
// a place or move it as a whole. A new per-place field belongs into this list.
#pragma once

#include "state/books.h"
#include "state/scripts.h"
#include "state/table.h"

namespace tessarel {

// Calls visit(array) for each array indexed by place. BetX and BetY stay out: where the checks of a
// place stand on the picture belongs to the place and not to its player.
template <class Visit>
void ForEachPlaceField(Visit&& visit) {
  visit(Table.BetAmount);
  visit(Table.BetAmountBefore);
  visit(Table.BetAmountAfterRoll);
  visit(Table.BetContract);
  visit(Table.BetWorkingDefault);
  visit(Table.BetWorking);
  visit(Table.BetWorkingBefore);
  visit(Table.BetStreak);
  visit(Table.BetStreakBefore);
  visit(Table.ComeOriginal);
  visit(Table.LayVig);
  visit(Table.BuyVig);
  visit(Table.PlayerName);
  visit(Table.InvestedBankroll);
  visit(Table.MoneyOnTable);
  visit(Table.BankrollAtRoll);
  visit(Table.BankrollAfterRoll);
  visit(Table.AvailableBankroll);
  visit(Table.BankrollSum);
  visit(Table.AllowNegBankroll);
  visit(Table.BankrollInitType);
  visit(Table.BankrollInitAmount);
  visit(Table.HandleWinningBets);
  visit(Table.HandleLosingBets);
  visit(Table.HandleAmount);
  visit(Table.HandleUnits);
  visit(Table.HandleOperator);
  visit(Table.AutoTakeFullOdds);
  visit(Table.AutoLayFullOdds);
  visit(Table.AutoDownPlaceBets);
  visit(Table.AutoAdjustBetAmounts);
  visit(Table.DoBias);
  visit(Table.DontBias);
  visit(Table.PlaceBias);
  visit(Table.LayBias);
  visit(Table.DeclinesDice);
  visit(Table.SessionLogName);
  visit(Table.CheckStackName);
  visit(Table.VisibleStack);
  visit(Scripts.Places);
  visit(Scripts.ScriptActive);
  visit(Scripts.ScriptActiveAfterRoll);
  visit(Scripts.AllowReset);
  visit(Scripts.AllowAct4Others);
  visit(Scripts.AllowActProb);
  visit(Stats.HandBets);
  visit(Stats.LastHandBets);
}

// Calls visit(array) for each array indexed by slot.
template <class Visit>
void ForEachSlotField(Visit&& visit) {
  visit(Table.Bankroll);
  visit(Table.BankrollBegin);
  visit(Table.BankrollHigh);
  visit(Table.BankrollLow);
  visit(Stats.Bets);
  visit(Stats.RollCount);
  visit(Stats.Hands);
  visit(Stats.HandTable);
  visit(Stats.ComeTravel);
}

}  // namespace tessarel
