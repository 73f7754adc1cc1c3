#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "host/text_engine.h"
#include "host/text_node.h"
#include "refhost_help.h"
#include "text/text_effect.h"
#include "text/text_picture.h"

using namespace refhost_help;

namespace {

constexpr COLORREF Blue = RGB(0, 0, 255);

std::vector<std::uint8_t> BytesOf(HBUF32 hBuf) {
    const buffer_host::View view = buffer_host::Look(hBuf);
    return {view.pixels, view.pixels + view.RowBytes() * static_cast<std::size_t>(view.height)};
}

std::uint32_t PixelAt(const CTextNode& node, int x, int y) {
    const std::uint8_t* p = buffer_host::Look(node.m_hImage).Row(y) + 3 * x;
    return static_cast<std::uint32_t>(p[2] << 16 | p[1] << 8 | p[0]);
}

/// A text of a single pixel in 0xFF0000, of the font size 16, at (10, 20): outline and emboss reach 1 pixel,
/// the glow 3.
class Effects : public testing::Test {
  protected:
    CTextNode* Dot(std::uint8_t nCover = 255) {
        textObject object;
        object.m_hImage = Solid(0xFF0000, 1, 1);
        object.m_hMask = Mask(1, 1, {nCover});
        object.m_ptOrigin = CPoint(10, 20);
        object.m_strText = "x";
        object.m_strFontName = "Arial";
        object.m_nFontSize = 16;
        object.m_crText = RGB(255, 0, 0);
        auto* pNode = new CTextNode(&doc);
        pNode->m_fnAssign(object);
        return pNode;
    }
    CTextNode* With(CTextNode* pNode, TextEffect effect, COLORREF color = Blue) {
        CTextEffectState::Set(*pNode, effect, color);
        EXPECT_EQ(1, pNode->m_fnRegenerateTextEffect());
        return pNode;
    }
    static CRect RectOf(CTextNode* pNode) {
        CRect rect;
        pNode->GetBoundRect(&rect);
        return rect;
    }

    CVorDoc doc{100, 100};
};

} // namespace

TEST_F(Effects, AnEdgeOfThePictureBelongsToTheEffectAndTheTextStandsInIt) {
    struct Row {
        TextEffect effect;
        std::uint8_t nCover;
        std::vector<std::uint8_t> mask;
        std::array<std::uint32_t, 3> diagonal; ///< colours from the top left to the bottom right
    };
    // Half of red over half of blue: 128 + 128 * 127 / 255 is 191.7 of coverage, 170.2 / 255 of it the
    // text's. An emboss is lit by a colour halfway from the text's to white.
    for (const Row& row :
         {Row{TextEffect::Outline, 255, std::vector<std::uint8_t>(9, 255), {0x0000FF, 0xFF0000, 0x0000FF}},
          Row{TextEffect::Outline,
              128,
              {128, 128, 128, 128, 192, 128, 128, 128, 128},
              {0x0000FF, 0xAA0055, 0x0000FF}},
          Row{TextEffect::Emboss, 255, {255, 0, 0, 0, 255, 0, 0, 0, 255}, {0xFF7F7F, 0xFF0000, 0x0000FF}}}) {
        CTextNode* const pNode = With(Dot(row.nCover), row.effect);

        EXPECT_EQ(row.mask, BytesOf(pNode->m_tx.hMask));
        for (int n = 0; n < 3; ++n) {
            EXPECT_EQ(row.diagonal[static_cast<std::size_t>(n)], PixelAt(*pNode, n, n));
        }
        EXPECT_TRUE(RectOf(pNode) == CRect(9, 19, 12, 22));
    }
}

TEST_F(Effects, AnOutlineIsADiscRoundEachPixel) {
    EffectPicture picture;
    DrawTextEffect(TextEffect::Outline, {Blue, Blue}, buffer_host::Look(Dot()->m_tx.hMask), 64, picture);
    const std::vector<std::uint8_t> mask = BytesOf(picture.mask.Get());
    // Four pixels far, dx * dx + dy * dy up to 20: rows of 5, 7, five times 9, 7 and 5.
    EXPECT_EQ(69, std::count(mask.begin(), mask.end(), 255));
}

