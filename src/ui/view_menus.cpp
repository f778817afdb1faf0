// The menus of what is seen and heard: the view, the options, the windows and the help.
#include <QMenu>
#include <string>

#include "base/front_end.h"
#include "base/message.h"
#include "config/configuration.h"
#include "state/settings.h"
#include "ui/main_menus.h"
#include "ui/main_texts.h"
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
    QMenu* outer = std::exchange(menu_, BeginSubmenu(save ? texts::ViewSave : texts::ViewRestore));
    for (int view = 0; view <= 9; ++view) {
      const std::string digit = std::to_string(view);
      const std::string name = (save ? "mnuSaveView" : "mnuRestoreView") + digit;
      const std::string keys = (save ? "Shift+" : "Ctrl+") + digit;
      QAction* entry = Add(
          name.c_str(), texts::ViewNumber, keys.c_str(),
          [v = window_.View(), save, view] { save ? v->SaveView(view) : v->RestoreView(view); });
      entry->setProperty("value", view);
    }
    menu_ = outer;
  }
}

void MainMenus::AddColours() {
  QMenu* outer = std::exchange(menu_, BeginSubmenu(texts::ViewColours));
  const auto offer = [this](std::string_view name, const SixTexts& caption, auto apply) {
    Add(std::string(name).c_str(), caption, "", [apply] {
      apply();
      Table.TableDirty = true;
      FrontEnd.DrawTable();
    });
  };
  offer("mnuSetTableStartUp", texts::ViewStartUpColours, RestoreStartUpColours);
  for (int preset = 0; preset < TablePresetCount; ++preset) {
    const TablePreset& scheme = At(TablePresets(), preset);
    offer(scheme.menu, scheme.caption, [preset] { ApplyTablePreset(preset); });
  }
  menu_ = outer;
}

void MainMenus::AddViewMenu() {
  BeginMenu(texts::MenuView);
  const auto option = [this](const char* name, const SixTexts& caption, const char* keys,
                             bool TableOptions::*which) {
    Add(
        name, caption, keys, [which] { ToggleOption(which); }, {},
        [which] { return GameViews.Table.*which; });
  };
  option("mnuDisplayPropBets", texts::ViewPropositions, "\tC", &TableOptions::DisplayPropBets);
  option("mnuDisplayBetAmounts", texts::ViewAmounts, "F11", &TableOptions::DisplayBetAmounts);
  option("mnuFlashBets", texts::ViewFlash, "\tSpace", &TableOptions::FlashBets);
  AddLine();
  option("mnuStatusView", texts::ViewStatus, "", &TableOptions::StatusBox);
  AddChoices(
      texts::ViewStatusSize,
      {{"mnuStatusboxSize1", &texts::SizeSmall, 1},
       {"mnuStatusboxSize2", &texts::SizeMedium, 2},
       {"mnuStatusboxSize3", &texts::SizeLarge, 3}},
      [] { return GameViews.Table.StatusBoxSize; },
      [](int32_t size) { GameViews.Table.StatusBoxSize = size; });
  AddLine();
  AddColours();
  AddLine();
  TableView* view = window_.View();
  Add("mnuTableMove", texts::ViewMove, "\tZ", [&w = window_] { w.Floating().ToggleMoveWindow(); });
  Add("mnuZoomIn", texts::ViewZoomIn, "Ctrl++", [view] { view->Zoom(1.25); });
  Add("mnuZoomOut", texts::ViewZoomOut, "Ctrl+-", [view] { view->Zoom(0.8); });
  Add("mnuTurnLeft", texts::ViewTurnLeft, "", [view] { view->Rotate(-15); });
  Add("mnuTurnRight", texts::ViewTurnRight, "", [view] { view->Rotate(15); });
  Add("mnuWholeTable", texts::ViewWhole, "Home", [view] { view->ResetView(); });
  AddSavedViews();
}

void MainMenus::AddNotices() {
  QMenu* outer = std::exchange(menu_, BeginSubmenu(texts::OptionsNotices));
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
  BeginMenu(texts::MenuOptions);
  AddChoices(
      texts::OptionsTips,
      {{"mnuInfoTips0", &texts::TipsNone, 0},
       {"mnuInfoTips1", &texts::TipsAmounts, 1},
       {"mnuInfoTips2", &texts::TipsNames, 2},
       {"mnuInfoTips3", &texts::TipsBoth, 3},
       {"mnuInfoTips4", &texts::TipsAll, 4}},
      [] { return Settings.InfoTipLevel; },
      [](int32_t level) {
        Settings.InfoTipLevel = level;
        Table.TableDirty = true;
      });
  Add(
      "chkSnapMouse", texts::OptionsSnap, "", [] { ToggleSetting(Settings.SnapMouse); }, {},
      [] { return Settings.SnapMouse; });
  Add(
      "chkAutoArrangeChips", texts::OptionsArrange, "",
      [] {
        ToggleSetting(Settings.AutoArrangeChips);
        FrontEnd.DrawTable();
      },
      {}, [] { return Settings.AutoArrangeChips; });
  AddNotices();
  AddLine();
  Add(
      "chkDisableAllSound", texts::OptionsSilence, "",
      [] {
        ToggleSetting(Settings.DisableAllSound);
        if (Settings.DisableAllSound) StopSounds();
      },
      {}, [] { return Settings.DisableAllSound; });
  AddSlider(texts::OptionsVolume, 100, SoundVolume, SetSoundVolume);
  AddLine();
  AddChoices(
      texts::OptionsFont,
      {{"optFontSize9", &texts::SizeSmall, 9},
       {"optFontSize11", &texts::SizeMedium, 11},
       {"optFontSize13", &texts::SizeLarge, 13}},
      [] { return Settings.BasicFontSize; },
      [&w = window_](int32_t size) {
        Settings.BasicFontSize = size;
        Table.TableDirty = true;
        w.TakeUpFontSize();
      });
  Add("mnuLanguage", texts::OptionsLanguage, "", [&w = window_] { w.ChangeLanguage(); });
}

void MainMenus::AddWindowMenu() {
  BeginMenu(texts::MenuWindow);
  RollConsole* console = &window_.Floating().Console();
  DiceWindow* dice = &window_.Floating().Dice();
  Add(
      "mnuWindowConsole", texts::WindowConsole, "",
      [console] { FloatingWindows::Toggle(*console); }, {},
      [console] { return console->isVisible(); });
  Add(
      "mnuWindowDice", texts::WindowDice, "", [dice] { FloatingWindows::Toggle(*dice); }, {},
      [dice] { return dice->isVisible(); });
  Add(
      "mnuWindowStatus", texts::ViewStatus, "", [] { ToggleOption(&TableOptions::StatusBox); }, {},
      [] { return GameViews.Table.StatusBox; });
}

void MainMenus::AddHelpMenu() {
  BeginMenu(texts::MenuHelp);
  Add("mnuContents", texts::HelpContents, "F1", [&w = window_] { ShowHelp(&w, 0); });
  Add("mnuAbout", texts::HelpAbout, "",
      [] { ShowMessage(FillIn(texts::AboutText, {TESSAREL_VERSION}), "Tessarel", msg::Ok); });
}

}  // namespace tessarel
