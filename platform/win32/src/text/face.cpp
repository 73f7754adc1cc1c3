#include "face.h"

#include "font_match.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cstdlib>

namespace win32 {

// Beyond this a picture is too large to be worth its memory, and stays blank.
constexpr int LargestPicture = 4096;
// Up to so many pixels a picture is kept in quads, too.
constexpr int LargestQuadPicture = 64 * 64;

namespace {

FT_Library Library() {
    static const FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) == 0 ? made : nullptr;
    }();
    return library;
}

FT_FaceRec_* OpenRecord(const FontFile& file) {
    struct Opened {
        std::string path;
        int index;
        FT_Face record;
    };
    static auto& opened = *new std::vector<Opened>;
    const auto known = std::find_if(opened.begin(), opened.end(), [&](const Opened& o) {
        return o.path == file.path && o.index == file.index;
    });
    if (known != opened.end()) {
        return known->record;
    }
    FT_Face record = nullptr;
    if (!Library() || FT_New_Face(Library(), file.path.c_str(), file.index, &record) != 0) {
        record = nullptr;
    }
    if (record && (!FT_IS_SCALABLE(record) || FT_Select_Charmap(record, FT_ENCODING_UNICODE) != 0)) {
        FT_Done_Face(record);
        record = nullptr;
    }
    opened.push_back({file.path, file.index, record});
    return record;
}

} // namespace

Face OpenFace(const FontFile& file, bool bold, bool italic) {
    return {OpenRecord(file), bold && !file.bold, italic && !file.italic};
}

FaceMetrics MetricsOf(const Face& face) {
    const FT_FaceRec& record = *face.record;
    return {record.units_per_EM, record.ascender, -record.descender, -record.underline_position,
            record.underline_thickness};
}

unsigned Face::GlyphOf(WCHAR code) const { return FT_Get_Char_Index(record, code); }

int Face::Advance(unsigned glyph, int em) const {
    FT_Fixed advance = 0;
    if (FT_Get_Advance(record, glyph, FT_LOAD_NO_SCALE, &advance) != 0) {
        return 0;
    }
    const LONGLONG units = record->units_per_EM;
    return static_cast<int>((2 * LONGLONG{advance} * em + units) / (2 * units));
}

namespace {

// The part of the picture that lies in the line's rows.
Glyph CopyRows(const FT_Bitmap& bitmap, int left, int top, const GlyphLine& line) {
    Glyph glyph;
    const int first = std::max(0, -top);
    const int end = std::min(static_cast<int>(bitmap.rows), line.Rows() - top);
    glyph.left = left;
    glyph.top = top + first;
    glyph.width = static_cast<int>(bitmap.width);
    glyph.height = std::max(0, end - first);
    glyph.coverage.resize(static_cast<size_t>(glyph.width) * static_cast<size_t>(glyph.height));
    for (int y = 0; y < glyph.height; ++y) {
        const BYTE* row = bitmap.buffer + (first + y) * bitmap.pitch;
        std::copy_n(row, glyph.width, glyph.coverage.begin() + y * glyph.width);
    }
    return glyph;
}

void Sharpen(Glyph& glyph) {
    for (BYTE& coverage : glyph.coverage) {
        coverage = coverage >= 128 ? 255 : 0;
    }
}

Quad QuadAt(const Glyph& glyph, int x, int y) {
    Quad quad{};
    quad.x = x;
    quad.y = glyph.top + y;
    for (int i = 0; i < Quad::Width && x + i < glyph.width; ++i) {
        const int coverage = glyph.At(x + i, y);
        quad.share[2 * i] = quad.share[2 * i + 1] = static_cast<std::uint16_t>(coverage + (coverage >> 7));
    }
    return quad;
}

void AddQuads(Glyph& glyph) {
    if (glyph.width * glyph.height > LargestQuadPicture) {
        return;
    }
    for (int y = 0; y < glyph.height; ++y) {
        for (int x = 0; x < glyph.width;) {
            if (glyph.At(x, y) == 0) {
                ++x;
                continue;
            }
            glyph.quads.push_back(QuadAt(glyph, x, y));
            x += Quad::Width;
            glyph.quadsWidth = std::max(glyph.quadsWidth, x);
        }
    }
}

void Restyle(const Face& face, FT_Outline& outline, int em) {
    if (face.embolden) {
        constexpr int EmPerStrength = 24;
        FT_Outline_EmboldenXY(&outline, em * 64 / EmPerStrength, 0);
    }
    if (face.shear) {
        constexpr FT_Fixed Slant = 0x10000 / 5;
        const FT_Matrix matrix = {0x10000, Slant, 0, 0x10000};
        FT_Outline_Transform(&outline, &matrix);
    }
}

// The box of the outline in whole pixels is within what a picture may be.
bool IsDrawable(const FT_Outline& outline) {
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    constexpr FT_Pos Limit = LargestPicture * 64;
    return std::abs(box.xMin) < 2 * Limit && std::abs(box.yMin) < 2 * Limit && box.xMax - box.xMin < Limit &&
           box.yMax - box.yMin < Limit;
}

} // namespace

Glyph Face::Draw(unsigned glyph, const GlyphLine& line) const {
    FT_GlyphSlot slot = record->glyph;
    if (FT_Set_Pixel_Sizes(record, 0, static_cast<FT_UInt>(line.em)) != 0 ||
        FT_Load_Glyph(record, glyph, FT_LOAD_TARGET_LIGHT | FT_LOAD_NO_BITMAP) != 0 ||
        slot->format != FT_GLYPH_FORMAT_OUTLINE) {
        return {};
    }
    Restyle(*this, slot->outline, line.em);
    if (!IsDrawable(slot->outline) || FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0) {
        return {};
    }
    Glyph picture = CopyRows(slot->bitmap, slot->bitmap_left, line.ascent - slot->bitmap_top, line);
    if (!line.smooth) {
        Sharpen(picture);
    }
    AddQuads(picture);
    return picture;
}

Glyph DrawBox(int advance, const GlyphLine& line) {
    Glyph box;
    box.width = advance - 1;
    box.height = line.ascent;
    if (box.width < 1 || box.height < 1 || box.width > LargestPicture || box.height > LargestPicture) {
        return {};
    }
    box.coverage.assign(static_cast<size_t>(box.width) * static_cast<size_t>(box.height), 0);
    for (int y = 0; y < box.height; ++y) {
        const bool edge = y == 0 || y == box.height - 1;
        for (int x = 0; x < box.width; x += edge || box.width == 1 ? 1 : box.width - 1) {
            box.Set(x, y, 255);
        }
    }
    AddQuads(box);
    return box;
}

} // namespace win32
