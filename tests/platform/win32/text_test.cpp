#include "text_stage.h"

#include <algorithm>
#include <random>

namespace {

struct Fitting {
    int bytes;
    SIZE size;
    std::vector<int> extents;
};

Fitting Fit(const TextStage& stage, const std::string& text, int maxExtent) {
    Fitting fitting{-1, {}, std::vector<int>(text.size(), -1)};
    GetTextExtentExPointA(stage.Dc(), text.data(), static_cast<int>(text.size()), maxExtent, &fitting.bytes,
                          fitting.extents.data(), &fitting.size);
    return fitting;
}

std::ptrdiff_t CountOf(const TextStage& stage, COLORREF color) {
    const auto pixels = stage.Look();
    return std::count(pixels.begin(), pixels.end(), color);
}

constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Blue = RGB(0, 0, 255);

// A hiragana letter between an a and a b.
constexpr const char* Mixed = "a\x82\xA0"
                              "b";

} // namespace

TEST(Extents, AddUpByteForByte) {
    constexpr unsigned Seed = 20261;
    std::mt19937 random(Seed);
    TextStage stage;
    for (const FontChoice& font : {FontChoice{}, FontChoice{"Times New Roman", 31, FW_BOLD}}) {
        stage.Use(font);
        for (const size_t length : {1U, 7U, 8U, 29U, 200U}) {
            std::string text(length, ' ');
            std::generate(text.begin(), text.end(), [&] { return static_cast<char>(random()); });
            const Fitting fitting = Fit(stage, text, stage.Extent(text));
            int sum = 0;
            for (size_t i = 0; i < length; ++i) {
                sum += stage.Extent(text.substr(i, 1));
                ASSERT_EQ(fitting.extents[i], sum) << "seed " << Seed << ", byte " << i;
            }
            EXPECT_EQ(fitting.bytes, static_cast<int>(length));
            EXPECT_EQ(fitting.size.cx, sum);
        }
    }
}

// At an em of 16 the a and the b advance 1139 of 2048 units, 9 pixels, and the wide letter the whole em.
TEST(Extents, TwoByteCharacterFitsWholeOrNotAtAll) {
    const CodePageScope japanese(932);
    const TextStage stage;
    const struct {
        int maxExtent;
        int bytes;
        std::vector<int> extents;
    } rows[] = {
        {8, 0, {-1, -1, -1, -1}},  {9, 1, {9, -1, -1, -1}},   {24, 1, {9, -1, -1, -1}},
        {25, 3, {9, 25, 25, -1}},  {33, 3, {9, 25, 25, -1}},  {34, 4, {9, 25, 25, 34}},
        {-1, 0, {-1, -1, -1, -1}}, {900, 4, {9, 25, 25, 34}},
    };
    for (const auto& row : rows) {
        const Fitting fitting = Fit(stage, Mixed, row.maxExtent);
        EXPECT_EQ(fitting.bytes, row.bytes) << row.maxExtent;
        EXPECT_EQ(fitting.extents, row.extents) << row.maxExtent;
        EXPECT_EQ(fitting.size.cx, 34) << row.maxExtent;
        EXPECT_EQ(fitting.size.cy, 18) << row.maxExtent;
    }
}

TEST(Extents, WithoutACountOfFittingBytesNothingLimits) {
    const TextStage stage;
    std::vector<int> extents(2);
    SIZE size{};

    EXPECT_TRUE(GetTextExtentExPointA(stage.Dc(), "Ai", 2, 3, nullptr, extents.data(), &size));
    EXPECT_EQ(extents, (std::vector<int>{11, 15}));
    EXPECT_FALSE(GetTextExtentExPointA(stage.Dc(), nullptr, 2, 3, nullptr, nullptr, &size));
    EXPECT_FALSE(GetTextExtentExPointA(stage.Dc(), "Ai", 2, 3, nullptr, nullptr, nullptr));
    EXPECT_FALSE(GetTextExtentExPointA(nullptr, "Ai", 2, 3, nullptr, nullptr, &size));
}

TEST(TextOut, AlignmentSaysWhichPointOfTheTextIsGiven) {
    TextStage stage;
    stage.Write(30, 5, "Wig");
    const auto wanted = stage.Look();
    ASSERT_GT(CountOf(stage, Black), 0);
    // "Wig" is 15 + 4 + 9 wide, 15 above and 3 below the baseline.
    const struct {
        UINT align;
        int x;
        int y;
    } rows[] = {
        {TA_CENTER | TA_TOP, 44, 5},       {TA_RIGHT | TA_TOP, 58, 5},    {TA_LEFT | TA_BASELINE, 30, 20},
        {TA_CENTER | TA_BASELINE, 44, 20}, {TA_LEFT | TA_BOTTOM, 30, 23}, {TA_RIGHT | TA_BASELINE, 58, 20},
    };
    UINT before = TA_LEFT | TA_TOP;
    for (const auto& row : rows) {
        stage.Clear();
        EXPECT_EQ(SetTextAlign(stage.Dc(), row.align), before);
        stage.Write(row.x, row.y, "Wig");
        EXPECT_EQ(stage.Look(), wanted) << row.align;
        before = row.align;
    }
}

