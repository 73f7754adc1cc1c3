// The context menu: what a right press does once running gestures have ended. Points are client pixels.
#pragma once

#include "host/tool.h"

class CMenu;

namespace context_menu {
/// Shows the menu and runs the command that is chosen. Answers 0; nothing happens when the menu cannot be
/// loaded.
int OnRButtonDown(CTool& tool, CPoint point);
/// Makes the object under the point the only selected one unless the point is on the selection. A change is
/// one undo step.
void PrepareContextSelection(CTool& tool, CPoint point);
/// Sets the states of the pop-up's items.
void EnableContextMenu(CTool& tool, CMenu& menu, CPoint point);
} // namespace context_menu
