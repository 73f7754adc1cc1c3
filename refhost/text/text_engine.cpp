#include "host/text_engine.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "buffer/buffer_host.h"
#include "platform/faults.h"
#include "text/memory_context.h"
#include "text/rich_text_reader.h"
#include "text/text_layout.h"
#include "text/text_picture.h"
#include "trace/trace.h"

namespace {

void Record(const textCreate::textCreateParam& param) {
    if (!trace::IsOn()) {
        return;
    }
    const auto number = [](std::int32_t nValue) { return static_cast<long long>(nValue); };
    trace::Call("text-engine", "Apply",
                {std::string(param.strFontName), std::string(param.strText), number(param.nPixelSize),
                 number(param.nBold), number(param.nItalic), number(param.nUnderline),
                 number(param.nReserved1), number(param.nReserved2), number(param.nAlignCode),
                 trace::Color{param.crText}, number(param.nReserved3), number(param.nReserved4),
                 number(param.nReserved5), number(param.nReserved6), number(param.nReserved7),
                 trace::Pointer{!param.richText.IsEmpty()}});
}

void Empty(textObject& object) {
    const CBufferPtr image(std::exchange(object.m_hImage, 0));
    const CBufferPtr mask(std::exchange(object.m_hMask, 0));
    object.m_ptOrigin = CPoint(0, 0);
    object.m_strText.Empty();
    object.m_strFontName.Empty();
    object.m_nFontSize = object.m_nBold = object.m_nItalic = object.m_nUnderline = object.m_nAlignment = 0;
    object.m_crText = 0;
}

/// The runs to draw; false for a record without text.
bool ReadRuns(const textCreate::textCreateParam& param, std::vector<RichTextRun>& runs) {
    if (!ReadRichText(param.richText.Get(), runs) ||
        std::all_of(runs.begin(), runs.end(), [](const RichTextRun& run) { return run.text.empty(); })) {
        return false;
    }
    for (RichTextRun& run : runs) {
        // A record's sizes went through twips and may have lost a pixel on the way.
        run.nHeight = std::abs(param.nPixelSize - run.nHeight) == 1 ? param.nPixelSize : run.nHeight;
        // The style of the whole text stands beside the record, not in it.
        run.bBold = run.bBold || param.nBold != 0;
        run.bItalic = run.bItalic || param.nItalic != 0;
        run.bUnderline = run.bUnderline || param.nUnderline != 0;
    }
    return true;
}

CString JoinedByLineFeeds(const CString& strText) {
    std::string text(strText, static_cast<std::size_t>(strText.GetLength()));
    for (std::size_t at = text.find("\n\r"); at != std::string::npos; at = text.find("\n\r", at + 1)) {
        text.erase(at + 1, 1);
    }
    return CString(text.data(), static_cast<int>(text.size()));
}

/// The lines in white on black in a bitmap, of which the coverage is taken.
bool DrawCoverage(const CTextLayout& layout, const buffer_host::View& mask) {
    const CMemoryContext context;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = mask.width;
    info.bmiHeader.biHeight = -mask.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pBits = nullptr;
    HBITMAP hBitmap = ::CreateDIBSection(context.Get(), &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    if (!context.Get() || !hBitmap) {
        ::DeleteObject(hBitmap);
        return false;
    }
    {
        const CSelectScope selected(context.Get(), hBitmap);
        ::PatBlt(context.Get(), 0, 0, mask.width, mask.height, BLACKNESS);
        ::SetBkMode(context.Get(), TRANSPARENT);
        ::SetTextColor(context.Get(), RGB(255, 255, 255));
        layout.Draw(context.Get());
    }
    const DWORD* pPixels = static_cast<const DWORD*>(pBits);
    const std::size_t nPixels = mask.RowBytes() * static_cast<std::size_t>(mask.height);
    std::transform(pPixels, pPixels + nPixels, mask.pixels,
                   [](DWORD pixel) { return static_cast<std::uint8_t>(pixel); });
    ::DeleteObject(hBitmap);
    return true;
}

/// The coverage of the lines; 0 when memory is out or the text is too large.
HBUF32 MakeMask(const CTextLayout& layout) {
    HBUF32 hMask = 0;
    const SIZE size = layout.PictureSize();
    if (!buf32Alloc(&hMask, 8, size.cx, size.cy, 0, nullptr)) {
        return 0;
    }
    CBufferPtr mask(hMask);
    return DrawCoverage(layout, buffer_host::Look(hMask)) ? mask.Release() : 0;
}

void CopyAttributes(const textCreate::textCreateParam& param, textObject& object) {
    object.m_strText = JoinedByLineFeeds(param.strText);
    object.m_strFontName = param.strFontName;
    object.m_nFontSize = param.nPixelSize;
    object.m_nBold = param.nBold;
    object.m_nItalic = param.nItalic;
    object.m_nUnderline = param.nUnderline;
    object.m_nAlignment = param.nAlignCode;
    object.m_crText = param.crText;
}

} // namespace

textObject::~textObject() { Empty(*this); }

int textCreate::Apply(const textCreateParam& param, textObject& object) {
    Record(param);
    Empty(object);
    std::vector<RichTextRun> runs;
    CTextLayout layout;
    if (platform::FaultTrips("text-engine") || !ReadRuns(param, runs) ||
        !layout.Make(runs, param.nAlignCode)) {
        return 0;
    }
    CBufferPtr mask(MakeMask(layout));
    CBufferPtr image(mask ? MakeFlatImage(buffer_host::Look(mask.Get()), param.crText) : 0);
    if (!image) {
        return 0;
    }
    object.m_hMask = mask.Release();
    object.m_hImage = image.Release();
    // The first line's own corner is the engine's origin.
    object.m_ptOrigin = CPoint(-layout.Origin().x, -layout.Origin().y);
    CopyAttributes(param, object);
    return 1;
}
