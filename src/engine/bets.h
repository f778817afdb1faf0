// Changing bets: the one way in which a bet is made, raised, lowered or taken off, and what hangs
// on it. A request never fails: the rules cut it down to what they allow, if need be to nothing,
// with a message outside the Hyper-Drive.
#pragma once

#include "base/money.h"
#include "state/bet_numbers.h"

namespace tessarel {

// Changes a bet (1 to 93) or check stack (100 to 199) of a place by Table.Amount as far as the
// rules allow; Table.BetDelta is the change made. Nothing changes for other numbers.
void ChangeBet(int place, int number);

// ChangeBet, then what the table shows, then the odds that follow their flat bet.
void PlaceBet(int place, int number, int x, int y);
// The same at the bet's own position.
void PlaceBet(int place, int number);

// Outside the Hyper-Drive: draws the bet and those that share its spot.
void RedrawBet(int place, int number);

// Asks for the whole bet to come off; a contract bet stays as its rules say.
void RemoveBet(int place, int number);

// The Place and Buy bets on a point number come off.
void RemovePlaceBets(int place, int point);

// The same on every number that the place's line and come bets stand on now.
void DownPlaceBets(int place);

// Takes the resolved CurrentBet off without a message, whatever its contract.
void TakeDownBet(int place);

// Silently sets a bet to the largest amount the rules allow.
void ReplaceBet(int place, int number);

// With a point on: full odds on all of the place's line and come bets, or on the don't side.
void BetFullOdds(int place);
void BetFullLay(int place);

// Turns a Place bet into the Buy bet of the same amount. Numbers that are no bet do nothing.
void BuyPlaceBet(int place, int number);

// The states CallBet takes.
enum CallState : int { CallOff = 991, CallOn = 992 };
// Calls a bet on or off, or refuses it. Numbers that are no bet do nothing.
void CallBet(int place, int number, CallState state);

// Back to the bet's normal working state: the come-out default without a point, else working.
void ResetBetWorking(int place, int number);

// After the point came or went: brings the working states of all players in step with it.
void UpdateWorkingFlags();

// Silences the messages of the bet rules for its lifetime.
class SilentBets {
 public:
  SilentBets();
  ~SilentBets();
  SilentBets(const SilentBets&) = delete;
  SilentBets& operator=(const SilentBets&) = delete;

 private:
  int saved_;
};

}  // namespace tessarel
