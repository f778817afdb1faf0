#include "ui/main_keys.h"

#include <QApplication>
#include <utility>

#include "files/hot_keys.h"
#include "play/auto_roll.h"
#include "ui/table_play.h"

namespace tessarel {

namespace {

struct PlainKey {
  int key;
  const char* entry;
};
constexpr PlainKey PlainKeys[] = {
    {Qt::Key_P, "mnuPassDice"},        {Qt::Key_Z, "mnuTableMove"}, {Qt::Key_Space, "mnuFlashBets"},
    {Qt::Key_C, "mnuDisplayPropBets"}, {Qt::Key_R, "mnuAutoRoll"},  {Qt::Key_H, "mnuHyperDrive"},
};

bool IsLetter(int key) {
  return key >= Qt::Key_A && key <= Qt::Key_Z;
}

char LetterOf(int key) {
  return static_cast<char>('A' + key - Qt::Key_A);
}

// What Escape gives up: a keyed amount, then a command that waits for its bet.
bool GiveUpSomething() {
  if (!TablePlay.EnteredAmount.empty()) {
    TablePlay.EnteredAmount.clear();
    return true;
  }
  return std::exchange(TablePlay.TableAction, ActionNormal) != ActionNormal;
}

}  // namespace

MainKeys::MainKeys(TableView* view, const MainMenus* menus, QObject* parent)
    : QObject(parent), view_(view), menus_(menus) {
  qApp->installEventFilter(this);
}

// A letter with Ctrl that has a script comes before the menus' shortcut of the same letter.
bool MainKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride || QApplication::activeModalWidget() != nullptr)
    return QObject::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool letter = key->modifiers() == Qt::ControlModifier && IsLetter(key->key());
  if (!letter || RowOfHotKey(LetterOf(key->key())) == 0)
    return QObject::eventFilter(watched, event);
  event->accept();
  return true;
}

bool MainKeys::Handle(const QKeyEvent& event) {
  const int key = event.key();
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::ControlModifier && IsLetter(key)) {
    const bool ran = TableIsIdle() && RunHotKey(LetterOf(key));
    Q_EMIT Handled();
    return ran;
  }
  const bool handled = modifiers == Qt::NoModifier && HandleTableKey(key);
  if (handled) Q_EMIT Handled();
  return handled;
}

bool MainKeys::HandleTab() {
  if (TablePlay.EnteredAmount.empty()) return false;
  ClickSpot(TablePlay.HotSpot);
  Q_EMIT Handled();
  return true;
}

bool MainKeys::HandleTableKey(int key) {
  for (const PlainKey& plain : PlainKeys) {
    if (plain.key != key) continue;
    menus_->Entry(plain.entry)->trigger();
    return true;
  }
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      ClickSpot(TablePlay.HotSpot);
      return true;
    case Qt::Key_Backspace:
      if (!KeyAmount(8)) ClickSpot(TablePlay.HotSpot, ClickKind::TakeOff);
      return true;
    case Qt::Key_Escape:
      if (!GiveUpSomething() && Table.AutoRollOn) StopAutoRoll();
      return true;
  }
  return HandleArrow(key) || HandleDigit(key);
}

bool MainKeys::HandleArrow(int key) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      view_->MoveHotSpot(key == Qt::Key_Left ? -1 : 1, 0);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      view_->MoveHotSpot(0, key == Qt::Key_Up ? -1 : 1);
      return true;
  }
  return false;
}

// Digits make up an amount when amounts are keyed in; else 1 to 5 choose a check.
bool MainKeys::HandleDigit(int key) {
  if (GameViews.Table.KeyInBetAmounts) {
    const bool point = key == Qt::Key_Period || key == Qt::Key_Comma;
    return key < 128 && KeyAmount(point ? '.' : static_cast<char>(key));
  }
  if (key < Qt::Key_1 || key > Qt::Key_5) return false;
  ChooseCheck(key - Qt::Key_0);
  return true;
}

}  // namespace tessarel
