#include "engine/bet_notices.h"

#include <utility>

#include "base/message.h"
#include "base/number_format.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string BetTitle(int number) {
  if (IsStack(number)) return "CheckStack #" + std::to_string(number - FirstStack);
  return Say(Text::BetTitle, BetName[number]);
}

std::string LimitText(const LimitMet& limit, int number) {
  const std::string amount = FormatMoney(limit.amount);
  switch (limit.kind) {
    case LimitKind::Minimum:
      return Say(Text::MinimumBet, BetName[number], amount);
    case LimitKind::Maximum:
      return Say(Text::MaximumBet, BetName[number], amount);
    case LimitKind::ContractAboveMaximum:
      return Say(Text::ContractAboveMaximum, BetName[number], amount);
    case LimitKind::AdjustMaximum:
      return Say(Text::UnableToAdjustMaximum, amount);
    case LimitKind::AdjustMinimum:
      return Say(Text::UnableToAdjustMinimum, amount);
    case LimitKind::Bankroll:
      return Say(Text::NotEnoughBankroll);
    case LimitKind::StackMinimum:
      return Say(Text::StackMinimum, amount);
    case LimitKind::StackMaximum:
      return Say(Text::StackMaximum, amount);
  }
  return "";
}

void AddPart(std::string& text, const std::string& part) {
  if (!text.empty()) text += "\r\r";
  text += part;
}

// Whether the notice ends with how the bet stands: not when it was refused as a whole, nor when it
// could not be adjusted.
bool TellsStanding(const Plan& plan) {
  for (int k = 0; k < plan.LimitCount(); ++k) {
    const LimitKind kind = plan.Limit(k).kind;
    if (kind == LimitKind::AdjustMaximum || kind == LimitKind::AdjustMinimum) return false;
  }
  return !plan.RefusedOutright();
}

std::string StandingText(const Plan& plan) {
  const bool stays = plan.change == Money();
  const Text text = IsStack(plan.request.number)
                        ? (stays ? Text::AlreadyStacked : Text::BeingStacked)
                        : (stays ? Text::AlreadyBet : Text::BeingBet);
  return SayChosen(text, FormatMoney(plan.After()));
}

}  // namespace

bool NoticeShows(int32_t notice) {
  return !Table.HyperDriveOn && (Settings.Notices & notice) != 0;
}

void TellPlan(const Plan& plan) {
  const int number = plan.request.number;
  std::string text;
  int32_t hide = 0;
  if (plan.refusal != RefusalKind::None && NoticeShows(NoticeActionsNotAllowed)) {
    text = Table.PlayerName[plan.request.place] + ",\r\r" + RefusalText(plan.refusal, number);
    hide = msg::HideNotice1;
  }
  if (plan.LimitCount() > 0 && NoticeShows(NoticeLimits)) {
    for (int k = 0; k < plan.LimitCount(); ++k)
      AddPart(text, LimitText(plan.Limit(k), number));
    hide = msg::HideNotice2;
  }
  if (text.empty()) return;
  if (TellsStanding(plan)) AddPart(text, StandingText(plan));
  ShowMessage(std::move(text), BetTitle(number), msg::OkAlert | hide, help::Bets);
}

void TellVig(int number, Money vig, Money change) {
  if (!NoticeShows(NoticeCharges)) return;
  std::string text;
  if (vig == Money()) {
    text = Say(Text::VigReturned, FormatMoney(-change));
  } else {
    const bool upFront = ChargesVigUpFront(number);
    text = SayChosen(upFront ? Text::VigCharged : Text::VigIfWon, FormatMoney(vig));
    text += "\r" + SayChosen(change > Money() ? Text::VigIncreased : Text::VigDecreased,
                             FormatMoney(Abs(change)));
  }
  ShowMessage(std::move(text), BetTitle(number), msg::Ok | msg::PictureAlert | msg::HideNotice4,
              help::OddsVigAndCalls);
}

void TellNotAllowed(std::string text) {
  if (!NoticeShows(NoticeActionsNotAllowed)) return;
  ShowMessage(std::move(text), Say(Text::ActionNotAllowed), msg::OkAlert | msg::HideNotice1,
              help::OddsVigAndCalls);
}

std::string ReasonOf(const Plan& plan) {
  const int limits = plan.LimitCount();
  if (limits > 0) return LimitText(plan.Limit(limits - 1), plan.request.number);
  return RefusalText(plan.refusal, plan.request.number);
}

}  // namespace tessarel
