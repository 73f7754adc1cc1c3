#pragma once

// Fonts, measuring and drawing text, character sets and code pages. Text is bytes in the system code page;
// a position counts bytes. Advances are whole pixels without kerning, so extents add up.

#include "win32/gdi.h"

typedef char16_t WCHAR;
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;

constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE SYMBOL_CHARSET = 2;
constexpr BYTE SHIFTJIS_CHARSET = 128;
constexpr BYTE HANGUL_CHARSET = 129;
constexpr BYTE HANGEUL_CHARSET = HANGUL_CHARSET;
constexpr BYTE JOHAB_CHARSET = 130;
constexpr BYTE GB2312_CHARSET = 134;
constexpr BYTE CHINESEBIG5_CHARSET = 136;
constexpr BYTE GREEK_CHARSET = 161;
constexpr BYTE TURKISH_CHARSET = 162;
constexpr BYTE VIETNAMESE_CHARSET = 163;
constexpr BYTE HEBREW_CHARSET = 177;
constexpr BYTE ARABIC_CHARSET = 178;
constexpr BYTE BALTIC_CHARSET = 186;
constexpr BYTE RUSSIAN_CHARSET = 204;
constexpr BYTE THAI_CHARSET = 222;
constexpr BYTE EASTEUROPE_CHARSET = 238;
constexpr BYTE OEM_CHARSET = 255;

constexpr int FW_DONTCARE = 0;
constexpr int FW_NORMAL = 400;
constexpr int FW_BOLD = 700;

constexpr BYTE OUT_DEFAULT_PRECIS = 0;
constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
constexpr BYTE DEFAULT_QUALITY = 0;
constexpr BYTE NONANTIALIASED_QUALITY = 3;
constexpr BYTE ANTIALIASED_QUALITY = 4;
constexpr BYTE DEFAULT_PITCH = 0;
constexpr BYTE FF_DONTCARE = 0;

constexpr UINT TA_NOUPDATECP = 0;
constexpr UINT TA_LEFT = 0;
constexpr UINT TA_RIGHT = 2;
constexpr UINT TA_CENTER = 6;
constexpr UINT TA_TOP = 0;
constexpr UINT TA_BOTTOM = 8;
constexpr UINT TA_BASELINE = 24;
constexpr UINT GDI_ERROR = 0xFFFFFFFF;

constexpr int LF_FACESIZE = 32;

/// `lfHeight` is minus the em size or plus the cell height (ascent and descent) in pixels; 0 is an em of 12.
/// Width, escapement, orientation and precisions play no part. A weight above 550 is bold.
typedef struct tagLOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
} LOGFONTA, *LPLOGFONTA, LOGFONT, *LPLOGFONT;
static_assert(sizeof(LOGFONTA) == 60);

/// Pixels. A line's height is rounded once, to nearest; its ascent is rounded up, so that a glyph's lowest
/// row may lie over the line's lower end. `tmPitchAndFamily` has bit 1 set for a font of varying widths.
typedef struct tagTEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
} TEXTMETRICA, *LPTEXTMETRICA, TEXTMETRIC, *LPTEXTMETRIC;

typedef struct tagFONTSIGNATURE {
    DWORD fsUsb[4];
    DWORD fsCsb[2];
} FONTSIGNATURE, *LPFONTSIGNATURE;

typedef struct tagCHARSETINFO {
    UINT ciCharset;
    UINT ciACP; ///< the code page
    FONTSIGNATURE fs;
} CHARSETINFO, *LPCHARSETINFO;

constexpr DWORD TCI_SRCCHARSET = 1;
constexpr DWORD TCI_SRCCODEPAGE = 2;

constexpr UINT CP_ACP = 0;
constexpr DWORD MB_PRECOMPOSED = 1;
constexpr DWORD MB_ERR_INVALID_CHARS = 8;

/// The font nearest to the one described; one that is not installed is replaced silently. Null on failure.
HFONT CreateFontIndirectA(const LOGFONTA* font);
/// The same from single values; a null face leaves it open.
HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCSTR face);
/// The face that was picked for the context's font, cut to `size` with its zero; answers the length copied
/// with the zero, or needed for a null `face`; 0 for a bad context.
int GetTextFaceA(HDC dc, int size, LPSTR face);
BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics);
/// The character set of the context's font; the system code page's for a font of the default set. -1 for a
/// bad context. `signature` (may be null) is cleared.
int GetTextCharsetInfo(HDC dc, LPFONTSIGNATURE signature, DWORD flags);
/// With TCI_SRCCHARSET or TCI_SRCCODEPAGE the number itself stands in `source`'s place. FALSE, and nothing
/// written, for what has no code page of its own: the default, symbol and OEM sets, and unknown ones.
BOOL TranslateCharsetInfo(DWORD* source, LPCHARSETINFO info, DWORD flags);

/// The sum of the advances, and the line's height.
BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int count, LPSIZE size);
/// `size` is the extent of the whole text. `fit` (may be null) is the number of bytes whose extent is at most
/// `maxExtent`; a two-byte character fits whole or not at all. `dx` (may be null) takes, for each byte that
/// fits (without `fit`: for all), the extent up to and with it; both bytes of a character have its end.
BOOL GetTextExtentExPointA(HDC dc, LPCSTR text, int count, int maxExtent, LPINT fit, LPINT dx, LPSIZE size);
/// One of TA_LEFT, TA_CENTER and TA_RIGHT with one of TA_TOP, TA_BASELINE and TA_BOTTOM: where the point of
/// TextOutA stands in the text. The mode before; GDI_ERROR for a bad context.
UINT SetTextAlign(HDC dc, UINT mode);
UINT GetTextAlign(HDC dc);
/// Draws in the text colour, over a box of the background colour where the background mode is OPAQUE.
BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int count);

/// An information context on the display, for DeleteDC to free: drawing on it does nothing. Null on failure.
HDC CreateICA(LPCSTR driver, LPCSTR device, LPCSTR output, const DEVMODEA* init);
/// Keeps the context's state; the number of the state kept, from 1 on, 0 on failure.
int SaveDC(HDC dc);
/// Brings a kept state back and forgets it and those kept after it; a negative number counts from the last
/// one, -1. FALSE, and nothing changes, when there is no such state.
BOOL RestoreDC(HDC dc, int saved);

/// Copies at most `size` bytes of the bitmap's rows, top row first, each padded to 16 bits. The bytes copied,
/// or needed for a null `bits`.
LONG GetBitmapBits(HBITMAP bitmap, LONG size, LPVOID bits);

/// The system code page (see platform/code_page.h).
UINT GetACP();
/// Whether the byte begins a two-byte character of the system code page, or of the one named.
BOOL IsDBCSLeadByte(BYTE byte);
BOOL IsDBCSLeadByteEx(UINT codePage, BYTE byte);
/// UTF-16 of `count` bytes (-1: a zero-terminated text, with its zero). Answers the units written, or needed
/// for a `size` of 0; 0 on failure: error 122 when they do not fit, 87 for an unknown code page, 1113 for
/// bytes that stand for nothing when MB_ERR_INVALID_CHARS is given; else they become U+FFFD.
int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int count, LPWSTR wide, int size);
/// The same the other way; `defaultChar` (null: "?") takes the place of what the code page does not have, and
/// then `*usedDefault` (may be null) is TRUE.
int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int count, LPSTR text, int size,
                        LPCSTR defaultChar, LPBOOL usedDefault);
