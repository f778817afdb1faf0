// The commands on the current player: each tells when there is nobody.
#include <optional>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/atm.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/rail.h"
#include "state/settings.h"
#include "texts/say.h"
#include "ui/table_play.h"

namespace tessarel {

void TellNobodyHere() {
  ShowMessage(Say(Text::ClickOpenPosition), Say(Text::AddPlayerTitle), msg::Ok);
}

bool MayChange() {
  return TableIsOpen() && ConfirmScriptActive();
}

int PlayerForCommand() {
  if (!TableIsOpen()) return 0;
  const int place = CurrentPlace();
  if (place == 0) TellNobodyHere();
  return place;
}

void RenameCurrentPlayer() {
  const int place = PlayerForCommand();
  if (place != 0 && RenamePlayer(place)) FrontEnd.DrawTable();
}

void RemoveCurrentPlayer() {
  const int place = PlayerForCommand();
  if (place != 0 && MayChange() && DeletePlayer(place, true)) FrontEnd.DrawTable();
}

void MoveCurrentPlayer() {
  const int place = PlayerForCommand();
  if (place == 0 || !MayChange()) return;
  TablePlay.TableAction = ActionMovePlayer + place;
  FrontEnd.DrawTable();
}

void BuyInCurrentPlayer() {
  const int place = PlayerForCommand();
  if (place == 0) return;
  const std::string question = Say(Text::AskMoreBuyIn, Table.PlayerName[place]);
  const std::string title = Say(Text::BuyInTitle);
  std::string offered = PlainText(Settings.AtmAmount);
  while (AskForText(question, title, offered, help::Players)) {
    offered = Message.MsgInput;
    const std::optional<Money> amount = ParseTypedMoney(offered);
    if (amount && *amount > Money()) {
      ATM(place, false, *amount, true);
      Table.TableDirty = true;
      return FrontEnd.DrawTable();
    }
    ShowMessage(Say(Text::BuyInRefused), title, msg::OkAlert);
  }
}

void PassTheDice() {
  if (!MayChange()) return;
  Table.TableDirty = true;
  GiveUpDice();
  FrontEnd.DrawTable();
}

}  // namespace tessarel
