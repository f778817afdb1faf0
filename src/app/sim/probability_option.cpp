#include "app/sim/probability_option.h"

#include <utility>

#include "app/sim/failure.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "texts/say.h"

namespace tessarel::sim {

void ActivateProbability(const std::string& file) {
  if (!FileExists(InFolder(Folders.AppFolder, file))) {
    throw Failure(CannotBeDone, Say(Text::SimDoesNotExist, Wording(Text::SimProbability), file));
  }
  const auto show = std::exchange(FrontEnd.ShowMessage, [] {});  // the sentence below tells it all
  const bool opened = OpenProbabilityFile(file);
  FrontEnd.ShowMessage = show;
  if (!opened) {
    throw Failure(CannotBeDone, Say(Text::SimNotAProbabilityFile, file));
  }
  Probability.ProbabilityMatrixActive = true;
}

}  // namespace tessarel::sim
