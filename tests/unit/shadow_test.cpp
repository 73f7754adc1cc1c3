// Building, removing and rebuilding shadows, and the soft mask they are cut from.
#include "host/mask.h"

#include <gtest/gtest.h>

#include "host/undo.h"
#include "image/node_host.h"
#include "tool_desk.h"
#include "undo/shadow_changed_event.h"

namespace {

using buffer_host::Look;

CBufferPtr Opaque(int nWidth, int nHeight) {
    HBUF32 hMask = 0;
    buf32Alloc(&hMask, 8, nWidth, nHeight, 1, nullptr);
    const buffer_host::View view = Look(hMask);
    std::fill_n(view.pixels, nWidth * nHeight, std::uint8_t{255});
    return CBufferPtr(hMask);
}

/// The soft mask of a hard one, or none.
CBufferPtr Softened(HBUF32 hHard, int nSoftness, int* pnAnswer = nullptr) {
    CTxParam block;
    block.hMask = hHard;
    const int nMade = sel32SoftEdgeMakeMask(&block, 0, nSoftness, 0, 0, 0, 0);
    if (pnAnswer) {
        *pnAnswer = nMade;
    }
    return CBufferPtr(nMade ? block.hMask : 0);
}

TEST(SoftMask, HasTheSizeOfTheHardOneAndLeavesThatAlone) {
    const CBufferPtr hard = Opaque(31, 17);

    const CBufferPtr soft = Softened(hard.Get(), 5);

    const buffer_host::View view = Look(soft.Get());
    EXPECT_EQ(view.width, 31);
    EXPECT_EQ(view.height, 17);
    EXPECT_EQ(view.unit, 1);
    EXPECT_EQ(Look(hard.Get()).Row(0)[0], 255);
    EXPECT_NE(soft.Get(), hard.Get());
}

TEST(SoftMask, WithoutSoftnessIsACopy) {
    const CBufferPtr hard = Opaque(9, 7);
    Look(hard.Get()).Row(3)[4] = 17;

    const CBufferPtr soft = Softened(hard.Get(), 0);

    for (int y = 0; y < 7; ++y) {
        for (int x = 0; x < 9; ++x) {
            EXPECT_EQ(Look(soft.Get()).Row(y)[x], x == 4 && y == 3 ? 17 : 255);
        }
    }
}

TEST(SoftMask, FadesEvenlyTowardsItsEdges) {
    const CBufferPtr hard = Opaque(41, 41);
    const CBufferPtr soft = Softened(hard.Get(), 6);
    const buffer_host::View view = Look(soft.Get());

    EXPECT_EQ(view.Row(20)[20], 255) << "the middle is farther from every edge than the softness";
    EXPECT_LT(view.Row(20)[0], 255);
    EXPECT_LT(view.Row(0)[0], view.Row(20)[0]) << "a corner fades both ways";
    for (int n = 1; n <= 20; ++n) {
        EXPECT_LE(view.Row(20)[n - 1], view.Row(20)[n]) << "column " << n;
        EXPECT_LE(view.Row(n - 1)[20], view.Row(n)[20]) << "row " << n;
    }
    for (int y = 0; y < 41; ++y) {
        for (int x = 0; x < 41; ++x) {
            EXPECT_EQ(view.Row(y)[x], view.Row(y)[40 - x]);
            EXPECT_EQ(view.Row(y)[x], view.Row(40 - y)[x]);
            EXPECT_NEAR(view.Row(y)[x], view.Row(x)[y], 1) << "but for the order of rounding";
        }
    }
}

TEST(SoftMask, MoreSoftnessFadesFarther) {
    const CBufferPtr hard = Opaque(61, 61);
    const CBufferPtr little = Softened(hard.Get(), 3);
    const CBufferPtr much = Softened(hard.Get(), 15);

    EXPECT_EQ(Look(little.Get()).Row(30)[4], 255);
    EXPECT_LT(Look(much.Get()).Row(30)[4], 255);
    EXPECT_EQ(Look(much.Get()).Row(30)[30], 255);
}

TEST(SoftMask, OfAnyShapeFadesOutsideToo) {
    HBUF32 hDot = 0;
    buf32Alloc(&hDot, 8, 21, 21, 1, nullptr);
    const CBufferPtr hard(hDot);
    Look(hDot).Row(10)[10] = 255;

    const CBufferPtr soft = Softened(hDot, 3);

    const buffer_host::View view = Look(soft.Get());
    EXPECT_LT(view.Row(10)[10], 255);
    EXPECT_GE(view.Row(10)[10], view.Row(10)[12]);
    EXPECT_EQ(view.Row(0)[0], 0);
}

TEST(SoftMask, WiderThanTheMaskIsStillAMask) {
    const CBufferPtr hard = Opaque(3, 1);

    int nAnswer = 0;
    const CBufferPtr soft = Softened(hard.Get(), 2000000000, &nAnswer);

    EXPECT_EQ(nAnswer, 1);
    EXPECT_EQ(Look(soft.Get()).width, 3);
}

TEST(SoftMask, IsRefusedForNegativeSoftnessAndBadMasks) {
    const CBufferPtr hard = Opaque(5, 5);
    CTxParam block;

    block.hMask = hard.Get();
    EXPECT_EQ(sel32SoftEdgeMakeMask(&block, 0, -1, 0, 0, 0, 0), 0);
    EXPECT_EQ(block.hMask, hard.Get());
    block.hMask = 0;
    EXPECT_EQ(sel32SoftEdgeMakeMask(&block, 0, 3, 0, 0, 0, 0), 0);
    EXPECT_EQ(sel32SoftEdgeMakeMask(nullptr, 0, 3, 0, 0, 0, 0), 0);
}

class Shadow : public ::testing::Test, protected CToolDesk {};

TEST_F(Shadow, StandsDirectlyBehindItsObjectAtTheOffset) {
    CImgNode* pBack = Picture(0, 0, 10, 10);
    CImgNode* pNode = Picture(100, 80, 40, 30);

    EXPECT_EQ(CToolDesk::Shadow(pNode, 7, -5, 4, 30), 1);

    CImgNode* pShadow = pNode->m_pShadowNode;
    ASSERT_NE(pShadow, nullptr);
    EXPECT_EQ(Order(), (std::vector<CImgNode*>{pNode, pShadow, pBack}));
    EXPECT_EQ(BoundsOf(pShadow), CRect(107, 75, 147, 105));
    EXPECT_EQ(pShadow->m_pOwner, pNode);
    EXPECT_EQ(pShadow->m_nType, node_type::Shadow);
    EXPECT_EQ(pShadow->IsShadowNode(), 1);
    EXPECT_EQ(pShadow->m_nTransparency, 30);
    EXPECT_EQ(pShadow->m_tx.nOrgWidth, 40);
    EXPECT_EQ(pShadow->m_tx.nOrgHeight, 30);
}

TEST_F(Shadow, KeepsItsFiveParametersInTheObject) {
    CImgNode* pNode = Picture(100, 80, 40, 30);

    CToolDesk::Shadow(pNode, 7, -5, 4, 30);
    Tool().m_fnRemoveShadowOf(pNode);

    EXPECT_EQ(pNode->m_pShadowNode, nullptr);
    EXPECT_EQ(pNode->m_shadow.dOffsetX, 7.0);
    EXPECT_EQ(pNode->m_shadow.dOffsetY, -5.0);
    EXPECT_EQ(pNode->m_shadow.dSoftness, 4.0);
    EXPECT_EQ(pNode->m_shadow.nTransparency, 30);
    EXPECT_EQ(pNode->m_shadow.crColor, RGB(0x20, 0x40, 0x60));
}

TEST_F(Shadow, OfAnObjectWithoutAMaskIsItsWholeRectangleInOneColour) {
    CImgNode* pNode = Picture(100, 80, 40, 30);

    CToolDesk::Shadow(pNode, 3, 3, 0);

    const buffer_host::View mask = Look(pNode->m_pShadowNode->m_tx.hMask);
    const buffer_host::View image = Look(pNode->m_pShadowNode->m_hImage);
    ASSERT_EQ(mask.width, 40);
    ASSERT_EQ(mask.height, 30);
    EXPECT_EQ(mask.Row(0)[0], 255);
    EXPECT_EQ(mask.Row(29)[39], 255);
    ASSERT_EQ(image.width, 40);
    ASSERT_EQ(image.height, 30);
    ASSERT_EQ(image.unit, 3) << "the depth of the object's image";
    EXPECT_EQ(image.Row(29)[39 * 3], 0x60) << "blue first";
    EXPECT_EQ(image.Row(29)[39 * 3 + 1], 0x40);
    EXPECT_EQ(image.Row(29)[39 * 3 + 2], 0x20);
}

TEST_F(Shadow, IsCutFromTheObjectsOwnMaskAndLeavesItAlone) {
    CImgNode* pNode = Picture(100, 80, 40, 30, true);
    const HBUF32 hOwn = pNode->m_tx.hMask;
    ASSERT_NE(hOwn, 0);

    CToolDesk::Shadow(pNode, 3, 3, 0);

    EXPECT_EQ(pNode->m_tx.hMask, hOwn);
    const buffer_host::View soft = Look(pNode->m_pShadowNode->m_tx.hMask);
    const buffer_host::View own = Look(hOwn);
    ASSERT_NE(own.pixels, nullptr);
    EXPECT_NE(pNode->m_pShadowNode->m_tx.hMask, hOwn);
    EXPECT_TRUE(std::equal(own.pixels, own.pixels + 40 * 30, soft.pixels));
}

TEST_F(Shadow, OfAFramedObjectHasBothOutlinesAndTheirOuterCorner) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Frame(*pNode, CRect(90, 85, 120, 125));

