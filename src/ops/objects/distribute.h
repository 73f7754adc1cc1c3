// Distributing the selected objects between the first and the last of them along one axis.
#pragma once

#include "host/tool.h"

namespace distribute {
void Vertically(CTool& tool);
void Horizontally(CTool& tool);
} // namespace distribute
