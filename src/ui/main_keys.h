// The keys of the table: amounts, checks and commands by plain keys, and the scripts of the hot
// keys, which come before the menus' shortcuts.
#pragma once

#include <QKeyEvent>
#include <QObject>

#include "ui/main_menus.h"
#include "ui/table_view.h"

namespace tessarel {

class MainKeys : public QObject {
  Q_OBJECT
 public:
  MainKeys(TableView* view, const MainMenus* menus, QObject* parent);

  // Whether the key means something here; it is done then.
  bool Handle(const QKeyEvent& event);
  // Tab belongs to a keyed amount, as Enter does. Returns whether there was one.
  bool HandleTab();

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void Handled();  // what is shown may have changed

 private:
  bool HandleTableKey(int key);
  bool HandleArrow(int key);
  bool HandleDigit(int key);

  TableView* view_;
  const MainMenus* menus_;
};

}  // namespace tessarel
