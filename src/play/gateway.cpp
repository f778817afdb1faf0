#include "play/gateway.h"

#include <memory>

#include "base/fault.h"
#include "base/front_end.h"
#include "base/trap.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/table.h"

namespace tessarel {

namespace {

// The game as it stands before a command.
struct GameCopy {
  TableState table = Table;
  StatsState stats = Stats;
  ScriptStoreState scripts = Scripts;
};

// What scripts were compiled for may hold no longer.
void PutBack(GameCopy& copy) {
  Table = std::move(copy.table);
  Stats = copy.stats;
  Scripts = std::move(copy.scripts);
  Scripts.ProgramReady = false;
}

// Marks that a command runs.
class Running {
 public:
  Running() { ++Depth; }
  ~Running() { --Depth; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  inline static int Depth = 0;
};

}  // namespace

bool RunCommand(std::string_view name, const std::function<void()>& command) {
  if (Running::Depth > 0 || Table.RollInProgress) {
    command();
    return true;
  }
  const auto before = std::make_unique<GameCopy>();
  try {
    const Running running;
    command();
    return true;
  } catch (const Fault& fault) {
    PutBack(*before);
    FrontEnd.DrawTable();
    FrontEnd.RefreshViews();
    ReportFault(fault, name);
    return false;
  }
}

}  // namespace tessarel
