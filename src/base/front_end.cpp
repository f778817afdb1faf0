#include "base/front_end.h"

namespace tessarel {

constinit FrontEndCallbacks FrontEnd;

}  // namespace tessarel
