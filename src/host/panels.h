// The host's property pages as the tools call them. Found as kind 1 (the page that is showing), 7 or 12.
#pragma once

#include <cstdint>

#include <afxwin.h>

/// The property area, also the page selector.
struct IPropertyArea {
    static constexpr GUID Id = {0x549E67C8, 0xF257, 0x4EF4, {0x96, 0x7F, 0xEE, 0xA7, 0xFF, 0x71, 0xB6, 0x71}};
    /// Called with 1 after the objects changed.
    virtual int OnObjectsChanged(int nChanged) = 0;
    /// The page shown; 2 is the shadow page.
    virtual int GetPage() = 0;
    /// Shows a page.
    virtual int ShowPage(int nPage) = 0;
};

/// What the host reset calls, with 0.
struct IHostReset {
    static constexpr GUID Id = {0x461E83E3, 0x1A84, 0x4B93, {0x89, 0xFB, 0x7C, 0x97, 0x3F, 0x28, 0x27, 0x5A}};
    virtual int Reset(int nReserved) = 0;
};

/// Answers the tool group that belongs to the page.
struct IToolGroupSource {
    static constexpr GUID Id = {0xAF28E797, 0x8219, 0x4C10, {0xBA, 0x9D, 0xB5, 0x4B, 0x6C, 0xEB, 0xA6, 0xDA}};
    /// Owned by the host; may be null.
    virtual const GUID* GetToolGroup() = 0;
};

struct IFramePanel {
    static constexpr GUID Id = {0x378B6A99, 0xFC7A, 0x418F, {0xA9, 0x9C, 0xDA, 0x30, 0x71, 0xD0, 0x8C, 0xF9}};
    /// Whether the selection has a frame that can be removed; nonzero when it has.
    virtual int SetRemovable(int nState) = 0;
};

struct IShadowPanel {
    static constexpr GUID Id = {0x040F72EA, 0x0032, 0x489B, {0xB4, 0x5E, 0x42, 0xEE, 0x6B, 0x9C, 0x3D, 0x5D}};
    /// The new offsets during a drag, document units.
    virtual int SetOffset(int nX, int nY) = 0;
    /// The values of the selected shadows; mixed ones are -99999 (offsets), -1 (softness, transparency),
    /// 0x808080 with the flag 1.
    virtual int ShowShadow(int nX, int nY, COLORREF* pColor, int nSoftness, int nTransparency,
                           int nColorMixed, int nReserved) = 0;
    /// No selected object has a shadow.
    virtual int ShowNone() = 0;
    /// Whether every selected object has a shadow: 1 or 0.
    virtual int SetHasShadow(int nHasShadow, int nReserved) = 0;
    /// Allowed offsets in x and in y, document units, smallest and largest.
    virtual int GetRangeX(int* pnMin, int* pnMax) = 0;
    virtual int GetRangeY(int* pnMin, int* pnMax) = 0;
};

/// Found as kind 7.
struct IObjectPage {
    static constexpr GUID Id = {0xD6E291AB, 0xE666, 0x4473, {0x99, 0x07, 0xB9, 0xC6, 0x28, 0x79, 0xE7, 0x2D}};
    /// Called with 4 at a click on an object that was not selected, else with the page that suits the tool (0
    /// to 3).
    virtual int SelectPage(int nPage) = 0;
};

/// Found as kind 12. Sizes are points, alignment is an index (0 left, 1 centre, 2 right), style bits are 1
/// bold, 2 italic, 4 underline.
struct ITextAttributePanel {
    static constexpr GUID Id = {0x61282350, 0x4C70, 0x47C5, {0xB2, 0x5E, 0x35, 0x53, 0x9A, 0xFC, 0x33, 0x79}};
    /// Called with 3 at a click on a text object, 0 at a double-click that starts or edits text, else with
    /// the page that suits the tool (0 to 2).
    virtual int SelectPage(int nPage) = 0;
    virtual int Reserved2() = 0;
    /// Shows attributes; size -1, alignment 3, an empty name and the colour flag 1 mean that the selected
    /// objects differ.
    virtual int ShowAttributes(const CString* pFontName, int nSize, int nAlignment, int nStyle,
                               COLORREF crColor, int nColorMixed, int nReserved) = 0;
    /// New text starts.
    virtual int OnNewText() = 0;
    /// Receives a size in points and may change it.
    virtual int AdjustSize(int* pnSize) = 0;
    virtual int GetAttributes(CString* pFontName, int* pnSize, int* pnAlignment, int* pnStyle,
                              COLORREF* pcrColor) = 0;
};

struct ITransparencyPanel {
    static constexpr GUID Id = {0x8C5B7D56, 0x9349, 0x4EFE, {0x9B, 0x7B, 0xFE, 0xD3, 0xD9, 0x79, 0xFC, 0x18}};
    virtual int GetTransparency(std::int32_t* pnTransparency) = 0;
};

struct IShadowDefaults {
    static constexpr GUID Id = {0xEE2F0E4B, 0x1134, 0x4695, {0x8E, 0x91, 0x72, 0xBA, 0x92, 0xBA, 0xC4, 0x0F}};
    /// Whether new text gets a shadow.
    virtual int IsEnabled(std::int32_t* pnEnabled, int nReserved) = 0;
    /// The shadow of new text: offsets, softness, transparency, colour.
    virtual int GetShadow(std::int32_t* pnX, std::int32_t* pnY, COLORREF* pcrColor, std::int32_t* pnSoftness,
                          std::int32_t* pnTransparency, int nReserved) = 0;
};

struct IDisplayPanel {
    static constexpr GUID Id = {0xDAABBD7A, 0x0630, 0x4CB6, {0xA6, 0x69, 0xB0, 0x53, 0x92, 0x3D, 0xEB, 0xFB}};
    virtual int Reserved1() = 0;
    virtual int Reserved2() = 0;
    /// Shows display values; -1 means that the selected objects differ.
    virtual int ShowDisplay(int nBrightness, int nContrast, int nTransparency, int nReserved) = 0;
};
