// The windows that take part in dragging: which target or source stands behind a window.
#pragma once

#include "host/drag_drop.h"

namespace drag_windows {

/// Makes the target the window's own, in place of a former one. The registry owns neither.
void AddTarget(HWND hWnd, CDragDropTarget* pTarget);
/// Takes the target back, unless the window has another by now.
void RemoveTarget(HWND hWnd, const CDragDropTarget* pTarget);
/// Null when the window has none or is gone.
CDragDropTarget* TargetOf(HWND hWnd);

/// Makes the source the window's own. The window's messages come by CDragSession from here on, and reach its
/// procedure only when that does not take them.
void AddSource(HWND hWnd, CDragDropSource* pSource);
/// Takes the source back and gives the window its procedure again.
void RemoveSource(HWND hWnd, const CDragDropSource* pSource);
CDragDropSource* SourceOf(HWND hWnd);

/// The topmost visible window at the screen point: one in the top-level window of `hFirst`, else in that of a
/// window with a target. Null when none holds the point.
HWND WindowAt(HWND hFirst, POINT ptScreen);
/// A child's parent; null for a window that is no child.
HWND ParentOfChild(HWND hWnd);

} // namespace drag_windows
