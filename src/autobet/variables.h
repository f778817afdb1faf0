// Variables at run time: what each number reads in the running system and what setting it does. The
// interpreter and the functions of the language read and write through here.
#pragma once

#include <cstdint>
#include <span>

#include "autobet/values.h"

namespace tessarel {

// The value of a variable now. On a run-time error AutoBet.Fault is set and the value is 0.
ScriptValue ReadVariable(const Reference& reference);

// Sets a variable, with the right to do so. On a run-time error AutoBet.Fault is set and
// nothing has changed. What the rules of the table refuse or cut is no error.
void SetVariable(const Reference& reference, const ScriptValue& value);

// A roll statistic (IsRollStatistic of autobet/word_numbers.h) for the rolls named by the
// arguments, under the qualifiers of `reference`.
ScriptValue RollStatistic(int32_t function,
                          const Reference& reference,
                          std::span<const ListItem> arguments);

// The mean of a player's bankroll over the last `rolls` (0 to 525) of the session, or over those of
// his time at the table while they are fewer; 0 takes the session's average. Without a roll it is
// the bankroll itself, at an open place 0.
double AverageBankroll(int place, int rolls);

}  // namespace tessarel
