#pragma once

// Faces of font files, and pictures of their glyphs.

#include <windows.h>

#include <memory>
#include <vector>

struct FT_FaceRec_;

namespace win32 {

struct FontFile;

/// How much of four neighbouring pixels a glyph covers, of 256.
struct Quad {
    static constexpr int Width = 4;
    typedef std::uint16_t Lanes __attribute__((vector_size(16)));

    Lanes share; // Twice for each pixel.
    int x;       // From the picture's left end.
    int y;
};

/// A glyph's coverage: 0 to 255 a pixel. Places are relative to the pen and to the line's top.
struct Glyph {
    size_t PlaceOf(int x, int y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
    }
    BYTE At(int x, int y) const { return coverage[PlaceOf(x, y)]; }
    void Set(int x, int y, BYTE value) { coverage[PlaceOf(x, y)] = value; }

    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<BYTE> coverage;
    // The same again, without what is blank; empty for a large glyph.
    std::vector<Quad> quads;
    int quadsWidth = 0; // How far quads reach from the left end.
};

/// The line that glyphs are drawn for. Its height is rounded as a whole and its ascent is rounded up, so a
/// glyph may lie over its lower end; the rows beyond those, and above the line, are cut off.
struct GlyphLine {
    static constexpr int RowsBelow = 1;
    int Rows() const { return height + RowsBelow; }

    int em;     // Pixels, at least 1.
    int ascent; // Pixels.
    int height;
    bool smooth; // Else each pixel is covered wholly or not at all.
};

/// A face, made slanted or heavier where that is asked for and the file is not so itself.
struct Face {
    explicit operator bool() const { return record != nullptr; }
    /// 0 where the face has no such character.
    unsigned GlyphOf(WCHAR code) const;
    /// The advance in whole pixels at a size.
    int Advance(unsigned glyph, int em) const;
    Glyph Draw(unsigned glyph, const GlyphLine& line) const;

    FT_FaceRec_* record = nullptr; // Lives as long as the process.
    bool embolden = false;
    bool shear = false;
};

/// Without a record when the file cannot be used.
Face OpenFace(const FontFile& file, bool bold, bool italic);

/// A face's measures, in its own units.
struct FaceMetrics {
    int unitsPerEm;
    int ascent;
    int descent;
    int underline; // Of the bar's middle, below the baseline.
    int thickness;
};
FaceMetrics MetricsOf(const Face& face);
/// An empty box in place of a glyph, as wide as its advance.
Glyph DrawBox(int advance, const GlyphLine& line);

} // namespace win32
