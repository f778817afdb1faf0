// The menus of the main window: every entry with its name, caption, keys, what it does, when it is
// possible and what its check mark says. Entries are children of the menus and found by their name.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QObject>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

class MainWindow;

class MainMenus : public QObject {
  Q_OBJECT
 public:
  explicit MainMenus(MainWindow& window);

  // The entry of a name, as in "mnuRollDice"; null for none.
  QAction* Entry(const QString& name) const { return findChild<QAction*>(name); }
  // The captions in the language in force.
  void SetCaptions();
  // Brings what is possible and what is checked in step with the table.
  void Refresh() { Q_EMIT Refreshed(); }

 Q_SIGNALS:
  void Done();  // the command of an entry
  void Refreshed();

 private:
  // Stands where an entry is always possible or has no check mark.
  struct Unconditional {};

  void AddGameMenu();
  void AddPlayersMenu();
  void AddBetsMenu();
  void AddDiceMenu();
  void AddViewMenu();
  void AddSavedViews();
  void AddColours();
  void AddOptionsMenu();
  void AddNotices();
  void AddAutoMenu();
  void AddWindowMenu();
  void AddHelpMenu();
  void ListPlayers();

  void BeginMenu(Text caption);
  QMenu* BeginSubmenu(Text caption);  // within the menu begun
  void AddLine() { menu_->addSeparator(); }
  QAction* MakeEntry(const char* name, Text caption, const char* keys);

  // `keys` is a shortcut; with a leading tab it is only shown, and the window handles the key.
  template <class Action, class Possible = Unconditional, class Checked = Unconditional>
  QAction* Add(const char* name,
               Text caption,
               const char* keys,
               Action action,
               Possible possible = {},
               Checked checked = {}) {
    QAction* entry = MakeEntry(name, caption, keys);
    connect(entry, &QAction::triggered, this, [this, action] {
      action();
      Q_EMIT Done();
    });
    if constexpr (!std::is_same_v<Possible, Unconditional>) {
      connect(this, &MainMenus::Refreshed, entry,
              [entry, possible] { entry->setEnabled(possible()); });
    }
    if constexpr (!std::is_same_v<Checked, Unconditional>) {
      entry->setCheckable(true);
      connect(this, &MainMenus::Refreshed, entry,
              [entry, checked] { entry->setChecked(checked()); });
    }
    return entry;
  }

  // Entries of which one holds.
  struct Choice {
    const char* name;
    Text caption;
    int32_t value;
  };
  template <class Now, class Choose>
  void AddChoices(Text caption, std::initializer_list<Choice> choices, Now now, Choose choose) {
    QMenu* outer = std::exchange(menu_, BeginSubmenu(caption));
    auto* group = new QActionGroup(this);
    for (const Choice& choice : choices) {
      const int32_t value = choice.value;
      group->addAction(Add(
          choice.name, choice.caption, "", [choose, value] { choose(value); }, {},
          [now, value] { return now() == value; }));
    }
    menu_ = outer;
  }

  // A slider from 0 to `most` in a menu of its own.
  void AddSlider(Text caption, int most, int (*value)(), void (*change)(int));

  template <class Kind>
  struct Captioned {
    Kind* shown;
    Text caption;
  };

  MainWindow& window_;
  QMenu* menu_ = nullptr;  // the one that entries are added to
  QMenu* players_ = nullptr;
  std::vector<Captioned<QMenu>> menus_;
  std::vector<Captioned<QAction>> entries_;
  std::vector<QAction*> playerEntries_;
};

}  // namespace tessarel
