// The rail: who joins and with what, where the dice go, and what stops the game at the limits of a
// bankroll.
#pragma once

#include <optional>
#include <string>

#include "base/money.h"
#include "engine/bet_request.h"

namespace tessarel {

// Why the dice are passed.
enum PassReason : int { HandEnded = 0, PlayerAsked = 1, PlayerLeft = 2 };

// Seats a player at an open place with a bankroll: the statistics of the place are cleared, his
// working table is the house standard, and he shoots if nobody does.
void SeatPlayer(int place, const std::string& name, Money bankroll);

// Asks until the answer is a bankroll within the limits; empty when the user gives up.
std::optional<Money> AskBankroll(const std::string& question,
                                 const std::string& title,
                                 const std::string& offered);

// During a hand that another player began, says to whom it is credited; before the first roll of a
// hand, that whoever shot the last one has left.
void ShowPassedDiceNote();

// Hands the dice to the next player who wants them and may have them.
void PassDice(PassReason reason, Telling telling = Telling::Aloud);

// What is said when the bankroll of a place is beyond its limit, or was when its player left.
std::string BankrollLimitText(int place);

// The bankroll of the place is beyond its limit: says so and bars further rolls of the session,
// even if the player leaves.
void BankrollLimitStop(int place);

}  // namespace tessarel
