#include "font_instance.h"

#include "font_match.h"

#include <algorithm>
#include <cstdlib>

namespace win32 {

constexpr int DefaultEm = 12;
constexpr int LargestEm = 16384;
// With more pictures than this an instance draws all anew.
constexpr size_t PictureMemory = 32U << 20;

namespace {

// The text in UTF-8, as far as the code page has it.
std::string ToUtf8(const CodePage& page, const std::string& text) {
    std::string out;
    const int count = static_cast<int>(text.size());
    for (int at = 0; at < count;) {
        const Character next = FirstCharacter(page, text.data() + at, count - at);
        at += next.length;
        if (next.code < 0x80) {
            out += static_cast<char>(next.code);
        } else if (next.code < 0x800) {
            out += static_cast<char>(0xC0 | next.code >> 6);
            out += static_cast<char>(0x80 | (next.code & 0x3F));
        } else {
            out += static_cast<char>(0xE0 | next.code >> 12);
            out += static_cast<char>(0x80 | (next.code >> 6 & 0x3F));
            out += static_cast<char>(0x80 | (next.code & 0x3F));
        }
    }
    return out;
}

// Pixels, rounded up, of a measure in the face's units.
int ScaleUp(int units, int em, int unitsPerEm) {
    const LONGLONG scaled = LONGLONG{units} * em;
    return static_cast<int>(scaled > 0 ? (scaled + unitsPerEm - 1) / unitsPerEm : -(-scaled / unitsPerEm));
}

// Pixels of a line of the face, rounded once, to nearest, so that lines grow as their sizes do.
int LineHeight(const FaceMetrics& metrics, int em) {
    const LONGLONG units = metrics.ascent + metrics.descent;
    return std::max(static_cast<int>((2 * units * em + metrics.unitsPerEm) / (2 * metrics.unitsPerEm)), 1);
}

// The largest size whose lines are no higher than the cell.
int EmOfCell(const FaceMetrics& metrics, int cell) {
    const int units = std::max(metrics.ascent + metrics.descent, 1);
    int em = static_cast<int>(LONGLONG{cell} * metrics.unitsPerEm / units) + 1;
    while (em > 1 && LineHeight(metrics, em) > cell) {
        --em;
    }
    return em;
}

} // namespace

CFontInstance::CFontInstance(const FontKey& key) : m_key(key), m_page(SystemCodePage()) {
    OpenFaces();
    MeasureLine();
    MeasureBytes();
}

void CFontInstance::OpenFaces() {
    for (const FontFile& file : MatchFonts({ToUtf8(m_page, m_key.face), m_key.bold, m_key.italic})) {
        const Face face = OpenFace(file, m_key.bold, m_key.italic);
        if (!face) {
            continue;
        }
        if (m_faces.empty()) {
            m_family = file.family;
        }
        m_faces.push_back(face);
    }
}

// Without fonts a line has a fifth of the em below the baseline.
constexpr FaceMetrics BoxMetrics = {10, 8, 2, 1, 1};

void CFontInstance::MeasureLine() {
    const FaceMetrics metrics = m_faces.empty() ? BoxMetrics : MetricsOf(m_faces.front());
    const LONGLONG asked = std::abs(LONGLONG{m_key.height});
    const int size = static_cast<int>(std::min<LONGLONG>(asked == 0 ? DefaultEm : asked, LargestEm));
    const int em = m_key.height > 0 ? EmOfCell(metrics, size) : size;
    const int height = LineHeight(metrics, em);
    m_line = {em, std::min(ScaleUp(metrics.ascent, em, metrics.unitsPerEm), height), height, m_key.smooth};
    MeasureBars(metrics);
}

// Both lie within the line.
void CFontInstance::MeasureBars(const FaceMetrics& metrics) {
    const auto rows = [&](int units) {
        return static_cast<int>(LONGLONG{units} * m_line.em / metrics.unitsPerEm);
    };
    const int thickness = std::clamp(rows(metrics.thickness), 1, m_line.height);
    const auto place = [&](int top) { return Bar{std::clamp(top, 0, m_line.height - thickness), thickness}; };
    m_underline = place(m_line.ascent + std::max(rows(metrics.underline - metrics.thickness / 2), 1));
    m_strikeOut = place(m_line.ascent - m_line.ascent / 3);
}

void CFontInstance::MeasureBytes() {
    for (size_t byte = 0; byte < m_advances.size(); ++byte) {
        m_advances[byte] = AdvanceOf(m_page.single[byte]);
        m_widestAdvance = std::max(m_widestAdvance, m_advances[byte]);
    }
    // A full-width character's.
    if (m_page.HasPairs()) {
        m_widestAdvance = std::max(m_widestAdvance, 2 * m_line.em);
    } else {
        MeasureTwoBytes();
    }
}

void CFontInstance::MeasureTwoBytes() {
    if (m_widestAdvance > UINT16_MAX / 2) {
        return;
    }
    m_twoAdvances.resize(m_advances.size() * m_advances.size());
    auto sum = m_twoAdvances.begin();
    for (const int second : m_advances) {
        for (const int first : m_advances) {
            *sum++ = static_cast<std::uint16_t>(first + second);
        }
    }
}

CFontInstance::Source CFontInstance::SourceOf(WCHAR code) const {
    if (code != NoCharacter) {
        for (const Face& face : m_faces) {
            if (const unsigned glyph = face.GlyphOf(code)) {
                return {&face, glyph};
            }
        }
    }
    return {m_faces.empty() ? nullptr : &m_faces.front(), 0};
}

int CFontInstance::AdvanceOf(WCHAR code) const {
    const Source source = SourceOf(code);
    return source.face ? std::clamp(source.face->Advance(source.glyph, m_line.em), 0, 2 * m_line.em)
                       : m_line.height / 2;
}

int CFontInstance::PairAdvance(WORD bytes, WCHAR code) const {
    const auto [known, isNew] = m_pairAdvances.try_emplace(bytes, 0);
    if (isNew) {
        known->second = AdvanceOf(code);
    }
    return known->second;
}

bool CFontInstance::IsFixedPitch() const { return m_advances['i'] == m_advances['W']; }

int CFontInstance::Extent(const char* text, int count) const {
    if (!IsPlain(count) || m_twoAdvances.empty()) {
        return LongExtent(text, count);
    }
    // Two sums, for each waits for its own last addition alone; the bytes come eight at a time.
    const std::uint16_t* const two = m_twoAdvances.data();
    int a = 0, b = 0;
    int at = 0;
    for (; at + 8 <= count; at += 8) {
        ULONGLONG bytes;
        std::memcpy(&bytes, text + at, sizeof bytes);
        a += two[bytes & 0xFFFF] + two[bytes >> 16 & 0xFFFF];
        b += two[bytes >> 32 & 0xFFFF] + two[bytes >> 48];
    }
    for (; at < count; ++at) {
        a += m_advances[static_cast<BYTE>(text[at])];
    }
    return a + b;
}

int CFontInstance::LongExtent(const char* text, int count) const {
    LONGLONG extent = 0;
    for (int at = 0; at < count && extent < LongestExtent;) {
        const Character next = FirstCharacter(m_page, text + at, count - at);
        extent += Advance(next);
        at += next.length;
    }
    return static_cast<int>(std::min<LONGLONG>(extent, LongestExtent));
}

Glyph CFontInstance::Draw(WCHAR code) const {
    const Source source = SourceOf(code);
    return source.face ? source.face->Draw(source.glyph, m_line) : DrawBox(AdvanceOf(code), m_line);
}

void CFontInstance::MakeRoom() {
    if (m_pictureBytes > PictureMemory) {
        m_pictures = {};
        m_pairPictures.clear();
        m_pictureBytes = 0;
    }
}

const Glyph& CFontInstance::FindPicture(const Character& character) {
    const auto pair = m_pairPictures.find(character.bytes);
    if (character.length == 2 && pair != m_pairPictures.end()) {
        return pair->second;
    }
    MakeRoom();
    Glyph drawn = Draw(character.code);
    m_pictureBytes += drawn.coverage.size() + drawn.quads.size() * sizeof(Quad);
    if (character.length == 2) {
        return m_pairPictures[character.bytes] = std::move(drawn);
    }
    std::unique_ptr<Glyph>& place = m_pictures[character.bytes];
    place = std::make_unique<Glyph>(std::move(drawn));
    return *place;
}

} // namespace win32
