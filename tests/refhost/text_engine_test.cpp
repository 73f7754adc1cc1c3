#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/text_engine.h"
#include "host/text_node.h"
#include "platform/counts.h"
#include "refhost_help.h"
#include "rich_text_help.h"
#include "trace/trace.h"

using refhost_help::CFaultScope;
using rich_text_help::Record;

namespace {

constexpr COLORREF Orange = RGB(255, 128, 10);

using RecordHandle = CHandle<QXRICHEDITINFO, CHandleKiller>;

textCreate::textCreateParam ParamOf(QXRICHEDITINFO* pInfo, int nAlignCode = text_align_code::Left,
                                    int nPixelSize = 16) {
    textCreate::textCreateParam param;
    param.strFontName = "Arial";
    param.strText = "text";
    param.nPixelSize = nPixelSize;
    param.nAlignCode = nAlignCode;
    param.crText = Orange;
    param.richText = RecordHandle(pInfo);
    return param;
}

/// A context with a font of Arial and a white-on-black picture of its own.
class CPaper {
  public:
    CPaper(int nWidth, int nHeight, int nFontSize) : m_nWidth(nWidth), m_nHeight(nHeight) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), nWidth, -nHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* pBits = nullptr;
        m_hBitmap = ::CreateDIBSection(m_hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
        m_pPixels = static_cast<DWORD*>(pBits);
        ::SelectObject(m_hDC, m_hBitmap);
        ::SetTextColor(m_hDC, RGB(255, 255, 255));
        ::SetBkMode(m_hDC, TRANSPARENT);
        UseFont(nFontSize);
    }
    ~CPaper() {
        ::DeleteDC(m_hDC);
        ::DeleteObject(m_hFont);
        ::DeleteObject(m_hBitmap);
    }
    CPaper(const CPaper&) = delete;
    CPaper& operator=(const CPaper&) = delete;

    void UseFont(int nFontSize) {
        HFONT hFont = ::CreateFontA(-nFontSize, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
        ::SelectObject(m_hDC, hFont);
        ::DeleteObject(m_hFont);
        m_hFont = hFont;
    }
    int Width(const std::string& text) const {
        SIZE size{};
        ::GetTextExtentPoint32A(m_hDC, text.data(), static_cast<int>(text.size()), &size);
        return size.cx;
    }
    TEXTMETRICA Metrics() const {
        TEXTMETRICA metrics{};
        ::GetTextMetricsA(m_hDC, &metrics);
        return metrics;
    }
    int LineHeight() const { return Metrics().tmAscent + Metrics().tmDescent; }
    void Write(int x, int y, const std::string& text) {
        ::TextOutA(m_hDC, x, y, text.data(), static_cast<int>(text.size()));
    }
    std::vector<std::uint8_t> Coverage() const {
        std::vector<std::uint8_t> coverage;
        for (int i = 0; i < m_nWidth * m_nHeight; ++i) {
            coverage.push_back(static_cast<std::uint8_t>(m_pPixels[i]));
        }
        return coverage;
    }

  private:
    int m_nWidth;
    int m_nHeight;
    HDC m_hDC = ::CreateCompatibleDC(nullptr);
    HBITMAP m_hBitmap = nullptr;
    HFONT m_hFont = nullptr;
    DWORD* m_pPixels = nullptr;
};

std::vector<std::uint8_t> BytesOf(HBUF32 hBuf) {
    const buffer_host::View view = buffer_host::Look(hBuf);
    return {view.pixels, view.pixels + view.RowBytes() * static_cast<std::size_t>(view.height)};
}

} // namespace

TEST(TextEngine, ThePictureIsTheLinesWithABlankAndAPixelRoundThem) {
    const CPaper paper(1, 1, 16);
    const int nBlank = paper.Width(" ");
    textObject object;

    ASSERT_EQ(1, textCreate::Apply(ParamOf(Record({"wide\r\n\r\ni"}, 16)), object));

    const buffer_host::View mask = buffer_host::Look(object.m_hMask);
    const buffer_host::View image = buffer_host::Look(object.m_hImage);
    EXPECT_EQ(paper.Width("wide") + 2 * nBlank, mask.width);
    EXPECT_EQ(3 * paper.LineHeight() + 2, mask.height);
    EXPECT_EQ(1, mask.unit);
    EXPECT_EQ(3, image.unit);
    EXPECT_TRUE(image.width == mask.width && image.height == mask.height);
    const std::vector<std::uint8_t> pixels = BytesOf(object.m_hImage);
    for (std::size_t i = 0; i < pixels.size(); i += 3) {
        ASSERT_TRUE(pixels[i] == 10 && pixels[i + 1] == 128 && pixels[i + 2] == 255);
    }
    EXPECT_TRUE(object.m_ptOrigin == CPoint(-nBlank, -1));
}

