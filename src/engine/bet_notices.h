// What the bet rules tell the player of his request: the notices, made from the plan that it came
// to. Whether a notice shows is a matter of Settings.Notices and of the Hyper-Drive.
#pragma once

#include <string>

#include "base/money.h"
#include "engine/bet_plan.h"

namespace tessarel {

// Shows what cut the plan and how the bet will stand, if anything did.
void TellPlan(const Plan& plan);

// Shows how the vig of a bet has changed to `vig`.
void TellVig(int number, Money vig, Money change);

// Shows that an action on a bet is not possible.
void TellNotAllowed(std::string text);

// The last reason why the plan leaves less than was asked, in its own words; empty without one.
std::string ReasonOf(const Plan& plan);

// Whether notices of a kind are shown now.
bool NoticeShows(int32_t notice);

}  // namespace tessarel
