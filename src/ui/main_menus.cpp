#include "ui/main_menus.h"

#include <QMenuBar>
#include <QSlider>
#include <QWidgetAction>
#include <string>

#include "ui/main_window.h"
#include "ui/table_play.h"
#include "ui/text.h"

namespace tessarel {

namespace {

// The letters of a caption that its shortcut mark may stand before: its own first, then those that
// begin words, then all others.
std::vector<int> MarkPositions(const QString& caption) {
  std::vector<int> positions;
  const QString plain = WithoutMark(caption);
  const auto own = static_cast<int>(caption.indexOf('&'));
  if (own >= 0) positions.push_back(own);
  for (const bool starts : {true, false}) {
    for (int k = 0; k < plain.size() && plain[k] != '\t'; ++k) {
      const bool isStart = k == 0 || plain[k - 1] == ' ';
      if (isStart == starts && plain[k].isLetterOrNumber()) positions.push_back(k);
    }
  }
  return positions;
}

// Every entry of a menu gets a shortcut letter that no other one has, its own mark if it can.
void GiveShortcutLetters(const QMenu& menu) {
  constexpr QChar Mark(1);
  QString used;
  for (QAction* action : menu.actions()) {
    const QString caption = action->text();
    if (caption.isEmpty()) continue;
    QString plain = WithoutMark(caption);
    for (const int position : MarkPositions(caption)) {
      // As Qt reads a mark: a dotless i is the same key as one with a dot.
      const QChar letter = plain[position].toUpper();
      if (used.contains(letter)) continue;
      used += letter;
      plain.insert(position, Mark);
      break;
    }
    action->setText(plain.replace('&', "&&").replace(Mark, '&'));
  }
}

}  // namespace

MainMenus::MainMenus(MainWindow& window) : QObject(&window), window_(window) {
  AddGameMenu();
  AddPlayersMenu();
  AddBetsMenu();
  AddDiceMenu();
  AddViewMenu();
  AddOptionsMenu();
  AddAutoMenu();
  AddWindowMenu();
  AddHelpMenu();
}

void MainMenus::BeginMenu(Text caption) {
  menu_ = window_.menuBar()->addMenu(QString());
  menus_.push_back({menu_, caption});
}

QMenu* MainMenus::BeginSubmenu(Text caption) {
  QMenu* inner = menu_->addMenu(QString());
  menus_.push_back({inner, caption});
  return inner;
}

QAction* MainMenus::MakeEntry(const char* name, Text caption, const char* keys) {
  auto* entry = new QAction(this);
  entry->setObjectName(name);
  const QString shown = QString::fromLatin1(keys);
  if (shown.startsWith('\t')) {
    entry->setProperty("shownKeys", shown);
  } else if (!shown.isEmpty()) {
    entry->setShortcut(QKeySequence(shown));
  }
  menu_->addAction(entry);
  entries_.push_back({entry, caption});
  return entry;
}

void MainMenus::AddSlider(Text caption, int most, int (*value)(), void (*change)(int)) {
  QMenu* inner = BeginSubmenu(caption);
  auto* slider = new QSlider(Qt::Horizontal, inner);
  slider->setRange(0, most);
  slider->setMinimumWidth(180);
  slider->setAccessibleName(WithoutMark(Shown(caption)));
  auto* action = new QWidgetAction(inner);
  action->setDefaultWidget(slider);
  inner->addAction(action);
  connect(inner, &QMenu::aboutToShow, slider, [slider, value] {
    const QSignalBlocker quiet(slider);
    slider->setValue(value());
    slider->setFocus();
  });
  connect(slider, &QSlider::valueChanged, slider, change);
}

// The players at the end of their menu; the one the mouse bets for is marked.
void MainMenus::ListPlayers() {
  for (QAction* old : playerEntries_)
    delete old;
  playerEntries_.clear();
  ForEachPlayer([this](int place) {
    auto* entry = new QAction(Shown(Table.PlayerName[place]).replace('&', "&&"), this);
    entry->setCheckable(true);
    entry->setChecked(place == CurrentPlace());
    connect(entry, &QAction::triggered, this, [place] { SelectPlace(place); });
    players_->addAction(entry);
    playerEntries_.push_back(entry);
  });
}

void MainMenus::SetCaptions() {
  for (const auto& [menu, caption] : menus_)
    menu->setTitle(Shown(caption));
  for (const auto& [entry, caption] : entries_) {
    QString text = Shown(caption);
    const QVariant value = entry->property("value");
    if (value.isValid()) {
      const std::string number = std::to_string(value.toInt());
      text = Shown(SayChosen(caption, number)).replace(Shown(number), "&" + Shown(number));
    }
    entry->setText(text + entry->property("shownKeys").toString());
  }
  for (const auto& [menu, caption] : menus_)
    GiveShortcutLetters(*menu);
}

}  // namespace tessarel
