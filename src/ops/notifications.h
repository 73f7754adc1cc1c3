// Telling everybody concerned that the page's objects changed, and that they were redrawn.
#pragma once

#include "host/tool.h"

namespace notifications {
int NotifyObjectsChanged(CTool& tool);
int NotifyObjectsRedrawn(CTool& tool);
} // namespace notifications
