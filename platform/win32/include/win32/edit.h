#pragma once

// The styles and messages of every edit control. The one control here that answers them is that of
// richedit.h.

#include "win32/types.h"

constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_AUTOVSCROLL = 0x0040;
constexpr DWORD ES_AUTOHSCROLL = 0x0080;
constexpr DWORD ES_NOHIDESEL = 0x0100;
constexpr DWORD ES_OEMCONVERT = 0x0400;
constexpr DWORD ES_WANTRETURN = 0x1000;

/// Start in *(DWORD*)wParam and end in *(DWORD*)lParam, where not null; answers both as words.
constexpr UINT EM_GETSEL = 0x00B0;
/// As EM_EXSETSEL, start in wParam and end in lParam.
constexpr UINT EM_SETSEL = 0x00B1;
/// At least 1; an empty line at the end counts.
constexpr UINT EM_GETLINECOUNT = 0x00BA;
/// The start of line wParam (-1: the one in which the selection starts); -1 when there is none.
constexpr UINT EM_LINEINDEX = 0x00BB;
/// The length of the line that holds position wParam, without its end.
constexpr UINT EM_LINELENGTH = 0x00C1;
/// Puts the zero-terminated text at lParam in the selection's place, and the empty selection behind it. 0
/// when memory is short.
constexpr UINT EM_REPLACESEL = 0x00C2;
/// Copies line wParam without its end and without a zero to lParam, whose first word says how many bytes it
/// takes. An empty line reads as a bare CR. The bytes copied; 0 when there is no such line.
constexpr UINT EM_GETLINE = 0x00C4;
