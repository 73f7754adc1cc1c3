// The editor's text as a flat image with a mask.
#include "buffer/buffer_host.h"
#include "editor_binding.h"
#include "module_help.h"
#include "platform/counts.h"
#include "platform/faults.h"

namespace {

constexpr COLORREF TextColor = RGB(10, 200, 30);
constexpr COLORREF Ground = RGB(245, 55, 225); ///< the text colour's complement

/// What a caller gets.
struct Export {
    int result = -1;
    HBUF32 image = -1;
    HBUF32 mask = -1;
};

/// Lines drawn straight with the editor's font, one below the other.
class CDrawnText {
  public:
    explicit CDrawnText(const Lines& lines) {
        m_dc.CreateCompatibleDC(nullptr);
        m_font.CreateFont(-16, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
        m_pFontBefore = m_dc.SelectObject(&m_font);
        const int nBlank = m_dc.GetTextExtent(" ", 1).cx;
        const int nHeight = m_dc.GetTextExtent(" ", 1).cy;
        for (const std::string& line : lines) {
            m_size.cx = std::max<LONG>(m_size.cx, WidthOf(line));
        }
        const int nWidest = m_size.cx;
        m_size = CSize(nWidest + 2 * nBlank, nHeight * static_cast<int>(lines.size()) + 2);
        m_bitmap.CreateBitmap(m_size.cx, m_size.cy, 1, 24, nullptr);
        m_pBitmapBefore = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, m_size.cx, m_size.cy, Ground);
        m_dc.SetBkMode(TRANSPARENT);
        m_dc.SetTextColor(TextColor);
        int y = 0;
        for (const std::string& line : lines) {
            const int x = nBlank + (nWidest - WidthOf(line)) / 2;
            m_dc.TextOut(x, y, line.data(), static_cast<int>(line.size()));
            y += nHeight;
        }
    }
    ~CDrawnText() {
        m_dc.SelectObject(m_pBitmapBefore);
        m_dc.SelectObject(m_pFontBefore);
    }

    CSize Size() const { return m_size; }
    bool IsGlyph(int x, int y) const { return m_dc.GetPixel(x, y) != Ground; }

  private:
    int WidthOf(const std::string& line) const {
        return m_dc.GetTextExtent(line.data(), static_cast<int>(line.size())).cx;
    }

    CSize m_size{0, 0};
    CFont m_font;
    CBitmap m_bitmap;
    CDC m_dc;
    CFont* m_pFontBefore = nullptr;
    CBitmap* m_pBitmapBefore = nullptr;
};

class ImageExport : public testing::Test {
  protected:
    ~ImageExport() override { platform::ClearFaults(); }

    void Open(const std::string& text) {
        ASSERT_EQ(m_stage.NewEditor({100, 100}, text), 1);
        (m_stage.Editor()->*m_stage.EditorOperations()->m_fnSetFontColor)(TextColor);
    }
    Export GetBuffer() {
        Export got;
        got.result = (m_stage.Editor()->*m_stage.EditorOperations()->m_fnGetBuffer)(&got.image, &got.mask);
        return got;
    }

    CModuleStage m_stage;
};

TEST_F(ImageExport, MaskIsTheGlyphsAndTheImageAFlatField) {
    for (const Lines& lines : {Lines{"Wij"}, Lines{"Wij", "l", "", "x"}}) {
        std::string text;
        for (const std::string& line : lines) {
            text += (text.empty() ? "" : "\n") + line;
        }
        Open(text);
        const CDrawnText drawn(lines);

        const Export got = GetBuffer();

        ASSERT_EQ(got.result, 1);
        const CBufferPtr image(got.image);
        const CBufferPtr mask(got.mask);
        const buffer_host::View field = buffer_host::Look(got.image);
        const buffer_host::View glyphs = buffer_host::Look(got.mask);
        ASSERT_EQ(CSize(glyphs.width, glyphs.height), drawn.Size());
        ASSERT_EQ(CSize(field.width, field.height), drawn.Size());
        EXPECT_EQ(field.unit, 3);
        EXPECT_EQ(glyphs.unit, 1);
        int nWrong = 0;
        int nSet = 0;
        for (int y = 0; y < glyphs.height; ++y) {
            for (int x = 0; x < glyphs.width; ++x) {
                nSet += glyphs.Row(y)[x] == 255;
                nWrong += glyphs.Row(y)[x] != (drawn.IsGlyph(x, y) ? 255 : 0);
                const std::uint8_t* pField = field.Row(y) + 3 * x;
                nWrong += pField[0] != 30 || pField[1] != 200 || pField[2] != 10;
            }
        }
        EXPECT_EQ(nWrong, 0) << text;
        EXPECT_GT(nSet, 20);
    }
}

TEST_F(ImageExport, WithoutOneOfTheOutputsThereIsNone) {
    Open("ab");
    const auto get = m_stage.EditorOperations()->m_fnGetBuffer;
    Export got;
    EXPECT_EQ((m_stage.Editor()->*get)(nullptr, &got.mask), 0);
    EXPECT_EQ((m_stage.Editor()->*get)(&got.image, nullptr), 0);
    EXPECT_TRUE(got.image == 0 && got.mask == 0);
}

TEST_F(ImageExport, FailureOfAnyPartLeavesNothingBehind) {
    struct Row {
        const char* fault;
        unsigned after;
    };
    const Row rows[] = {
        {"bitmap", 0},         {"bitmap", 1},         {"buffer", 0},          {"buffer", 1},
        {"device-context", 0}, {"device-context", 1}, {"display-context", 0},
    };
    Open("ab");
    const auto before = platform::CountLive();
    const std::size_t nBuffers = buffer_host::BufferCount();
    for (const Row& row : rows) {
        platform::ArmFault(row.fault, false, row.after);

        const Export got = GetBuffer();

        EXPECT_EQ(got.result, 0) << row.fault << ' ' << row.after;
        EXPECT_EQ(got.image, 0);
        EXPECT_EQ(got.mask, 0);
        EXPECT_EQ(buffer_host::BufferCount(), nBuffers);
        EXPECT_EQ(platform::CountLive().gdiObjects, before.gdiObjects);
        EXPECT_EQ(platform::CountLive().deviceContexts, before.deviceContexts);
        platform::ClearFaults();
    }
}

} // namespace