TEST_F(Effects, AGlowFadesEvenlyToAllSides) {
    CTextNode* const pNode = With(Dot(), TextEffect::Glow);
    const buffer_host::View mask = buffer_host::Look(pNode->m_tx.hMask);

    ASSERT_EQ(7, mask.width);
    ASSERT_EQ(7, mask.height);
    EXPECT_EQ(255, mask.Row(3)[3]);
    EXPECT_EQ(0xFF0000U, PixelAt(*pNode, 3, 3));
    EXPECT_EQ(0x0000FFU, PixelAt(*pNode, 4, 3));
    for (int n = 0; n < 3; ++n) {
        EXPECT_LE(mask.Row(3)[n], mask.Row(3)[n + 1]);
        EXPECT_EQ(mask.Row(3)[n], mask.Row(3)[6 - n]);
        // Rows and columns are averaged one after the other, and rounded each time.
        EXPECT_NEAR(mask.Row(3)[n], mask.Row(n)[3], 1);
    }
    EXPECT_GT(mask.Row(3)[2], 0);
    EXPECT_LT(mask.Row(3)[2], 255);
}

TEST_F(Effects, EveryEffectIsDrawnFromTheTextAlone) {
    CTextNode* const pNode = Dot();
    const std::vector<std::uint8_t> image = BytesOf(pNode->m_hImage);
    const std::vector<std::uint8_t> glow = BytesOf(With(Dot(), TextEffect::Glow)->m_tx.hMask);

    for (const TextEffect effect :
         {TextEffect::Outline, TextEffect::Emboss, TextEffect::Glow, TextEffect::Glow}) {
        With(pNode, effect);
    }
    EXPECT_EQ(glow, BytesOf(pNode->m_tx.hMask));
    EXPECT_TRUE(RectOf(pNode) == CRect(7, 17, 14, 24));

    With(pNode, TextEffect::None);
    EXPECT_EQ(image, BytesOf(pNode->m_hImage));
    EXPECT_EQ(std::vector<std::uint8_t>{255}, BytesOf(pNode->m_tx.hMask));
    EXPECT_TRUE(RectOf(pNode) == CRect(10, 20, 11, 21));
    EXPECT_EQ(0, pNode->m_fnIsTextEffectApplied());
}

TEST_F(Effects, AScaledTextStaysWhereItIs) {
    CTextNode* const pNode = Dot();
    pNode->m_fnResize(CRect(10, 20, 20, 24));
    pNode->m_fnAdjustImageNodeBuf(0, 0);

    With(pNode, TextEffect::Outline);

    // The picture is 3 by 3 now, shown ten times as wide and four times as high.
    EXPECT_TRUE(RectOf(pNode) == CRect(0, 16, 30, 28));
    EXPECT_EQ(3, buffer_host::Look(pNode->m_hImage).width);
}

TEST_F(Effects, ACopiedEffectIsDrawnWhenRegenerated) {
    CTextNode* const pFrom = With(Dot(), TextEffect::Outline);
    CTextNode* const pTo = Dot();
    const COLORREF green = RGB(0, 255, 0);

    EXPECT_EQ(1, pTo->m_fnCopyTextEffectFrom(pFrom));
    EXPECT_EQ(1, pTo->m_fnChangeTextEffectColor(&green));
    EXPECT_EQ(1, buffer_host::Look(pTo->m_hImage).width);
    EXPECT_EQ(1, pTo->m_fnRegenerateTextEffect());

    EXPECT_EQ(0x00FF00U, PixelAt(*pTo, 0, 0));
    EXPECT_EQ(0x0000FFU, PixelAt(*pFrom, 0, 0));
    EXPECT_EQ(0, pTo->m_fnCopyTextEffectFrom(nullptr));
    EXPECT_EQ(0, pTo->m_fnChangeTextEffectColor(nullptr));
    EXPECT_EQ(1, pTo->m_fnIsTextEffectApplied());
}

