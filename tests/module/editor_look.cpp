#include "editor_look.h"

#include <algorithm>

#include "editor_binding.h"
#include "platform/code_page.h"
#include "platform/surface.h"

namespace {

constexpr DWORD BaseDword = 0x505050;
constexpr DWORD AllBits = 0xFFFFFF;

HFONT FontOf(const TextLook& look) {
    return ::CreateFontA(-look.px, 0, 0, 0, (look.style & 1) ? FW_BOLD : FW_NORMAL, (look.style & 2) ? 1 : 0,
                         (look.style & 4) ? 1 : 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
}

HBITMAP ViewSizedBitmap(DWORD** ppBits) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = ViewWidth;
    info.bmiHeader.biHeight = -ViewHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pBits = nullptr;
    HBITMAP hBitmap = ::CreateDIBSection(nullptr, &info, 0, &pBits, nullptr, 0);
    *ppBits = static_cast<DWORD*>(pBits);
    return hBitmap;
}

} // namespace

CTextPicture::CTextPicture(const TextLook& look, CPoint ptAnchor)
    : m_look(look), m_ptAnchor(ptAnchor), m_hDC(::CreateCompatibleDC(nullptr)), m_hFont(FontOf(look)),
      m_hBitmap(ViewSizedBitmap(&m_pBits)) {
    ::SelectObject(m_hDC, m_hFont);
    ::SelectObject(m_hDC, m_hBitmap);
    SIZE size{};
    ::GetTextExtentPoint32A(m_hDC, " ", 1, &size);
    m_nHeight = size.cy;
    std::fill_n(m_pBits, ViewWidth * ViewHeight, BaseDword);
    DrawLines(look.color);
    m_pixels.resize(ViewWidth * ViewHeight);
    std::transform(m_pBits, m_pBits + ViewWidth * ViewHeight, m_pixels.begin(),
                   [](DWORD dwPixel) { return dwPixel & AllBits; });
}

CTextPicture::~CTextPicture() {
    ::DeleteDC(m_hDC);
    ::DeleteObject(m_hFont);
    ::DeleteObject(m_hBitmap);
}

int CTextPicture::Extent(const std::string& line, int nBytes) const {
    SIZE size{};
    ::GetTextExtentPoint32A(m_hDC, line.data(), nBytes, &size);
    return nBytes > 0 ? size.cx : 0;
}

CRect CTextPicture::Area() const {
    int nWidth = 0;
    for (const std::string& line : m_look.lines) {
        nWidth = std::max(nWidth, Extent(line, static_cast<int>(line.size())));
    }
    const int nLeft = m_ptAnchor.x - nWidth / 2;
    const int nTop = m_ptAnchor.y - m_nHeight / 2;
    return {nLeft, nTop, nLeft + nWidth, nTop + m_nHeight * static_cast<int>(m_look.lines.size())};
}

CRect CTextPicture::Line(int nLine) const {
    const std::string& line = m_look.lines[static_cast<std::size_t>(nLine)];
    const int nWidth = Extent(line, static_cast<int>(line.size()));
    const CRect rcArea = Area();
    const int nSpace = rcArea.Width() - nWidth;
    const int nLeft = rcArea.left + (m_look.align == 0 ? 0 : m_look.align == 1 ? nSpace / 2 : nSpace);
    const int nTop = rcArea.top + nLine * m_nHeight;
    return {nLeft, nTop, nLeft + nWidth, nTop + m_nHeight};
}

CRect CTextPicture::Caret(int nLine, int nIndex) const {
    CRect rect = Line(nLine);
    rect.left += Extent(m_look.lines[static_cast<std::size_t>(nLine)], nIndex + 1);
    rect.right = rect.left + 2;
    return rect;
}

void CTextPicture::Invert(const CRect& rect) {
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            m_pixels[static_cast<std::size_t>(y * ViewWidth + x)] ^= AllBits;
        }
    }
}

void CTextPicture::DrawLines(COLORREF crText) {
    ::SetBkMode(m_hDC, TRANSPARENT);
    ::SetTextColor(m_hDC, crText);
    for (std::size_t n = 0; n < m_look.lines.size(); ++n) {
        const std::string& line = m_look.lines[n];
        const CRect rect = Line(static_cast<int>(n));
        ::TextOutA(m_hDC, rect.left, rect.top, line.data(), static_cast<int>(line.size()));
    }
}

CEditorStage::CEditorStage(UINT nCodePage) : CModuleStage("") { platform::SetCodePage(nCodePage); }

CEditorStage::~CEditorStage() { platform::SetCodePage(1252); }

void CEditorStage::Open(const TextLook& look, CPoint ptAnchor) {
    std::string text;
    for (const std::string& line : look.lines) {
        text += (&line == &look.lines.front() ? "" : "\n") + line;
    }
    NewEditor(ptAnchor, text);
    CInplaceEditor& editor = *Editor();
    editor.m_fnRegisterNotifyObject(nullptr);
    (editor.*Calls().m_fnSetFontSizeInPixel)(look.px);
    (editor.*Calls().m_fnSetFontStyle)(look.style);
    (editor.*Calls().m_fnSetTextAlignType)(look.align);
    (editor.*Calls().m_fnSetFontColor)(look.color);
}

bool CEditorStage::CaretDrawn() const { return Editor()->IsCaretDrawn(); }

CRect CEditorStage::WindowRect() const {
    CRect rect;
    Editor()->GetWindowRect(&rect);
    Desk().View()->ScreenToClient(&rect);
    return rect;
}

Pixels CEditorStage::Now() const {
    platform::Surface surface;
    Pixels pixels;
    if (platform::LockSurface(Desk().View()->m_hWnd, &surface)) {
        for (int y = 0; y < surface.height; ++y) {
            const DWORD* pRow = surface.pixels + static_cast<std::ptrdiff_t>(y) * surface.stride;
            pixels.insert(pixels.end(), pRow, pRow + surface.width);
        }
    }
    return pixels;
}

Pixels CEditorStage::Afresh() {
    ::InvalidateRect(Desk().View()->m_hWnd, nullptr, TRUE);
    return View();
}

CRect DifferenceOf(const Pixels& a, const Pixels& b) {
    if (a == b) {
        return {0, 0, 0, 0};
    }
    CRect rect(ViewWidth, ViewHeight, 0, 0);
    for (int n = 0; n < ViewWidth * ViewHeight; ++n) {
        const auto i = static_cast<std::size_t>(n);
        if (a[i] != b[i]) {
            rect.left = std::min<LONG>(rect.left, n % ViewWidth);
            rect.right = std::max<LONG>(rect.right, n % ViewWidth + 1);
            rect.top = std::min<LONG>(rect.top, n / ViewWidth);
            rect.bottom = std::max<LONG>(rect.bottom, n / ViewWidth + 1);
        }
    }
    return rect;
}
