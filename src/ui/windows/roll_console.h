// The roll-your-own-numbers console, the window of the dice and the status box: the small windows
// that float over the table.
#pragma once

#include <QString>
#include <QWidget>

namespace tessarel {

// The floating panel "Dice Rolls", on which the user picks the outcome of the next roll. It keeps
// its display, options and colours in GameViews.
QWidget* MakeRollConsole(QWidget* parent);

// The last roll in words, as the stick calls it: "Eight the hard way".
QString DiceCall();

// The window in which the dice are shown with DiceAction 3.
QWidget* MakeDiceWindow(QWidget* parent);

// Shows a moment of the throw in the window of the dice: `phase` from 0 (thrown) to 1 (at rest).
void ShowThrow(QWidget* diceWindow, double phase);

// The box with every player's bankroll, rail, bets and win or loss, in three sizes
// (GameViews.Table.StatusBoxSize). It lies within its parent and can be dragged there; the right
// button and the wheel go to the parent.
QWidget* MakeStatusBox(QWidget* parent);

// Bring each of them up to date: new language, new figures, a changed dice picture.
void RefreshSmallWindow(QWidget* window);

// Shows the console or the window of the dice as GameViews says, as after loading a game: open or
// closed, and where it was left.
void RestoreSmallWindow(QWidget* window);

}  // namespace tessarel
