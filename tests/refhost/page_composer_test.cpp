#include <gtest/gtest.h>

#include <random>
#include <string>

#include "image/blend.h"
#include "image/page_render.h"
#include "refhost_help.h"

using namespace refhost_help;

namespace {

constexpr std::uint32_t Grey = 0x505050;
constexpr ViewMap Plain{1.0, {0, 0}};

Canvas Composed(const CVorDoc& doc, int nWidth, int nHeight, const ViewMap& map = Plain) {
    Canvas canvas(nWidth, nHeight);
    CPageComposer composer;
    composer.Compose(&doc, map, canvas.Target(), canvas.All());
    return canvas;
}

} // namespace

TEST(PageComposer, APageWithoutBaseIsGreyAndANodeLiesOnIt) {
    CVorDoc doc(4, 2);
    AddPicture(doc, Image(2, 1, {0xC86432, 0x010203}), 0, 1, 1);

    EXPECT_EQ((std::vector<std::uint32_t>{Grey, Grey, Grey, Grey, Grey, 0xC86432, 0x010203, Grey}),
              Composed(doc, 4, 2).pixels);
}

TEST(PageComposer, AMaskMixesRoundedToNearest) {
    CVorDoc doc(3, 1);
    AddPicture(doc, Solid(0xC86432, 3, 1), Mask(3, 1, {0, 128, 255}), 0, 0);

    // Red (80 * 127 + 200 * 128) / 255 is 140.2, green 90.04, blue 64.9.
    EXPECT_EQ((std::vector<std::uint32_t>{Grey, 0x8C5A41, 0xC86432}), Composed(doc, 3, 1).pixels);
}

TEST(PageComposer, TransparencyScalesTheMaskTruncated) {
    // trunc(255 * 0.75) is 191: red (80 * 64 + 200 * 191) / 255 is 169.9, green 94.98, blue 57.5.
    for (const auto& [nTransparency, expected] :
         {std::pair{25, 0xAA5F3Au}, std::pair{100, Grey}, std::pair{-7, 0xC86432u}}) {
        for (const HBUF32 hMask : {0, Mask(2, 1, {255, 0})}) {
            CVorDoc doc(2, 1);
            AddPicture(doc, Solid(0xC86432, 2, 1), hMask, 0, 0)->m_fnUpdateBCAndT(0, 0, nTransparency);
            EXPECT_EQ(expected, Composed(doc, 2, 1).At(0, 0)) << nTransparency;
            EXPECT_EQ(hMask != 0 ? Grey : expected, Composed(doc, 2, 1).At(1, 0)) << nTransparency;
        }
    }
}

TEST(PageComposer, BrightnessAndContrastFollowTheirFormula) {
    struct Row {
        int nBrightness, nContrast;
        std::uint32_t expected;
    };
    CVorDoc doc(1, 1);
    CImgNode* pNode = AddPicture(doc, Solid(0xC86432, 1, 1), 0, 0, 0);
    for (const Row& row :
         {Row{0, 0, 0xC86432}, Row{100, 0, 0xFFFFFF}, Row{500, 0, 0xFFFFFF}, Row{-50, 0, 0x490000},
          Row{0, 50, 0xEC560B}, Row{0, -100, 0x808080}, Row{10, 10, 0xE87B44}}) {
        pNode->m_fnUpdateBCAndT(row.nBrightness, row.nContrast, 0);
        EXPECT_EQ(row.expected, Composed(doc, 1, 1).At(0, 0)) << row.nBrightness << " " << row.nContrast;
    }
}

TEST(PageComposer, TheHeadOfTheListIsInFront) {
    CVorDoc doc(2, 1);
    AddPicture(doc, Solid(0x0000FF, 2, 1), 0, 0, 0);
    CImgNode* pFront = AddPicture(doc, Solid(0xFF0000, 1, 1), 0, 0, 0);
    EXPECT_EQ((std::vector<std::uint32_t>{0xFF0000, 0x0000FF}), Composed(doc, 2, 1).pixels);

    doc.GetObjList()->RemoveHead();
    doc.GetObjList()->AddTail(pFront);

    EXPECT_EQ((std::vector<std::uint32_t>{0x0000FF, 0x0000FF}), Composed(doc, 2, 1).pixels);
}

TEST(PageComposer, TheBaseIsStretchedToThePageAndGreyBesideIt) {
    CVorDoc doc(2, 2);
    doc.SetBaseImage(Image(1, 1, {0x123456}));

    EXPECT_EQ((std::vector<std::uint32_t>{0x123456, 0x123456, Grey, 0x123456, 0x123456, Grey}),
              Composed(doc, 3, 2).pixels);
}

TEST(PageComposer, StretchingIsBilinearBetweenPixelCentres) {
    CVorDoc doc(4, 1);
    CImgNode* pNode = AddPicture(doc, Image(2, 1, {0x000000, 0xFFFFFF}), 0, 0, 0);
    pNode->m_fnResize(CRect(0, 0, 4, 1));

    // Centres fall at -0.25, 0.25, 0.75 and 1.25 source pixels: shares 0, 1/4, 3/4 and 1.
    EXPECT_EQ((std::vector<std::uint32_t>{0x000000, 0x404040, 0xBFBFBF, 0xFFFFFF}),
              Composed(doc, 4, 1).pixels);
}