TEST(TextEngine, TheMaskIsWhatTheTextLayerDrawsAtEachAlignment) {
    struct Row {
        int nAlignCode;
        int nHalves; ///< of the room that the shorter line leaves, to its left
    };
    for (const Row& row :
         {Row{text_align_code::Left, 0}, {text_align_code::Center, 1}, {text_align_code::Right, 2}}) {
        textObject object;
        ASSERT_EQ(1,
                  textCreate::Apply(ParamOf(Record({"first line\r\n", "2nd"}, 16), row.nAlignCode), object));
        const buffer_host::View mask = buffer_host::Look(object.m_hMask);
        CPaper paper(mask.width, mask.height, 16);

        const int nRoom = paper.Width("first line") - paper.Width("2nd");
        paper.Write(paper.Width(" "), 1, "first line");
        paper.Write(paper.Width(" ") + nRoom * row.nHalves / 2, 1 + paper.LineHeight(), "2nd");

        const std::vector<std::uint8_t> coverage = paper.Coverage();
        EXPECT_NE(std::vector<std::uint8_t>(coverage.size()), coverage);
        EXPECT_EQ(coverage, BytesOf(object.m_hMask)) << row.nAlignCode;
    }
}

TEST(TextEngine, RunsOfTwoSizesShareABaseline) {
    QXRICHEDITINFO* const pInfo = Record({"a", "B"}, 12);
    RichTextRuns(pInfo)[1].nHeight = 30;
    textObject object;

    ASSERT_EQ(1, textCreate::Apply(ParamOf(pInfo), object));

    const buffer_host::View mask = buffer_host::Look(object.m_hMask);
    CPaper paper(mask.width, mask.height, 12);
    const int nLeft = paper.Width(" ");
    const int nSmallAscent = paper.Metrics().tmAscent;
    const int nSmallWidth = paper.Width("a");
    paper.UseFont(30);
    EXPECT_EQ(paper.LineHeight() + 2, mask.height);
    paper.Write(nLeft + nSmallWidth, 1, "B");
    const int nBaseline = 1 + paper.Metrics().tmAscent;
    paper.UseFont(12);
    paper.Write(nLeft, nBaseline - nSmallAscent, "a");
    EXPECT_EQ(paper.Coverage(), BytesOf(object.m_hMask));
}

TEST(TextEngine, APixelLostInTwipsComesBack) {
    textObject lost;
    textObject whole;

    ASSERT_EQ(1, textCreate::Apply(ParamOf(Record({"abc"}, 15)), lost));
    ASSERT_EQ(1, textCreate::Apply(ParamOf(Record({"abc"}, 16)), whole));

    EXPECT_EQ(BytesOf(whole.m_hMask), BytesOf(lost.m_hMask));
}

TEST(TextEngine, TheParametersStyleHoldsForEveryRun) {
    QXRICHEDITINFO* const pStyled = Record({"abc"}, 16);
    RichTextRuns(pStyled)[0].dwEffects = rich_text_effect::Bold | rich_text_effect::Underline;
    textCreate::textCreateParam param = ParamOf(Record({"abc"}, 16));
    textObject plain;
    textObject styled;
    textObject asRun;

    ASSERT_EQ(1, textCreate::Apply(param, plain));
    param.nBold = param.nUnderline = 1;
    ASSERT_EQ(1, textCreate::Apply(param, styled));
    ASSERT_EQ(1, textCreate::Apply(ParamOf(pStyled), asRun));

    EXPECT_EQ(BytesOf(asRun.m_hMask), BytesOf(styled.m_hMask));
    EXPECT_NE(BytesOf(plain.m_hMask), BytesOf(styled.m_hMask));
}