    CToolDesk::Shadow(pNode, 2, 3, 0);

    CImgNode* pShadow = pNode->m_pShadowNode;
    EXPECT_EQ(BoundsOf(pShadow), CRect(92, 83, 142, 128)) << "the box [90,80,140,125] moved";
    const buffer_host::View mask = Look(pShadow->m_tx.hMask);
    ASSERT_EQ(mask.width, 50);
    ASSERT_EQ(mask.height, 45);
    EXPECT_EQ(mask.Row(0)[0], 0) << "neither is there";
    EXPECT_EQ(mask.Row(0)[49], 255) << "the object's corner";
    EXPECT_EQ(mask.Row(44)[0], 255) << "the frame's corner";
    EXPECT_EQ(mask.Row(44)[49], 0);
}

TEST_F(Shadow, InsideItsFrameStartsAtTheObjectWhenThatReachesFarther) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Frame(*pNode, CRect(105, 85, 120, 100));

    CToolDesk::Shadow(pNode, 1, 1, 0);

    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode), CRect(101, 81, 141, 111));
}

TEST_F(Shadow, AtMaskScaleFiftyIsBuiltFromAMaskOfHalfTheSize) {
    CImgNode* pNode = Picture(100, 80, 41, 30);
    pNode->m_tx.nMaskScale = 50;

    CToolDesk::Shadow(pNode, 6, 6, 0);

    CImgNode* pShadow = pNode->m_pShadowNode;
    const buffer_host::View mask = Look(pShadow->m_tx.hMask);
    EXPECT_EQ(mask.width, 20) << "20.5, cut";
    EXPECT_EQ(mask.height, 15);
    EXPECT_EQ(pShadow->m_tx.nOrgWidth, 20);
    EXPECT_EQ(pShadow->m_tx.nOrgHeight, 15);
    EXPECT_EQ(BoundsOf(pShadow).TopLeft(), CPoint(106, 86));
}

