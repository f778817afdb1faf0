// The pointer over the table, of the mouse and of the arrow keys: which spot it is on, what a
// press, a drag and a release there do. It hands what is meant to ui/table_play.h.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <QWidget>

#include "ui/table/table_dice.h"
#include "ui/table/table_picture.h"
#include "ui/table/table_piles.h"

namespace tessarel {

class TablePointer : public QObject {
  Q_OBJECT
 public:
  // `table` shows the cursor, the tips and the picture that the pointer moves on.
  TablePointer(const TablePicture& picture, TableDice& dice, QWidget* table);

  // `canPan`: the table is larger than its widget.
  void Move(QPoint pixel, bool canPan);
  void Press(QPoint pixel, Qt::MouseButton button);
  void Release(QPoint pixel, Qt::KeyboardModifiers modifiers);
  void Leave();
  // Forgets a press and what it had begun.
  void LetGo();
  // A check from the bar, of a denomination 1 to 5. Returns whether it could lie here.
  bool MoveCheck(QPoint pixel);
  bool DropCheck(QPoint pixel, int denomination);
  // The keyboard's pointer: to the nearest bet in a direction, around the ends.
  void Step(int dx, int dy);
  // Looks again at what the spot means now.
  void Refresh();

  int LitSpot() const { return litSpot_; }
  bool IsLitPossible() const { return litPossible_; }
  bool IsDragging() const { return dragging_; }
  int DropSpot() const { return dragging_ ? dropSpot_ : 0; }
  HeldPile Held() const;
  // The pile in hand.
  void PaintHeld(QPainter& painter, const TablePiles& piles) const;

 Q_SIGNALS:
  void OutlookChanged();  // another HotSpot, or another meaning
  void Changed();         // of what is lit or held
  void ActionGivenUp();
  void Panned(QPoint by);
  void PlayerClicked(int place, QPoint at);  // the current one, on the screen
  void RightClicked();                       // with nothing to give up
  void DiceClicked();

 private:
  void SetHotSpot(int spot);
  void ShowTip();
  void BeginDrag(bool canPan);
  void PressRight();
  void ClickAt(QPoint pixel, Qt::KeyboardModifiers modifiers);
  void KeepClickedPosition(int spot, QPoint pixel);
  int NearestBet(int dx, int dy) const;
  bool IsOnDice(QPoint pixel) const;

  const TablePicture& picture_;
  TableDice& dice_;
  QWidget* const table_;
  QTimer tip_;
  bool pressed_ = false, dragging_ = false, panning_ = false;
  bool chosenByKeys_ = false;  // the HotSpot: the pointer's leaving does not give it up
  int pressedSpot_ = 0, dropSpot_ = 0;
  QPoint pressedAt_, pointer_;
  int litSpot_ = 0;
  bool litPossible_ = true;
};

}  // namespace tessarel
