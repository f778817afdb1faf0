#include "play/rail.h"

#include <algorithm>
#include <vector>

#include "autobet/player_name.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "engine/bet_refusals.h"
#include "engine/seats.h"
#include "files/sessions_commands.h"
#include "files/sessions_log.h"
#include "log/event_lines.h"
#include "play/gateway.h"
#include "play/players.h"
#include "state/books.h"
#include "state/place_fields.h"
#include "state/scripts.h"
#include "state/table.h"
#include "stats/selection.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr const char* UsualBuyIn = "1000";
// The name of a player's sessions log, which holds his, is one that every disk takes.
constexpr size_t MostNameCharacters = 60;

// Asks `question` until the answer is a name that can be given; empty when the user gives up.
std::string AskName(const std::string& question, const std::string& title, int place) {
  std::string text = question;
  const std::string before = place == 0 ? "" : Table.PlayerName[place];
  std::string offered = before;
  while (AskForText(text, title, offered, help::Players)) {
    const std::string name(TrimSpaces(Message.MsgInput));
    if (name.empty() || name == before) return "";
    offered = name;
    if (ToSingleByte(name).size() > MostNameCharacters) {
      const std::string most = std::to_string(MostNameCharacters);
      text = Say(Text::NameTooLong, most) + "\r\r" + question;
    } else if (const auto taken = NameRefusal(name, place)) {
      text = *taken + "\r\r" + question;
    } else if (const auto reserved = PlayerNameRefusal(name)) {
      text = *reserved + question;
    } else {
      return name;
    }
  }
  return "";
}

// A bet that its player cannot take back, with the part of it that stays.
struct AbandonedBet {
  int number;
  Money amount;
};

std::vector<AbandonedBet> AbandonedBets(int place) {
  std::vector<AbandonedBet> bets;
  Table.Standing[place].ForEach([&](int number) {
    const Money amount = std::min(HeldContract(place, number), Bet(place, number));
    if (amount > Money()) bets.push_back({number, amount});
  });
  return bets;
}

Money Total(const std::vector<AbandonedBet>& bets) {
  Money total;
  for (const AbandonedBet& bet : bets)
    total += bet.amount;
  return total;
}

// "an active Pass Line bet and 2 active Come bets"
std::string ListOf(const std::vector<AbandonedBet>& bets) {
  const auto isCome = [](const AbandonedBet& bet) { return InFamily(bet.number, ComeFamily); };
  const auto comes = std::count_if(bets.begin(), bets.end(), isCome);
  std::vector<std::string> parts;
  for (const AbandonedBet& bet : bets) {
    if (comes > 1 && isCome(bet)) continue;
    parts.push_back(Say(Text::AbandonedBet, BetName[bet.number]));
  }
  if (comes > 1) {
    parts.push_back(Say(Text::AbandonedBets, comes, BetName[bet::Come]));
  }
  std::string list = parts.front();
  for (size_t k = 1; k < parts.size(); ++k)
    list = Say(Text::AbandonedBetsJoined, list, parts[k]);
  return list;
}

bool ConfirmRemoval(int place, const std::vector<AbandonedBet>& abandoned) {
  const std::string& name = Table.PlayerName[place];
  std::string text = Say(Text::AskToRemovePlayer, name);
  if (!abandoned.empty()) {
    text += "\r\r" + Say(Text::StillHasBets, name, ListOf(abandoned)) + "\r\r" +
            Say(Text::TotalAbandoned, FormatMoney(Total(abandoned)));
  }
  return ShowMessage(text, Say(Text::RemovePlayer), msg::AskNoDefault, help::Players) == AnswerYes;
}

void LoseAbandoned(int place, const std::vector<AbandonedBet>& bets) {
  for (const AbandonedBet& bet : bets) {
    RecordBetResult(place, bet.number, bet.amount, -bet.amount);
    SetBankrollSlots(place, BankrollOf(place) - bet.amount);
  }
}

