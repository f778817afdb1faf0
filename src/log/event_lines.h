// The lines of the events log: each routine here writes the lines of one occasion, in their fixed
// words, if the log and its own kind of event are on. They read the table and change nothing in it.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/money.h"

namespace tessarel {

// Before a roll: what the players changed since the snapshot after the last roll. AutoBets,
// Bankroll, Bets and CheckStacks, each under its heading. Walks only over what changed.
void LogChangesSinceLastRoll();

// The line of a roll: its number (from 1), its faces and where they come from, as " from roll
// file".
void LogRoll(int32_t number, int32_t die1, int32_t die2, std::string_view source);

// What became of the point: "    Pass (natural)" and its kin, indent included.
void LogDecision(std::string_view line);

// A bet won, lost or (result 0) pushed, under the heading that fits the kinds that are on.
void LogBetResult(int place, int number, Money result);

// A box that went to a number.
void LogBetMoved(int place, int from, int to);

// The bankrolls that moved during the roll.
void LogBankrollsAfterRoll();

// After a hand: "----New shooter (...) coming out----------" when the credited shooter changed
// from `before`, "----Same shooter (...)" when not, "----New hand, come-out roll----------" without
// one.
void LogNextHand(int before);

void LogDicePassed(int to);
void LogPlayerJoined(int place, Money amount);
// The player now stands at `place`.
void LogPlayerMoved(int place);
void LogPlayerRenamed(std::string_view before, std::string_view after);
// A player leaves with his bankroll, in which the bets he abandoned (their sum) are already lost.
void LogCashOut(int place, Money abandoned);
void LogSeed(int32_t generator, int32_t seed);

// A roll file is set to play while the session goes on.
void LogPlayback(std::string_view file);

// The opening lines of a session in two parts, between which the dice may be seeded: the heading
// with the players, then what the first hand starts with, active scripts and the shooter.
// `playedFile` is the roll file that is playing, empty for none.
void LogNewSession();
void LogFirstHand(std::string_view playedFile);

}  // namespace tessarel
