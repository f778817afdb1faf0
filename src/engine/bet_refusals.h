// The rules of the moment: what of a requested change of a bet the state of the game forbids, and
// the sentence that says so. Amounts, limits and money are not looked at here.
#pragma once

#include <string>

#include "base/money.h"
#include "engine/bet_request.h"

namespace tessarel {

enum class RefusalKind {
  None,
  DecreasePassLine,  // "You may not decrease or remove a Pass Line bet while ..."
  KeepPassLine,      // the same of "your" bet
  DecreaseCome,
  DecreaseEstablished,  // 7 Point 7 with the point on
  DecreaseDuringPoint,
  PutPassLine,
  PutCome,
  ComeWithoutPoint,
  DontPassDuringPoint,
  DontComeWithoutPoint,
  OddsWithoutPassLine,
  OddsWithoutDontPass,
  OddsWithoutFlat,
  DontComeOnNumber,
  NumbersMarked,
  CountInProgress,
  NotOnComeOut,
  HandStarted,
};

// What the rules leave of a change, and why if they cut it.
struct Verdict {
  Money delta;
  RefusalKind refusal = RefusalKind::None;
};

// The verdict on changing the requested bet by `delta` (below, at or above zero).
Verdict JudgeChange(const BetRequest& request, Money delta);

// The flat bet under requested odds, as it will stand when the request is met.
Money FlatAsPlanned(const BetRequest& request);

// The part of the bet that cannot be taken back now: its contract for Pass Line and 7 Point 7 with
// the point on and for Come on a number, else 0.
Money HeldContract(int place, int number);

// The sentence of a refusal of the bet.
std::string RefusalText(RefusalKind refusal, int number);

}  // namespace tessarel
