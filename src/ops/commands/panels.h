// Which property page suits the selection and the tool, and what it shows.
#pragma once

#include "host/tool.h"

namespace panels {
int SyncAttributePanels(CTool& tool);
int SyncToolPanel(CTool& tool);
int ResetHost(CTool& tool);
} // namespace panels
