#include "text_stage.h"

TextStage::TextStage(UINT bits)
    : m_dc(CreateCompatibleDC(nullptr)), m_bitmap(CreateBitmap(Width, Height, 1, bits, nullptr)),
      m_firstBitmap(SelectObject(m_dc, m_bitmap)) {
    SetBkMode(m_dc, TRANSPARENT);
    Use({});
    Clear();
}

TextStage::~TextStage() {
    DeleteObject(SelectObject(m_dc, m_firstFont));
    SelectObject(m_dc, m_firstBitmap);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
}

void TextStage::Use(const FontChoice& font) {
    const HFONT made = CreateFontA(font.height, 0, 0, 0, font.weight, FALSE, font.underline, FALSE,
                                   DEFAULT_CHARSET, 0, 0, font.quality, 0, font.face);
    const HGDIOBJ before = SelectObject(m_dc, made);
    if (m_firstFont) {
        DeleteObject(before);
    } else {
        m_firstFont = before;
    }
}

void TextStage::Write(int x, int y, const std::string& text) {
    TextOutA(m_dc, x, y, text.data(), static_cast<int>(text.size()));
}

int TextStage::Extent(const std::string& text) const {
    SIZE size{};
    GetTextExtentPoint32A(m_dc, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

TEXTMETRICA TextStage::Metrics() const {
    TEXTMETRICA metrics{};
    GetTextMetricsA(m_dc, &metrics);
    return metrics;
}

std::string TextStage::Face() const {
    char face[LF_FACESIZE] = {};
    GetTextFaceA(m_dc, LF_FACESIZE, face);
    return face;
}

void TextStage::Clear() { PatBlt(m_dc, 0, 0, Width, Height, WHITENESS); }

TextStage::Pixels TextStage::Look() const {
    Pixels pixels;
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            pixels.push_back(GetPixel(m_dc, x, y));
        }
    }
    return pixels;
}
