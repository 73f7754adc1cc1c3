#pragma once

// A face at a size under the system code page: measures, advances and pictures of its characters.

#include "code_page.h"
#include "face.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace win32 {

struct FontKey {
    std::string face; // As in a LOGFONT.
    LONG height;      // As in a LOGFONT.
    bool bold;
    bool italic;
    bool smooth;
    UINT codePage;

    bool operator==(const FontKey&) const = default;
};

/// A bar below or through the text, in rows from the line's top.
struct Bar {
    int top;
    int height;
};

/// Extents end here, so that sums of them with coordinates do not overflow.
constexpr int LongestExtent = 1 << 30;

class CFontInstance {
  public:
    explicit CFontInstance(const FontKey& key);

    const FontKey& Key() const { return m_key; }
    const CodePage& Page() const { return m_page; }
    /// The family of the file that was picked; empty without fonts.
    const std::string& Family() const { return m_family; }
    int Em() const { return m_line.em; }
    int Height() const { return m_line.height; }
    /// Of the line, with those below it that glyphs may lie in.
    int Rows() const { return m_line.Rows(); }
    int Ascent() const { return m_line.ascent; }
    bool IsFixedPitch() const;
    int WidestAdvance() const { return m_widestAdvance; }
    /// No glyph reaches further beyond its advance.
    int Overhang() const { return m_line.height; }
    Bar Underline() const { return m_underline; }
    Bar StrikeOut() const { return m_strikeOut; }

    /// As FirstCharacter of the font's page.
    Character First(const char* text, int count) const {
        const BYTE byte = static_cast<BYTE>(*text);
        return m_page.HasPairs() ? FirstCharacter(m_page, text, count)
                                 : Character{byte, m_page.single[byte], 1};
    }
    /// Whether every byte is a character and no sum of so many advances reaches LongestExtent.
    bool IsPlain(int count) const {
        return !m_page.HasPairs() && count <= LongestExtent / std::max(m_widestAdvance, 1);
    }
    int ByteAdvance(char byte) const { return m_advances[static_cast<BYTE>(byte)]; }
    /// The sum of the advances, at most LongestExtent.
    int Extent(const char* text, int count) const;
    int Advance(const Character& character) const {
        return character.length == 1 ? m_advances[character.bytes]
                                     : PairAdvance(character.bytes, character.code);
    }
    /// Good until the next call.
    const Glyph& Picture(const Character& character) {
        const Glyph* known = character.length == 1 ? m_pictures[character.bytes].get() : nullptr;
        return known ? *known : FindPicture(character);
    }

  private:
    struct Source {
        const Face* face; // Null: a box.
        unsigned glyph;
    };

    void OpenFaces();
    void MeasureLine();
    void MeasureBars(const FaceMetrics& metrics);
    void MeasureBytes();
    void MeasureTwoBytes();
    Source SourceOf(WCHAR code) const;
    int AdvanceOf(WCHAR code) const;
    int PairAdvance(WORD bytes, WCHAR code) const;
    int LongExtent(const char* text, int count) const;
    Glyph Draw(WCHAR code) const;
    void MakeRoom();
    const Glyph& FindPicture(const Character& character);

    FontKey m_key;
    const CodePage& m_page;
    std::string m_family;
    std::vector<Face> m_faces; // The wanted one, then those that lend it characters.
    GlyphLine m_line{};
    Bar m_underline{};
    Bar m_strikeOut{};
    int m_widestAdvance = 0;
    std::array<int, 256> m_advances{};
    // What each two bytes, the first one low, advance together; empty where that may exceed 16 bits or bytes
    // can be halves of characters.
    std::vector<std::uint16_t> m_twoAdvances;
    mutable std::unordered_map<WORD, int> m_pairAdvances;
    std::array<std::unique_ptr<Glyph>, 256> m_pictures;
    std::unordered_map<WORD, Glyph> m_pairPictures;
    size_t m_pictureBytes = 0;
};

} // namespace win32
