// The menus of what is seen and heard: the view, the options, the windows and the help.
#include <QMenu>
#include <string>

#include "base/front_end.h"
#include "base/message.h"
#include "config/configuration.h"
#include "state/settings.h"
#include "texts/say.h"
#include "ui/main_menus.h"
#include "ui/main_window.h"
#include "ui/sound/sounds.h"
#include "ui/table_play.h"
#include "ui/table_presets.h"
#include "ui/windows/dice_window.h"
#include "ui/windows/help_window.h"
#include "ui/windows/roll_console.h"

namespace tessarel {

namespace {

void ToggleSetting(bool& setting) {
  setting = !setting;
  Table.TableDirty = true;
}

}  // namespace

void MainMenus::AddSavedViews() {
  for (const bool save : {true, false}) {
    QMenu* outer = std::exchange(menu_, BeginSubmenu(save ? Text::ViewSave : Text::ViewRestore));
    for (int view = 0; view <= 9; ++view) {
      const std::string digit = std::to_string(view);
      const std::string name = (save ? "mnuSaveView" : "mnuRestoreView") + digit;
      const std::string keys = (save ? "Shift+" : "Ctrl+") + digit;
      QAction* entry = Add(
          name.c_str(), Text::ViewNumber, keys.c_str(),
          [v = window_.View(), save, view] { save ? v->SaveView(view) : v->RestoreView(view); });
      entry->setProperty("value", view);
    }
    menu_ = outer;
  }
}

void MainMenus::AddColours() {
  QMenu* outer = std::exchange(menu_, BeginSubmenu(Text::ViewColours));
  const auto offer = [this](std::string_view name, Text caption, auto apply) {
    Add(std::string(name).c_str(), caption, "", [apply] {
      apply();
      Table.TableDirty = true;
      FrontEnd.DrawTable();
    });
  };
  offer("mnuSetTableStartUp", Text::ViewStartUpColours, RestoreStartUpColours);
  for (int preset = 0; preset < TablePresetCount; ++preset) {
    const TablePreset& scheme = At(TablePresets(), preset);
    offer(scheme.menu, scheme.caption, [preset] { ApplyTablePreset(preset); });
  }
  menu_ = outer;
}

void MainMenus::AddViewMenu() {
  BeginMenu(Text::MenuView);
  const auto option = [this](const char* name, Text caption, const char* keys,
                             bool TableOptions::*which) {
    Add(
        name, caption, keys, [which] { ToggleOption(which); }, {},
        [which] { return GameViews.Table.*which; });
  };
  option("mnuDisplayPropBets", Text::ViewPropositions, "\tC", &TableOptions::DisplayPropBets);
  option("mnuDisplayBetAmounts", Text::ViewAmounts, "F11", &TableOptions::DisplayBetAmounts);
  option("mnuFlashBets", Text::ViewFlash, "\tSpace", &TableOptions::FlashBets);
  AddLine();
  option("mnuStatusView", Text::ViewStatus, "", &TableOptions::StatusBox);
  AddChoices(
      Text::ViewStatusSize,
      {{"mnuStatusboxSize1", Text::StatusSizeSmall, 1},
       {"mnuStatusboxSize2", Text::StatusSizeMedium, 2},
       {"mnuStatusboxSize3", Text::StatusSizeLarge, 3}},
      [] { return GameViews.Table.StatusBoxSize; },
      [](int32_t size) { GameViews.Table.StatusBoxSize = size; });
  AddLine();
  AddColours();
  AddLine();
  TableView* view = window_.View();
  Add("mnuTableMove", Text::ViewMove, "\tZ", [&w = window_] { w.Floating().ToggleMoveWindow(); });
  Add("mnuZoomIn", Text::ViewZoomIn, "Ctrl++", [view] { view->Zoom(1.25); });
  Add("mnuZoomOut", Text::ViewZoomOut, "Ctrl+-", [view] { view->Zoom(0.8); });
  Add("mnuTurnLeft", Text::ViewTurnLeft, "", [view] { view->Rotate(-15); });
  Add("mnuTurnRight", Text::ViewTurnRight, "", [view] { view->Rotate(15); });
  Add("mnuWholeTable", Text::ViewWhole, "Home", [view] { view->ResetView(); });
  AddSavedViews();
}

void MainMenus::AddNotices() {
  QMenu* outer = std::exchange(menu_, BeginSubmenu(Text::OptionsNotices));
  for (size_t row = 0; row < NoticeRows.size(); ++row) {
    const Notice bit = NoticeRows[row].Bit;
    const auto shown = [bit] { return (Settings.Notices & bit) != 0; };
    const std::string name = "chkNotify" + std::to_string(row);
    Add(
        name.c_str(), NoticeRows.at(row).Caption, "", [bit, shown] { SetNotice(bit, !shown()); },
        {}, shown);
  }
  menu_ = outer;
}

void MainMenus::AddOptionsMenu() {
  BeginMenu(Text::MenuOptions);
  AddChoices(
      Text::OptionsTips,
      {{"mnuInfoTips0", Text::TipsNone, 0},
       {"mnuInfoTips1", Text::TipsAmounts, 1},
       {"mnuInfoTips2", Text::TipsNames, 2},
       {"mnuInfoTips3", Text::TipsBoth, 3},
       {"mnuInfoTips4", Text::TipsAll, 4}},
      [] { return Settings.InfoTipLevel; },
      [](int32_t level) {
        Settings.InfoTipLevel = level;
        Table.TableDirty = true;
      });
  Add(
      "chkSnapMouse", Text::OptionsSnap, "", [] { ToggleSetting(Settings.SnapMouse); }, {},
      [] { return Settings.SnapMouse; });
  Add(
      "chkAutoArrangeChips", Text::OptionsArrange, "",
      [] {
        ToggleSetting(Settings.AutoArrangeChips);
        FrontEnd.DrawTable();
      },
      {}, [] { return Settings.AutoArrangeChips; });
  AddNotices();
  AddLine();
  Add(
      "chkDisableAllSound", Text::OptionsSilence, "",
      [] {
        ToggleSetting(Settings.DisableAllSound);
        if (Settings.DisableAllSound) StopSounds();
      },
      {}, [] { return Settings.DisableAllSound; });
  AddSlider(Text::OptionsVolume, 100, SoundVolume, SetSoundVolume);
  AddLine();
  AddChoices(
      Text::OptionsFont,
      {{"optFontSize9", Text::StatusSizeSmall, 9},
       {"optFontSize11", Text::StatusSizeMedium, 11},
       {"optFontSize13", Text::StatusSizeLarge, 13}},
      [] { return Settings.BasicFontSize; },
      [&w = window_](int32_t size) {
        Settings.BasicFontSize = size;
        Table.TableDirty = true;
        w.TakeUpFontSize();
      });
  Add("mnuLanguage", Text::OptionsLanguage, "", [&w = window_] { w.ChangeLanguage(); });
}

void MainMenus::AddWindowMenu() {
  BeginMenu(Text::MenuWindow);
  RollConsole* console = &window_.Floating().Console();
  DiceWindow* dice = &window_.Floating().Dice();
  Add(
      "mnuWindowConsole", Text::WindowConsole, "", [console] { FloatingWindows::Toggle(*console); },
      {}, [console] { return console->isVisible(); });
  Add(
      "mnuWindowDice", Text::WindowDice, "", [dice] { FloatingWindows::Toggle(*dice); }, {},
      [dice] { return dice->isVisible(); });
  Add(
      "mnuWindowStatus", Text::ViewStatus, "", [] { ToggleOption(&TableOptions::StatusBox); }, {},
      [] { return GameViews.Table.StatusBox; });
}

void MainMenus::AddHelpMenu() {
  BeginMenu(Text::MenuHelp);
  Add("mnuContents", Text::HelpContents, "F1", [&w = window_] { ShowHelp(&w, 0); });
  Add("mnuAbout", Text::HelpAbout, "",
      [] { ShowMessage(Say(Text::AboutText, TESSAREL_VERSION), "Tessarel", msg::Ok); });
}

}  // namespace tessarel