TEST_F(Shadow, MadeAgainTakesTheFormerOnesPlace) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    CToolDesk::Shadow(pNode, 7, -5, 4);
    const std::uint32_t nOld = pNode->m_pShadowNode->m_nId;

    CToolDesk::Shadow(pNode, 1, 2, 0);

    EXPECT_NE(pNode->m_pShadowNode->m_nId, nOld);
    EXPECT_EQ(Order(), (std::vector<CImgNode*>{pNode, pNode->m_pShadowNode}));
    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode).TopLeft(), CPoint(101, 82));
}

TEST_F(Shadow, IsNotMadeForNobodyNorWithSoftnessMinusOne) {
    EXPECT_EQ(CToolDesk::Shadow(nullptr, 1, 1, 1), 1);

    CImgNode* pNode = Picture(100, 80, 40, 30);
    CToolDesk::Shadow(pNode, 7, -5, 4);
    const std::size_t nBuffers = buffer_host::BufferCount();

    EXPECT_EQ(CToolDesk::Shadow(pNode, 7, -5, -1), 0);

    EXPECT_EQ(pNode->m_pShadowNode, nullptr) << "the former one is gone";
    EXPECT_EQ(Order(), std::vector<CImgNode*>{pNode});
    EXPECT_EQ(buffer_host::BufferCount(), nBuffers - 2) << "its two buffers went with it";
    EXPECT_EQ(pNode->m_shadow.dSoftness, 4.0);
}