TEST(TextEngine, TheObjectKeepsWhatItWasMadeFrom) {
    textCreate::textCreateParam param = ParamOf(Record({"a"}, 16), text_align_code::Right);
    param.strText = "a\n\r\n\rb";
    param.nItalic = 1;
    textObject object;

    ASSERT_EQ(1, textCreate::Apply(param, object));

    EXPECT_STREQ("a\n\nb", object.m_strText);
    EXPECT_STREQ("Arial", object.m_strFontName);
    EXPECT_EQ(16, object.m_nFontSize);
    EXPECT_TRUE(object.m_nBold == 0 && object.m_nItalic == 1 && object.m_nUnderline == 0);
    EXPECT_EQ(text_align_code::Right, object.m_nAlignment);
    EXPECT_EQ(Orange, object.m_crText);
}

TEST(TextEngine, AFailureLeavesAnEmptyObjectAndNothingBehind) {
    QXRICHEDITINFO* const pBroken = Record({"a"}, 16);
    pBroken->cbHeader = 0;
    const textCreate::textCreateParam good = ParamOf(Record({"a"}, 16));
    const textCreate::textCreateParam broken = ParamOf(pBroken);
    const textCreate::textCreateParam blank = ParamOf(Record({"", ""}, 16));
    const textCreate::textCreateParam none = ParamOf(nullptr);
    // Sums of which 32 bits keep nothing: four widths of 2^30 and more, and 2^18 lines 2^14 high.
    const std::string strWide(1200000, 'W');
    const textCreate::textCreateParam wide = ParamOf(Record({strWide, strWide, strWide, strWide}, 1000));
    const textCreate::textCreateParam high = ParamOf(Record({std::string((1 << 18) - 1, '\r')}, 14665));
    struct Row {
        const textCreate::textCreateParam& param;
        const char* pszFault;
        unsigned nAfter;
    };
    const std::size_t nBuffers = buffer_host::BufferCount();
    const unsigned nObjects = platform::CountLive().gdiObjects;
    const unsigned nContexts = platform::CountLive().deviceContexts;
    for (const Row& row : {Row{good, "text-engine", 0},
                           {good, "buffer", 0},
                           {good, "buffer", 1},
                           {good, "font", 0},
                           {good, "bitmap", 0},
                           {good, "device-context", 0},
                           {good, "device-context", 1},
                           {broken, "-", 0},
                           {blank, "-", 0},
                           {wide, "-", 0},
                           {high, "-", 0},
                           {none, "-", 0}}) {
        textObject object;
        ASSERT_EQ(1, textCreate::Apply(good, object));
        const CFaultScope fault(row.pszFault, false, row.nAfter);

        EXPECT_EQ(0, textCreate::Apply(row.param, object)) << row.pszFault;

        EXPECT_TRUE(object.m_hImage == 0 && object.m_hMask == 0 && object.m_strText.IsEmpty());
        EXPECT_EQ(nBuffers, buffer_host::BufferCount()) << row.pszFault;
        EXPECT_EQ(nObjects, platform::CountLive().gdiObjects) << row.pszFault;
        EXPECT_EQ(nContexts, platform::CountLive().deviceContexts) << row.pszFault;
    }
}

TEST(TextEngine, ItsParametersStandInTheTraceInOrder) {
    textObject object;
    trace::TurnOn(true);
    textCreate::Apply(ParamOf(Record({"a"}, 16)), object);
    const std::vector<trace::Row> rows = trace::Take();
    trace::TurnOn(false);

    ASSERT_EQ(1U, rows.size());
    EXPECT_EQ("text-engine", rows[0].on);
    ASSERT_EQ(16U, rows[0].args.size());
    EXPECT_EQ("Arial", std::get<std::string>(rows[0].args[0]));
    EXPECT_EQ("text", std::get<std::string>(rows[0].args[1]));
    std::vector<long long> numbers;
    for (const std::size_t i : {2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14}) {
        numbers.push_back(std::get<long long>(rows[0].args[i]));
    }
    EXPECT_EQ((std::vector<long long>{16, 0, 0, 0, 1, 0, 1000, 0, 0, 0, -1, -1}), numbers);
    EXPECT_EQ(Orange, std::get<trace::Color>(rows[0].args[9]).value);
    EXPECT_TRUE(std::get<trace::Pointer>(rows[0].args[15]).present);
}