TEST(PageComposer, ScrollAndZoomPlaceTheNode) {
    CVorDoc doc(20, 20);
    AddPicture(doc, Solid(0xFF0000, 1, 1), 0, 5, 4);

    // Two pixels a side, from (2, 2) on.
    EXPECT_EQ((std::vector<std::uint32_t>{Grey, Grey, Grey,     Grey,     Grey, //
                                          Grey, Grey, Grey,     Grey,     Grey, //
                                          Grey, Grey, 0xFF0000, 0xFF0000, Grey, //
                                          Grey, Grey, 0xFF0000, 0xFF0000, Grey}),
              Composed(doc, 5, 4, {2.0, {4, 3}}).pixels);
}

TEST(PageComposer, APartIsByteForByteThatOfTheWholeAndNothingElseIsTouched) {
    const unsigned nSeed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(nSeed));
    std::mt19937 random(nSeed);
    const auto upto = [&](int nLimit) { return static_cast<int>(random() % static_cast<unsigned>(nLimit)); };
    const auto noise = [&](HBUF32 hBuf) {
        const buffer_host::View view = buffer_host::Look(hBuf);
        for (std::size_t i = 0; i < view.RowBytes() * static_cast<std::size_t>(view.height); ++i) {
            view.pixels[i] = static_cast<std::uint8_t>(random() % 3 == 0 ? 255 : random());
        }
        return hBuf;
    };
    CVorDoc doc(60, 50);
    doc.SetBaseImage(noise(Solid(0, 37, 50)));
    for (int i = 0; i < 25; ++i) {
        const int nWidth = 1 + upto(20);
        const int nHeight = 1 + upto(20);
        CImgNode* pNode =
            AddPicture(doc, noise(Solid(0, nWidth, nHeight)),
                       i % 3 == 0 ? 0 : noise(Mask(nWidth, nHeight, {})), upto(70) - 10, upto(60) - 10);
        pNode->m_fnUpdateBCAndT(upto(3) * 20, upto(2) * 30, upto(3) * 40);
        if (i % 2 == 0) {
            pNode->m_fnResize(CRect(pNode->m_tx.nX, pNode->m_tx.nY, pNode->m_tx.nX + 1 + upto(30),
                                    pNode->m_tx.nY + 1 + upto(30)));
        }
    }
    for (const ViewMap& map : {ViewMap{1.0, {3, 5}}, ViewMap{1.5, {3, 5}}, ViewMap{0.75, {-4, 2}}, Plain}) {
        const Canvas whole = Composed(doc, 90, 70, map);
        for (int i = 0; i < 40; ++i) {
            const CRect part(upto(90) - 5, upto(70) - 5, upto(100), upto(80));
            Canvas canvas(90, 70);
            CPageComposer composer;
            composer.Compose(&doc, map, canvas.Target(), part);
            for (int y = 0; y < 70; ++y) {
                for (int x = 0; x < 90; ++x) {
                    ASSERT_EQ(part.PtInRect(CPoint(x, y)) ? whole.At(x, y) : 0x00ABCDEFu, canvas.At(x, y))
                        << "zoom " << map.dZoom << " at " << x << " " << y;
                }
            }
        }
    }
}

TEST(Blend, EveryMixIsTheRoundedQuotient) {
    for (int target = 0; target < 256; target += 5) {
        for (int source = 0; source < 256; source += 5) {
            for (int mask = 0; mask < 256; ++mask) {
                std::uint32_t pixel = static_cast<std::uint32_t>(target);
                const std::uint8_t row[4] = {static_cast<std::uint8_t>(source), 0, 0, 0};
                const std::uint8_t share = static_cast<std::uint8_t>(mask);
                blend::MaskRow(&pixel, row, &share, 1);
                ASSERT_NEAR((target * (255 - mask) + source * mask) / 255.0, pixel, 0.5) << target << source;
            }
        }
    }
}

TEST(Blend, LongRowsAreMixedAsShortOnes) {
    constexpr int Count = 1000;
    std::mt19937 random(7);
    std::vector<std::uint32_t> target(Count);
    std::vector<std::uint8_t> source(Count * 3 + 4);
    std::vector<std::uint8_t> mask(Count);
    for (auto& value : target) {
        value = random() & 0xFFFFFF;
    }
    for (auto& value : source) {
        value = static_cast<std::uint8_t>(random());
    }
    for (std::size_t i = 0; i < Count; ++i) {
        mask[i] = static_cast<std::uint8_t>(i < 300 ? 1 + i % 254 : i < 600 ? 255 : random());
    }
    std::vector<std::uint32_t> single = target;
    for (std::size_t i = 0; i < Count; ++i) {
        blend::MaskRow(&single[i], &source[i * 3], &mask[i], 1);
    }

    blend::MaskRow(target.data(), source.data(), mask.data(), Count);

    EXPECT_EQ(single, target);
}

TEST(PageRender, IsThePageAtTheScaleTruncated) {
    CVorDoc doc(5, 3);
    AddPicture(doc, Solid(0xFF0000, 5, 3), 0, 0, 0);
    RenderedPage page;

    ASSERT_TRUE(RenderPage(doc, 1.5, page));

    EXPECT_EQ(7, page.width);
    EXPECT_EQ(4, page.height);
    EXPECT_EQ(28, std::count(page.pixels.get(), page.pixels.get() + 28, 0xFF0000U));
    EXPECT_FALSE(RenderPage(doc, 0.1, page));
    EXPECT_FALSE(RenderPage(doc, 1e9, page));
    EXPECT_FALSE(RenderPage(doc, -1.0, page));
}
