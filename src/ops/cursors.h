// The system cursors the tools show, by their ids.
#pragma once

class CListenerObject;

namespace cursor_id {
inline constexpr int Arrow = 32512;
inline constexpr int IBeam = 32513;
inline constexpr int SizeNwSe = 32642;
inline constexpr int SizeNeSw = 32643;
inline constexpr int SizeWe = 32644;
inline constexpr int SizeNs = 32645;
inline constexpr int SizeAll = 32646;
} // namespace cursor_id

/// Shows a system cursor now and makes it the view's class cursor, so that it stays while the pointer is
/// still. Nothing happens without a view.
void ShowCursor(CListenerObject& seeker, int nCursorId);
