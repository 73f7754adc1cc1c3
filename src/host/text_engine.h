// The text engine: renders a text into a picture with a mask.
#pragma once

#include <cstdint>

#include <afxwin.h>

#include "host/buffer.h"
#include "host/rich_text.h"

/// A rendered text: the picture and what it was made from. It owns its buffers until a text node takes them.
class textObject {
  public:
    textObject() = default;
    ~textObject();
    textObject(const textObject&) = delete;
    textObject& operator=(const textObject&) = delete;

    HBUF32 m_hImage = 0; ///< 24-bit, a flat field of the text colour; 0 while empty
    HBUF32 m_hMask = 0;  ///< 8-bit, the glyphs' coverage
    CPoint m_ptOrigin;   ///< where the engine placed the picture's top-left, document units
    CString m_strText;   ///< lines joined by LF
    CString m_strFontName;
    std::int32_t m_nFontSize = 0; ///< pixels
    std::int32_t m_nBold = 0;     ///< 1 on, 0 off; so the next two
    std::int32_t m_nItalic = 0;
    std::int32_t m_nUnderline = 0;
    std::int32_t m_nAlignment = 0; ///< one of text_align_code
    COLORREF m_crText = 0;
};

namespace textCreate {

/// What a text is rendered from. It holds copies of its own.
struct textCreateParam {
    CString strFontName;
    CString strText; ///< lines parted by the two bytes LF CR
    std::int32_t nPixelSize = 0;
    std::int32_t nBold = 0; ///< 1 on, 0 off; so the next two
    std::int32_t nItalic = 0;
    std::int32_t nUnderline = 0;
    std::int32_t nReserved1 = 1; ///< 1 at every call
    std::int32_t nReserved2 = 0; ///< 0 at every call
    std::int32_t nAlignCode = 0; ///< one of text_align_code
    COLORREF crText = 0;
    std::int32_t nReserved3 = 0; ///< 0 at every call; so the next two
    std::int32_t nReserved4 = 0;
    std::int32_t nReserved5 = 0;
    std::int32_t nReserved6 = -1; ///< -1 at every call; so the next
    std::int32_t nReserved7 = -1;
    CHandle<QXRICHEDITINFO, CHandleKiller> richText; ///< the text with its runs; empty is refused
};

/// Renders into `object`, which loses what it held. The record's runs are drawn, each also in the parameters'
/// bold, italic and underline. The picture is the in-place editor's bound rectangle of the same text: wider
/// by a blank on both sides and higher by a pixel above and below than the lines, whose top-left is the
/// engine's (0, 0). 1, or 0 (the object is empty then) when the record is empty or broken or memory is out.
int Apply(const textCreateParam& param, textObject& object);

} // namespace textCreate