TEST_F(Effects, ACopyHasTheEffectAndTheTextBelowIt) {
    CTextNode* const pCopy = static_cast<CTextNode*>(With(Dot(), TextEffect::Emboss)->Duplicate());

    EXPECT_EQ(TextEffect::Emboss, CTextEffectState::KindOf(*pCopy));
    EXPECT_EQ(Blue, CTextEffectState::ColorOf(*pCopy));
    With(pCopy, TextEffect::None);
    EXPECT_EQ(std::vector<std::uint8_t>{255}, BytesOf(pCopy->m_tx.hMask));
}

TEST_F(Effects, WithoutMemoryThePictureStays) {
    CTextNode* const pNode = With(Dot(), TextEffect::Outline);
    const std::vector<std::uint8_t> before = BytesOf(pNode->m_tx.hMask);
    const std::size_t nBuffers = buffer_host::BufferCount();
    CTextEffectState::Set(*pNode, TextEffect::Glow, Blue);

    // The picture's mask and image, the glow's layer and its softened form.
    for (unsigned n = 0; n < 4; ++n) {
        const CFaultScope fault("buffer", true, n);
        EXPECT_EQ(0, pNode->m_fnRegenerateTextEffect()) << n;
        EXPECT_EQ(before, BytesOf(pNode->m_tx.hMask)) << n;
        EXPECT_EQ(nBuffers, buffer_host::BufferCount()) << n;
    }
    EXPECT_EQ(1, pNode->m_fnRegenerateTextEffect());
}

TEST_F(Effects, MovingTakesAllButIdentityAndPlaceInTheLists) {
    CTextNode* const pOld = With(Dot(), TextEffect::Outline);
    CTextNode* const pNew = With(Dot(), TextEffect::Emboss);
    CImgNode* const pFront = AddBox(doc, CRect(0, 0, 1, 1));
    doc.GetObjList()->AddTail(pOld);
    pNew->Move(30, 0);
    pNew->m_strText = "new";
    pNew->m_shadow.dOffsetX = 2.5;
    pNew->m_fnUpdateBCAndT(1, 2, 3);
    CImgNode* const pFrame = AddBox(doc, CRect(0, 0, 5, 5));
    pFrame->m_nType = node_type::Frame;
    pFrame->m_pOwner = pNew;
    pNew->m_pFrameNode = pFrame;
    const std::uint32_t nId = pOld->m_nId;
    const std::size_t nBuffers = buffer_host::BufferCount();

    pOld->m_fnMoveMemberDataFrom(pNew);

    EXPECT_EQ(nId, pOld->m_nId);
    EXPECT_EQ((std::vector<CImgNode*>{pFrame, pFront, pOld}), NodesOf(*doc.GetObjList()));
    EXPECT_TRUE(RectOf(pOld) == CRect(39, 19, 42, 22));
    EXPECT_STREQ("new", pOld->m_strText);
    EXPECT_EQ(2.5, pOld->m_shadow.dOffsetX);
    EXPECT_EQ(3, pOld->m_nTransparency);
    EXPECT_EQ(TextEffect::Emboss, CTextEffectState::KindOf(*pOld));
    EXPECT_EQ(pFrame, pOld->m_pFrameNode);
    EXPECT_EQ(pOld, pFrame->m_pOwner);
    EXPECT_TRUE(pNew->m_hImage == 0 && pNew->m_tx.hMask == 0 && !pNew->m_pFrameNode);
    // The old picture and the text below its effect are gone.
    EXPECT_EQ(nBuffers - 3, buffer_host::BufferCount());
    std::vector<CImgNode*> found;
    CNodeBookkeeping::NodesAtPoint(doc, CPoint(40, 20), found);
    EXPECT_EQ(std::vector<CImgNode*>{pOld}, found);
}

TEST_F(Effects, AnyLineEndReadsAsOneLineFeed) {
    CTextNode* const pNode = Dot();
    struct Row {
        const char* pszStored;
        const char* pszRead;
    };
    for (const Row& row : {Row{"a\nb", "a\nb"},
                           {"a\n\r\n\rb", "a\n\nb"},
                           {"a\r\n\r\nb", "a\n\nb"},
                           {"a\rb\n", "a\nb\n"},
                           {"a\n\nb", "a\n\nb"}}) {
        pNode->m_strText = row.pszStored;
        CString strText;
        pNode->m_fnGetText(strText);
        EXPECT_STREQ(row.pszRead, strText);
    }
}
