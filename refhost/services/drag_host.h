// Dragging as the host itself does it: texts from outside, and what became of the last drag.
#pragma once

#include <string>

#include <windows.h>

/// Offers a text from outside to the target of exactly this window, at a point in the window's client pixels.
/// `nPhase` drop_phase::Over hovers, drop_phase::Drop asks and, when the answer is 1, delivers the text.
/// A zero byte ends the text. `dwKeyState` is MK_ bits, `dwSource` a drop_source. `*pdwEffect` (may be null)
/// receives the drop_effect. What m_fnOnDataArrive answered; -1 when the window has no enabled target; 0 when
/// the target did not live to take the text.
int DropText(HWND hWnd, POINT point, const std::string& text, UINT nFormat, DWORD dwKeyState, DWORD dwSource,
             int nPhase, DWORD* pdwEffect);
/// The text from outside leaves the window again.
void LeaveDrop(HWND hWnd);

/// The drop_effect of the last drag that ended; None when it was given up.
DWORD LastDragEffect();
/// The drags that have ended, given up or not. A press that was released in its place was none.
unsigned DragCount();
