// What a person does at the table with mouse and keys, without the picture: whose bets they are,
// what a spot means for that player, and what a click on it does. The drawn table and the menus
// call these routines; the rules of bets are the engine's.
#pragma once

#include <optional>
#include <string>

#include "base/money.h"
#include "state/table.h"
#include "ui/table_choices.h"

namespace tessarel {

// What the next click on the table does. It lasts for one click; a right click cancels it.
enum TableActionMode : int {
  ActionNormal = 0,
  ActionCallOn = 1,
  ActionCallOff = 2,
  ActionBuy = 3,
  ActionRemove = 4,
  ActionMovePlayer = 10,  // plus the place of the player who is moved
};

struct TablePlayState {
  int HotSpot = 0;  // the spot under the pointer, or chosen by the arrow keys
  int TableAction = ActionNormal;
  std::string EnteredAmount;  // txtEnterBet: the digits keyed in so far
  bool DiceInAir = false;     // a roll has begun and is not settled: nothing may change
};

extern TablePlayState TablePlay;

enum class ClickKind { Add, TakeOff };

// A click on a spot: completes the action that waits, takes a keyed amount, switches the
// propositions, goes to the rail, or changes a bet by the chosen check.
void ClickSpot(int spot, ClickKind kind = ClickKind::Add);

// The bet of one spot goes to another: it comes off and is bet there as far as the rules allow.
// What cannot come off stays. `to` 0: it just comes off.
void DragBet(int from, int to);

// The menu commands that need a bet: at once when the pointer is on one that suits, else the next
// click chooses it.
void PickBetFor(TableActionMode action);

void CallAllBets(bool on);
void RemoveAllBets();

// The current player, 0 after telling that there is none or while nothing may change.
int PlayerForCommand();
void TellNobodyHere();
// Whether bets may change now, after the question that a running script asks for.
bool MayChange();

// Commands on players; each tells when there is nobody. A click on an open place, or on the place
// to move to, ends in ClickSpot.
void RenameCurrentPlayer();
void RemoveCurrentPlayer();
void MoveCurrentPlayer();
void BuyInCurrentPlayer();
void PassTheDice();

// Throws the dice, after the question that a running script asks for. Nothing happens while a roll
// or a run is on its way.
void RollTheDice();

// Whether a person can roll, or change the table as a whole, now.
bool TableIsIdle();

// Whether bets and players may be changed now: also in the pauses of Auto-Roll, but not while the
// dice are in the air or under the Hyper-Drive.
bool TableIsOpen();

// A digit, a point or a backspace (8) for the keyed amount. Returns whether it was taken.
bool KeyAmount(char key);

// One line that says what a click on the spot will do, and whether it may: why not otherwise.
struct ClickOutlook {
  std::string text;
  bool possible = true;
};
ClickOutlook OutlookOfSpot(int spot);

// The lines of the InfoTip of a spot at Settings.InfoTipLevel; empty for none.
std::string InfoTipOf(int spot);

}  // namespace tessarel