TEST_F(Shadow, ThatCannotBeFinishedLeavesNothingBehind) {
    struct FaultRow {
        const char* pszName;
        unsigned nAfter;
    };
    // Of plain pictures: the opaque mask, its copy that gets soft, the colour buffer.
    for (const FaultRow& row :
         {FaultRow{"buffer", 0}, {"buffer", 1}, {"buffer", 2}, {"soft-mask", 0}, {"node", 0}}) {
        for (const bool bScaled : {false, true}) {
            CImgNode* pNode = Picture(100, 80, 40, 30);
            pNode->m_tx.nMaskScale = bScaled ? 50 : 100;
            const std::size_t nBuffers = buffer_host::BufferCount();
            const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
            platform::ArmFault(row.pszName, true, row.nAfter);

            EXPECT_EQ(CToolDesk::Shadow(pNode, 7, 7, 3), 0) << row.pszName << " after " << row.nAfter;
            platform::ClearFaults();

            EXPECT_EQ(pNode->m_pShadowNode, nullptr);
            EXPECT_EQ(buffer_host::BufferCount(), nBuffers) << row.pszName << " after " << row.nAfter;
            EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes);
            delete pNode;
        }
    }
}

TEST_F(Shadow, OfAFramedOrMaskedObjectThatFailsLeavesNothingBehind) {
    for (unsigned nAfter = 0; nAfter < 2; ++nAfter) {
        CImgNode* pFramed = Picture(100, 80, 40, 30);
        Frame(*pFramed, CRect(90, 70, 150, 120));
        CImgNode* pMasked = Picture(10, 10, 40, 30, true);
        const std::size_t nBuffers = buffer_host::BufferCount();
        for (CImgNode* pNode : {pFramed, pMasked}) {
            platform::ArmFault("buffer", true, nAfter);
            EXPECT_EQ(CToolDesk::Shadow(pNode, 7, 7, 3), 0);
            platform::ClearFaults();
            EXPECT_EQ(buffer_host::BufferCount(), nBuffers) << "after " << nAfter;
        }
    }
}

TEST_F(Shadow, OfAnObjectTooLargeForABufferIsRefused) {
    CImgNode* pNode = Picture(0, 0, 10, 10);
    pNode->m_fnResize(CRect(0, 0, 40000, 10));
    const std::size_t nBuffers = buffer_host::BufferCount();

    EXPECT_EQ(CToolDesk::Shadow(pNode, 1, 1, 1), 0);

    EXPECT_EQ(buffer_host::BufferCount(), nBuffers);
}

