#pragma once

// A memory context with white pixels to write on in black.

#include "platform/code_page.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

struct FontChoice {
    const char* face = "Arial";
    int height = -16;
    int weight = FW_NORMAL;
    bool underline = false;
    BYTE quality = DEFAULT_QUALITY;
};

class TextStage {
  public:
    static constexpr int Width = 120;
    static constexpr int Height = 40;
    using Pixels = std::vector<DWORD>;

    explicit TextStage(UINT bits = 32);
    ~TextStage();
    TextStage(const TextStage&) = delete;
    TextStage& operator=(const TextStage&) = delete;

    HDC Dc() const { return m_dc; }
    /// Selects a new font in the former one's place.
    void Use(const FontChoice& font);
    /// Writes at the point, in the context's modes.
    void Write(int x, int y, const std::string& text);
    int Extent(const std::string& text) const;
    TEXTMETRICA Metrics() const;
    std::string Face() const;
    void Clear();
    Pixels Look() const;

  private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_firstBitmap;
    HGDIOBJ m_firstFont = nullptr;
};

/// The system code page for as long as the object lives.
class [[nodiscard]] CodePageScope {
  public:
    explicit CodePageScope(UINT codePage) : m_before(GetACP()) { platform::SetCodePage(codePage); }
    ~CodePageScope() { platform::SetCodePage(m_before); }
    CodePageScope(const CodePageScope&) = delete;
    CodePageScope& operator=(const CodePageScope&) = delete;

  private:
    UINT m_before;
};
