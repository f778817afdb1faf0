#include "engine/unattended.h"

#include "base/front_end.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

void StopUnattended() {
  if (Table.AutoRollOn == 0 && Table.HyperDriveOn == 0) return;
  Table.AutoRollOn = Table.HyperDriveOn = 0;
  if (!Table.StopReason.empty()) {
    ShowMessage(Table.StopReason, Say(Text::HyperDriveStopped), msg::OkAlert, help::AutoRoll);
  }
  FrontEnd.DrawTable();
  FrontEnd.RefreshViews();
}

}  // namespace tessarel
