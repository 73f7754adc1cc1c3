// The keyboard shortcuts.
#pragma once

#include "host/tool.h"

namespace keys {
/// Delete, as the key goes down. Answers 0.
int OnKeyDown(CTool& tool, UINT nChar);
/// Select all, copy and paste, as the key comes up while Ctrl is held.
int OnKeyUp(CTool& tool, UINT nChar);
} // namespace keys
