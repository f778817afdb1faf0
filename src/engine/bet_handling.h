// What becomes of a bet once it is decided.
#pragma once

namespace tessarel {

void HandleWonBet(int place);
void HandleLostBet(int place);
// An odds bet that was not working while its flat bet was decided.
void HandleIdleOdds(int place);

// Leaves the bet as it stands, by a change of zero.
void SameBet(int place);

}  // namespace tessarel
