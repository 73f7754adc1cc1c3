// The three size matchings of the selected objects: left and top edges stay, what is matched takes the
// greatest extent of all.
#pragma once

#include "host/tool.h"

namespace match_size {
void Width(CTool& tool);
void Height(CTool& tool);
void Both(CTool& tool);
} // namespace match_size