TEST_F(Shadow, BeyondTheLastCoordinateStandsAtIt) {
    CImgNode* pNode = Picture(0, 0, 10, 10);
    pNode->m_fnResize(CRect(2000000000, -2000000000, 2000000010, -1999999990));

    EXPECT_EQ(CToolDesk::Shadow(pNode, 2000000000, -2000000000, 0), 1);

    EXPECT_EQ(pNode->m_pShadowNode->m_tx.nX, 2147483647);
    EXPECT_EQ(pNode->m_pShadowNode->m_tx.nY, -2147483647 - 1);
}

TEST_F(Shadow, RegeneratedFollowsItsObject) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    CToolDesk::Shadow(pNode, 7, -5, 0);
    pNode->m_fnResize(CRect(50, 60, 70, 90));
    pNode->m_shadow.dOffsetX = 2.9;
    pNode->m_shadow.dOffsetY = -2.9;

    EXPECT_EQ(Tool().m_fnRegenerateShadow(pNode), 1);

    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode), CRect(52, 58, 72, 88)) << "doubles are cut";
    EXPECT_EQ(Order(), (std::vector<CImgNode*>{pNode, pNode->m_pShadowNode}));
}

TEST_F(Shadow, RegeneratedOffThePageStaysOff) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    CToolDesk::Shadow(pNode, 7, -5, 0);
    CImgNode* pOld = pNode->m_pShadowNode;
    const std::uint32_t nOld = pOld->m_nId;
    Objects().RemoveAt(Objects().Find(pOld));
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();

    EXPECT_EQ(Tool().m_fnRegenerateShadow(pNode), 1);

    ASSERT_NE(pNode->m_pShadowNode, nullptr);
    EXPECT_NE(pNode->m_pShadowNode->m_nId, nOld);
    EXPECT_EQ(pNode->m_pShadowNode->m_pOwner, pNode);
    EXPECT_EQ(Order(), std::vector<CImgNode*>{pNode});
    EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes) << "the old one is freed";
}

TEST_F(Shadow, RegeneratingNoneChangesNothing) {
    CImgNode* pNode = Picture(100, 80, 40, 30);

    EXPECT_EQ(Tool().m_fnRegenerateShadow(pNode), 1);
    EXPECT_EQ(Tool().m_fnRegenerateShadow(nullptr), 1);
    EXPECT_EQ(Tool().m_fnRemoveShadowOf(pNode), 1);
    EXPECT_EQ(Tool().m_fnRemoveShadowOf(nullptr), 1);

    EXPECT_EQ(Order(), std::vector<CImgNode*>{pNode});
}

TEST_F(Shadow, MovesResizesAndRefusesWithItsObject) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    CImgNode* pFrame = Frame(*pNode, CRect(90, 70, 150, 120));
    CToolDesk::Shadow(pNode, 5, 5, 0);

    EXPECT_EQ(Tool().m_fnOffsetObject(pNode, CSize(3, -4)), 1);
    EXPECT_EQ(BoundsOf(pNode), CRect(103, 76, 143, 106));
    EXPECT_EQ(BoundsOf(pFrame), CRect(93, 66, 153, 116));
    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode), CRect(98, 71, 158, 121));

    for (CImgNode* pCompanion : {pFrame, pNode->m_pShadowNode}) {
        const CRect rcBefore = BoundsOf(pCompanion);
        EXPECT_EQ(Tool().m_fnOffsetObject(pCompanion, CSize(9, 9)), 0);
        EXPECT_EQ(Tool().m_fnResizeObject(pCompanion, CRect(0, 0, 20, 20)), 0);
        EXPECT_EQ(BoundsOf(pCompanion), rcBefore);
    }
    EXPECT_EQ(Tool().m_fnOffsetObject(nullptr, CSize(9, 9)), 1);
    EXPECT_EQ(Tool().m_fnResizeObject(nullptr, CRect(0, 0, 20, 20)), 1);
}

