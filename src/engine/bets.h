// Changing bets: the one way in which a bet is made, raised, lowered or taken off, and what hangs
// on it. A request never fails: the rules cut it down to what they allow, if need be to nothing,
// with a message outside the Hyper-Drive. What they would leave of it says its plan
// (engine/bet_plan.h).
#pragma once

#include "base/money.h"
#include "engine/bet_plan.h"
#include "engine/bet_request.h"
#include "state/bet_numbers.h"

namespace tessarel {

// Writes what a plan that was just made came to. Returns the change.
Money Apply(const Plan& plan, Telling telling = Telling::Aloud);

// Plans the request, tells what cut it and applies it. Returns the change made.
Money ChangeBet(const BetRequest& request, Telling telling = Telling::Aloud);

// ChangeBet, then what the table shows, then the odds that follow their flat bet. Returns the
// change of the bet itself.
Money PlaceBet(const BetRequest& request, Telling telling = Telling::Aloud);

// Outside the Hyper-Drive: draws the bet and those that share its spot.
void RedrawBet(int place, int number);

// Asks for the whole bet to come off; a contract bet stays as its rules say.
void RemoveBet(int place, int number, Telling telling = Telling::Aloud);

// The Place and Buy bets on a point number come off; `travels` for a box that goes there.
void RemovePlaceBets(int place, int point, bool travels = false);

// The same on every number that the place's line and come bets stand on now.
void DownPlaceBets(int place);

// Takes a resolved bet off without a message, whatever its contract.
void TakeDownBet(int place, int number);

// Silently sets a bet to the largest amount the rules allow; `nearest` as in a request.
void ReplaceBet(int place, int number, bool nearest = false);

// With a point on: full odds on all of the place's line and come bets, or on the don't side.
void BetFullOdds(int place);
void BetFullLay(int place);

// Turns a Place bet into the Buy bet of the same amount. Numbers that are no bet do nothing.
void BuyPlaceBet(int place, int number, Telling telling = Telling::Aloud);

// The states CallBet takes.
enum CallState : int { CallOff = 991, CallOn = 992 };
// Calls a bet on or off, or refuses it. Numbers that are no bet do nothing.
void CallBet(int place, int number, CallState state, Telling telling = Telling::Aloud);

// Back to the bet's normal working state: the come-out default without a point, else working.
void ResetBetWorking(int place, int number);

// After the point came or went: brings the working states of all players in step with it.
void UpdateWorkingFlags();

}  // namespace tessarel