TEST(TextOut, OpaqueModeFillsTheExtentAndTransparentLeavesIt) {
    TextStage stage;
    SetBkColor(stage.Dc(), Blue);
    stage.Write(10, 5, "  ");
    EXPECT_EQ(CountOf(stage, White), TextStage::Width * TextStage::Height);

    SetBkMode(stage.Dc(), OPAQUE);
    stage.Write(10, 5, "  ");
    EXPECT_EQ(CountOf(stage, Blue), 8 * 18);
    EXPECT_EQ(GetPixel(stage.Dc(), 10, 5), Blue);
    EXPECT_EQ(GetPixel(stage.Dc(), 17, 22), Blue);
}

TEST(TextOut, PiecesMakeTheWhole) {
    const CodePageScope japanese(932);
    TextStage stage;
    const std::string text = std::string("fjW") + Mixed + "/Vy";
    stage.Write(5, 5, text);
    const auto whole = stage.Look();
    for (const size_t cut : {1U, 3U, 4U, 6U, 9U}) {
        stage.Clear();
        stage.Write(5, 5, text.substr(0, cut));
        stage.Write(5 + stage.Extent(text.substr(0, cut)), 5, text.substr(cut));
        EXPECT_EQ(stage.Look(), whole) << cut;
    }
}

TEST(TextOut, ClipCutsThroughGlyphsAndKeepsTheRest) {
    TextStage stage;
    stage.Write(5, 5, "WgWgWgWg");
    const auto whole = stage.Look();
    for (const RECT& clip : {RECT{12, 0, 60, 40}, RECT{0, 12, 120, 16}, RECT{33, 9, 34, 22}}) {
        stage.Clear();
        SelectClipRgn(stage.Dc(), nullptr);
        IntersectClipRect(stage.Dc(), clip.left, clip.top, clip.right, clip.bottom);
        stage.Write(5, 5, "WgWgWgWg");
        SelectClipRgn(stage.Dc(), nullptr);
        auto expected = whole;
        for (int i = 0; i < TextStage::Width * TextStage::Height; ++i) {
            const POINT at = {i % TextStage::Width, i / TextStage::Width};
            expected[static_cast<size_t>(i)] = PtInRect(&clip, at) ? whole[static_cast<size_t>(i)] : White;
        }
        EXPECT_EQ(stage.Look(), expected) << clip.left << ' ' << clip.top;
    }
}

// At an em of 19 the line is 21 high, 18 of it above the baseline; a g descends by 425 of 2048 units, 4 rows.
TEST(TextOut, LowestRowOfAGlyphMayLieOverTheLine) {
    TextStage stage;
    stage.Use({.height = -19});
    stage.Write(10, 0, "g");
    EXPECT_NE(GetPixel(stage.Dc(), 14, 21), White);
}

TEST(TextOut, EdgesAreSmoothUnlessTheFontOrTheBitmapForbidsIt) {
    TextStage smooth;
    smooth.Write(5, 5, "So8");
    TextStage oneBit(1);
    oneBit.Write(5, 5, "So8");
    TextStage hard;
    hard.Use({.quality = NONANTIALIASED_QUALITY});
    hard.Write(5, 5, "So8");

    constexpr auto all = TextStage::Width * TextStage::Height;
    EXPECT_LT(CountOf(smooth, White) + CountOf(smooth, Black), all);
    EXPECT_EQ(CountOf(hard, White) + CountOf(hard, Black), all);
    EXPECT_EQ(oneBit.Look(), hard.Look());
    // A half-covered pixel is black from the darker half on: half black and half white mix to 127.
    auto halved = smooth.Look();
    for (DWORD& pixel : halved) {
        pixel = GetRValue(pixel) <= 127 ? Black : White;
    }
    EXPECT_EQ(halved, hard.Look());
}

TEST(TextOut, UnderlineRunsUnderBlanksToo) {
    TextStage stage;
    stage.Use({.underline = true});
    stage.Write(10, 5, "   ");

    EXPECT_EQ(CountOf(stage, Black), 12);
    const auto pixels = stage.Look();
    const auto first = std::find(pixels.begin(), pixels.end(), Black) - pixels.begin();
    EXPECT_EQ(first % TextStage::Width, 10);
    EXPECT_GT(first / TextStage::Width, 5 + 14);
}

TEST(TextOut, JapaneseLettersAreNotTheMissingGlyphButALoneLeadByteIs) {
    const auto picture = [](const std::string& text) {
        TextStage stage;
        stage.Write(5, 5, text);
        return stage.Look();
    };
    const CodePageScope japanese(932);
    const auto missing = picture("\x81");

    EXPECT_NE(picture(""), missing);
    EXPECT_EQ(picture("\x82"), missing);
    EXPECT_NE(picture("\x82\xA0"), missing);
    EXPECT_NE(picture("\x82\xA0"), picture("\x82\xA2"));
}

TEST(TextOut, FollowsAChangeOfTheCodePageUnderASelectedFont) {
    TextStage stage;
    // Two letters of 9 (acute a) and 4 (blank, unbreakable) become one of the em.
    EXPECT_EQ(stage.Extent("\x82\xA0"), stage.Extent("\x82") + 4);
    const CodePageScope japanese(932);
    EXPECT_EQ(stage.Extent("\x82\xA0"), 16);
}