void Follow(int32_t& place, int from, int to) {
  if (place == from) place = to;
}

}  // namespace

std::optional<std::string> NameRefusal(const std::string& name, int place) {
  for (int other = 1; other <= LastPlace; ++other) {
    if (other != place && IsTaken(Table, other) &&
        EqualIgnoringCase(Table.PlayerName[other], name)) {
      return Say(Text::NameTaken, name);
    }
  }
  if (name.find_first_not_of("0123456789") == std::string::npos) return Say(Text::NameAllNumeric);
  return std::nullopt;
}

bool AddPlayer(int place) {
  if (IsTaken(Table, place)) return false;
  if (ShowMessage(Say(Text::AskToAddPlayer), Say(Text::AddNewPlayer), msg::AskYesDefault,
                  help::Players) != AnswerYes)
    return false;
  const std::string name = AskName(Say(Text::AskNewPlayerName), Say(Text::AddNewPlayer), 0);
  if (name.empty()) return false;
  const std::optional<Money> buyIn =
      AskBankroll(Say(Text::AskBuyIn, name), Say(Text::AddNewPlayer), UsualBuyIn);
  if (!buyIn) return false;
  return RunCommand("AddPlayer", [&] {
    SeatPlayer(place, name, *buyIn);
    Table.TableDirty = true;
    FrontEnd.DrawTable();
  });
}

bool RenamePlayer(int place) {
  if (!IsTaken(Table, place)) return false;
  const std::string before = Table.PlayerName[place];
  const std::string name = AskName(Say(Text::AskNewName, before), Say(Text::RenamePlayer), place);
  if (name.empty()) return false;
  const bool renamed = RunCommand("RenamePlayer", [&] {
    SetPlayerName(place, name);
    Table.TableDirty = true;
    LogPlayerRenamed(before, name);
  });
  if (!renamed) return false;
  OfferToRenameSessionsLog(place);
  FrontEnd.DrawTable();
  return true;
}

bool DeletePlayer(int place, bool ask) {
  if (!IsTaken(Table, place)) return false;
  const std::vector<AbandonedBet> abandoned = AbandonedBets(place);
  if (ask && !ConfirmRemoval(place, abandoned)) return false;
  return RunCommand("DeletePlayer", [&] {
    LoseAbandoned(place, abandoned);
    Table.TableDirty = true;
    LogCashOut(place, Total(abandoned));
    Trapped("DeletePlayer", [place] { WriteSession(place); });
    ClearPlace(place);
    FollowInViews(place, 0);
    Follow(Table.LastShooter, place, 0);
    Follow(Table.PreviousShooter, place, 0);
    if (Table.Shooter == place) PassDice(PlayerLeft);
    FrontEnd.DrawTable();
  });
}

bool GiveUpDice() {
  return RunCommand("PassDice", [] { PassDice(PlayerAsked); });
}

bool MovePlayer(int from, int to) {
  if (!IsTaken(Table, from) || IsTaken(Table, to) || to < 1 || to > LastPlace) return false;
  return RunCommand("MovePlayer", [&] {
    ForEachPlaceField([&](auto& array) { std::swap(At(array, from), At(array, to)); });
    ForEachSlotField([&](auto& array) {
      for (int scope = 0; scope < SlotCount; scope += SlotsInScope) {
        std::swap(At(array, from + scope), At(array, to + scope));
      }
    });
    for (auto& bankrolls : Table.GraphBankroll)
      std::swap(At(bankrolls, from), At(bankrolls, to));
    for (int32_t* place :
         {&Table.Shooter, &Table.LastShooter, &Table.PreviousShooter, &Table.BankrollStopPlace}) {
      Follow(*place, from, to);
    }
    FollowInViews(from, to);
    Scripts.ProgramReady = false;
    Table.TableDirty = true;
    RebuildDerived();
    LogPlayerMoved(to);
    FrontEnd.DrawTable();
  });
}

}  // namespace tessarel
