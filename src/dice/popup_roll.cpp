#include "dice/popup_roll.h"

#include "base/clock.h"
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/roll_file.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

PopupRollState PopupRoll;

namespace {

constexpr float LongestWait = 0.5F;  // seconds, when nobody asked for a run
constexpr int64_t LookEvery = 1;     // milliseconds

// The first two digits from 1 to 6; die2 is 0 when the file ends before it.
Faces FirstDice(const std::string& path) {
  Faces faces{0, 0};
  ReadFileInBlocks(path, [&faces](std::string_view block) {
    for (const char c : block) {
      if (c < '1' || c > '6') continue;
      int32_t& die = faces.die1 == 0 ? faces.die1 : faces.die2;
      die = c - '0';
      if (faces.die2 != 0) return false;
    }
    return true;
  });
  return faces;
}

bool WaitUntilThere() {
  const float began = SecondsSinceMidnight(Now());
  bool unattended = false;
  while (PopupRoll.PopupRollActive && !FileExists(PopupRoll.PopupRollFileName)) {
    if (Table.AutoRollOn || Table.HyperDriveOn) {
      unattended = true;
    } else {
      const float waited = SecondsSinceMidnight(Now()) - began;
      // A new day counts its seconds from 0.
      if (unattended || waited < 0 || waited >= LongestWait) return false;
    }
    FrontEnd.RunPendingEvents();
    Rest(LookEvery);
  }
  return true;
}

}  // namespace

void OpenPopupRoll(const std::string& name) {
  PopupRoll.PopupRollFileName = InFolder(Folders.AppFolder, name);
  PopupRoll.PopupRollActive = true;
}

void ClosePopupRoll() {
  PopupRoll.PopupRollFileName.clear();
  PopupRoll.PopupRollActive = false;
}

bool WaitForPopupRoll() {
  if (FileExists(PopupRoll.PopupRollFileName)) return true;
  PopupRoll.Waiting = true;
  FrontEnd.DrawStatus();
  const bool there = WaitUntilThere();
  PopupRoll.Waiting = false;
  FrontEnd.DrawStatus();
  return there;
}

std::optional<Faces> TakePopupRoll() {
  try {
    const Faces faces = FirstDice(PopupRoll.PopupRollFileName);
    if (faces.die2 != 0) {
      DeleteFileIfPresent(PopupRoll.PopupRollFileName);
      return faces;
    }
  } catch (const Fault& fault) {
    // A file that stays would give its dice again and again, or none at each of a run's rolls.
    ReportFault(fault, "TakePopupRoll");
    Table.Stop = StopCause::PopupRollFault;
    Table.StopFault = fault.Description;
    return std::nullopt;
  }
  if (!Table.HyperDriveOn) {
    ShowMessage(Say(Text::InvalidRollInPopup), Say(Text::RollFileError), msg::OkAlert);
  }
  Table.Stop = StopCause::InvalidRoll;
  return std::nullopt;
}

}  // namespace tessarel
