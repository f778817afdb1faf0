#include "engine/unattended.h"

#include "base/front_end.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/roll_texts.h"

namespace tessarel {

void StopUnattended() {
  if (!RunIsOn()) return;
  Table.AutoRollOn = Table.HyperDriveOn = false;
  if (!Table.StopReason.empty()) {
    ShowMessage(Table.StopReason, LocalizedText(RollTexts.HyperDriveStopped), msg::OkAlert,
                help::AutoRoll);
  }
  FrontEnd.DrawTable();
  FrontEnd.RefreshViews();
}

}  // namespace tessarel
