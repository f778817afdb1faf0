#include "state/view_state.h"

namespace tessarel {

ViewState GameViews;

}  // namespace tessarel
