#pragma once

// The rich-edit control, version 1: the window class "RICHEDIT". A position counts bytes, a line's end (CR
// LF) two; in text that is given a lone CR or LF becomes one, and no change leaves half of one. It is a store
// of text and formats; it does not paint and takes no input.

#include "win32/edit.h"
#include "win32/types.h"
#include "win32/window.h"

constexpr DWORD ES_SAVESEL = 0x8000;

/// The selection, to the CHARRANGE at lParam.
constexpr UINT EM_EXGETSEL = WM_USER + 52;
/// Selects the CHARRANGE at lParam, brought into the text and in order; an end of -1 is the text's. Answers
/// the end.
constexpr UINT EM_EXSETSEL = WM_USER + 55;
/// To the CHARFORMAT at lParam: the default format (wParam 0), or that of the selection's first character,
/// its mask without what differs in the selection (1). Answers the mask; 0 for another cbSize.
constexpr UINT EM_GETCHARFORMAT = WM_USER + 58;
/// Copies the selected text and a zero to lParam; the bytes copied without the zero.
constexpr UINT EM_GETSELTEXT = WM_USER + 62;
/// Accepted; there is nothing to hide.
constexpr UINT EM_HIDESELECTION = WM_USER + 63;
/// Sets what the mask of the CHARFORMAT at lParam names in an SCF_ place; 1, or 0 for another cbSize.
constexpr UINT EM_SETCHARFORMAT = WM_USER + 68;

// Of what EM_SETCHARFORMAT sets the format: of text that WM_SETTEXT or an empty control gets, of the
// selection (an empty one: of what is put there next), of the whole text.
constexpr UINT SCF_DEFAULT = 0x0000;
constexpr UINT SCF_SELECTION = 0x0001;
constexpr UINT SCF_ALL = 0x0004;

constexpr DWORD CFM_BOLD = 0x00000001;
constexpr DWORD CFM_ITALIC = 0x00000002;
constexpr DWORD CFM_UNDERLINE = 0x00000004;
constexpr DWORD CFM_STRIKEOUT = 0x00000008;
constexpr DWORD CFM_PROTECTED = 0x00000010;
constexpr DWORD CFM_CHARSET = 0x08000000;
constexpr DWORD CFM_OFFSET = 0x10000000;
constexpr DWORD CFM_FACE = 0x20000000;
constexpr DWORD CFM_COLOR = 0x40000000;
constexpr DWORD CFM_SIZE = 0x80000000;
constexpr DWORD CFE_BOLD = 0x00000001;
constexpr DWORD CFE_ITALIC = 0x00000002;
constexpr DWORD CFE_UNDERLINE = 0x00000004;
constexpr DWORD CFE_STRIKEOUT = 0x00000008;
constexpr DWORD CFE_PROTECTED = 0x00000010;
constexpr DWORD CFE_AUTOCOLOR = 0x40000000;

/// Positions in the text: from `cpMin` up to, not with, `cpMax`.
typedef struct _charrange {
    LONG cpMin;
    LONG cpMax;
} CHARRANGE;

typedef struct _charformat {
    UINT cbSize;     ///< sizeof(CHARFORMATA)
    DWORD dwMask;    ///< CFM_: what holds
    DWORD dwEffects; ///< CFE_
    LONG yHeight;    ///< twips
    LONG yOffset;    ///< twips above the baseline
    COLORREF crTextColor;
    BYTE bCharSet;
    BYTE bPitchAndFamily; ///< goes with the face
    char szFaceName[32];
} CHARFORMATA, CHARFORMAT;
static_assert(sizeof(CHARFORMATA) == 60);