TEST_F(Shadow, DuplicatedObjectBringsCopiesOfItsCompanions) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Frame(*pNode, CRect(90, 70, 150, 120));
    CToolDesk::Shadow(pNode, 5, 5, 0);
    CImgNode* pExcluded = Picture(0, 0, 9, 9);
    Desk().SetExcludedNode(pExcluded);

    CImgNode* pCopy = Tool().m_fnDuplicateObject(pNode, 1);

    ASSERT_NE(pCopy, nullptr);
    EXPECT_EQ(Order(), (std::vector<CImgNode*>{pExcluded, pCopy->m_pFrameNode, pCopy, pCopy->m_pShadowNode,
                                               pNode->m_pFrameNode, pNode, pNode->m_pShadowNode}));
    EXPECT_EQ(pCopy->m_pFrameNode->m_pOwner, pCopy);
    EXPECT_EQ(pCopy->m_pShadowNode->m_pOwner, pCopy);
    EXPECT_EQ(BoundsOf(pCopy), BoundsOf(pNode));

    CImgNode* pLoose = Tool().m_fnDuplicateObject(pNode, 0);
    EXPECT_EQ(Objects().Find(pLoose), nullptr);
    EXPECT_EQ(Tool().m_fnDuplicateObject(nullptr, 1), nullptr);
}

TEST_F(Shadow, CopyThatCannotBeFinishedLeavesNothingBehind) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Frame(*pNode, CRect(90, 70, 150, 120));
    CToolDesk::Shadow(pNode, 5, 5, 0);
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    const std::size_t nBuffers = buffer_host::BufferCount();

    for (unsigned nAfter = 0; nAfter < 3; ++nAfter) {
        platform::ArmFault("copy", true, nAfter);
        EXPECT_EQ(Tool().m_fnDuplicateObject(pNode, 1), nullptr) << "after " << nAfter;
        platform::ClearFaults();
        EXPECT_EQ(CNodeBookkeeping::LiveNodes(), nNodes);
        EXPECT_EQ(buffer_host::BufferCount(), nBuffers);
        EXPECT_EQ(Order().size(), 3U);
    }
}

TEST_F(Shadow, UndoTakesAMadeOneOffAndRedoPutsItBack) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Selection().AddTail(pNode);
    CShadowChangedUndoEvent event;
    event.m_fnSaveState(&Tool());
    CToolDesk::Shadow(pNode, 7, -5, 2, 40);

    for (int n = 0; n < 10; ++n) {
        EXPECT_EQ(event.Undo(), TRUE);
        EXPECT_EQ(Order(), std::vector<CImgNode*>{pNode});
        EXPECT_EQ(event.Redo(), TRUE);
        ASSERT_NE(pNode->m_pShadowNode, nullptr);
        EXPECT_EQ(BoundsOf(pNode->m_pShadowNode), CRect(107, 75, 147, 105));
        EXPECT_EQ(pNode->m_pShadowNode->m_nTransparency, 40);
    }
}

TEST_F(Shadow, UndoOfChangedSettingsBuildsTheFormerOneAgain) {
    CImgNode* pNode = Picture(100, 80, 40, 30);
    Selection().AddTail(pNode);
    CToolDesk::Shadow(pNode, 7, -5, 2, 40);
    CShadowChangedUndoEvent event;
    event.m_fnSaveState(&Tool());
    CToolDesk::Shadow(pNode, 1, 1, 0, 10);

    event.Undo();
    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode).TopLeft(), CPoint(107, 75));
    EXPECT_EQ(pNode->m_shadow.dSoftness, 2.0);
    event.Redo();
    EXPECT_EQ(BoundsOf(pNode->m_pShadowNode).TopLeft(), CPoint(101, 81));
    EXPECT_EQ(pNode->m_pShadowNode->m_nTransparency, 10);
}

} // namespace
