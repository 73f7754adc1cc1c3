#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include "host/text_node.h"
#include "refhost_help.h"

using namespace refhost_help;

namespace {

class Node : public ::testing::Test {
  protected:
    CVorDoc doc{100, 100};
};

CRect BoundsOf(CImgNode& node) {
    CRect rect;
    node.GetBoundRect(&rect);
    return rect;
}

} // namespace

TEST_F(Node, BoundsAreThePositionAndSizeAndTheOffsetWhenFlagged) {
    CImgNode* pNode = AddBox(doc, CRect(10, 20, 40, 60));
    CTxParam tx = pNode->GetLastTrans();
    tx.nOffsetX = 5;
    tx.nOffsetY = -5;
    pNode->SetLastTrans(tx);
    EXPECT_EQ(CRect(10, 20, 40, 60), BoundsOf(*pNode));

    tx.nOffsetFlag = 1;
    pNode->SetLastTrans(tx);
    EXPECT_EQ(CRect(15, 15, 45, 55), BoundsOf(*pNode));

    pNode->m_fnResize(CRect(20, 30, 25, 36));
    EXPECT_EQ(15, pNode->m_tx.nX);
    EXPECT_EQ(CRect(20, 30, 25, 36), BoundsOf(*pNode));
}

TEST_F(Node, BoundsWithCompanionsAreUnionsAndAMoveIsOfTheNodeAlone) {
    CImgNode* pNode = AddBox(doc, CRect(10, 10, 20, 20));
    pNode->m_pFrameNode = AddBox(doc, CRect(5, 8, 22, 21));
    pNode->m_pShadowNode = AddBox(doc, CRect(15, 15, 40, 30));
    CRect rcAll;

    pNode->Move(-6, 1);
    pNode->GetBoundRectEx(&rcAll);

    EXPECT_EQ(CRect(4, 8, 40, 30), rcAll);
    EXPECT_EQ(CRect(4, 8, 22, 21), pNode->m_fnGetBoundRectWithFrame());
}

TEST_F(Node, OnlyCompanionsWithAnOwnerAreShadowOrFrameNodes) {
    CImgNode* pNode = AddBox(doc, CRect(0, 0, 1, 1));
    CImgNode* pCompanion = AddBox(doc, CRect(0, 0, 1, 1));
    pCompanion->m_nType = node_type::Shadow;
    EXPECT_EQ(0, pCompanion->IsShadowNode());

    pCompanion->m_pOwner = pNode;
    EXPECT_EQ(1, pCompanion->IsShadowNode());
    EXPECT_EQ(0, pCompanion->IsFrameNode());
    pCompanion->m_nType = node_type::Frame;
    EXPECT_EQ(1, pCompanion->IsFrameNode());
    EXPECT_EQ(0, pNode->IsFrameNode());
}

TEST_F(Node, WithoutAMaskTheWholeBoxHitsAndOfATextAlways) {
    CImgNode* pNode = AddBox(doc, CRect(10, 10, 20, 20));
    CRect touching(20, 10, 30, 20);
    CRect meeting(19, 19, 30, 30);
    CTextNode* pText = new CTextNode(&doc);
    pText->SetImage(Solid(0, 2, 1), Mask(2, 1, {0, 255}), 3, 3, 0);

    EXPECT_EQ(1, pNode->PtInMask(CPoint(10, 10)));
    EXPECT_EQ(1, pNode->PtInMask(CPoint(19, 19)));
    EXPECT_EQ(0, pNode->PtInMask(CPoint(20, 19)));
    EXPECT_EQ(0, pNode->NodeInRect(touching));
    EXPECT_EQ(1, pNode->NodeInRect(meeting));
    EXPECT_EQ(1, pText->PtInMask(CPoint(3, 3)));
    EXPECT_EQ(0, pText->PtInMask(CPoint(5, 3)));
}

TEST_F(Node, AMaskOfAnotherSizeIsStretchedOverTheBox) {
    CImgNode* pNode = AddPicture(doc, Solid(0xFFFFFF, 2, 2), Mask(2, 2, {0, 1, 255, 0}), 0, 0);
    pNode->m_fnResize(CRect(10, 10, 20, 20));

    EXPECT_EQ(0, pNode->PtInMask(CPoint(14, 14)));
    EXPECT_EQ(1, pNode->PtInMask(CPoint(15, 14)));
    EXPECT_EQ(1, pNode->PtInMask(CPoint(14, 15)));
    EXPECT_EQ(0, pNode->PtInMask(CPoint(15, 15)));
    pNode->m_fnResize(CRect(5, 5, 5, 9));
    EXPECT_EQ(0, pNode->PtInMask(CPoint(5, 5)));
}

TEST_F(Node, SetImageTakesTheBuffersAndFreesTheFormerOnes) {
    const std::size_t nBefore = buffer_host::BufferCount();
    CImgNode* pNode = AddPicture(doc, Solid(0, 4, 3), Mask(4, 3, {}), 1, 2);

    ASSERT_EQ(1, pNode->SetImage(Solid(0, 6, 5), 0, 7, 8, 0));

    EXPECT_EQ(nBefore + 1, buffer_host::BufferCount());
    EXPECT_EQ(CRect(7, 8, 13, 13), BoundsOf(*pNode));
    EXPECT_EQ(0, pNode->m_tx.hMask);
}

TEST_F(Node, ARefusedChangeChangesNothing) {
    CImgNode* pNode = AddPicture(doc, Solid(0, 4, 3), 0, 1, 2);
    const HBUF32 hImage = pNode->m_hImage;
    const CBufferPtr mask(Mask(4, 3, {}));
    const CFaultScope fault("display-values");

    EXPECT_EQ(0, pNode->SetImage(0, 0, 9, 9, 0));
    EXPECT_EQ(0, pNode->SetImage(mask.Get(), 0, 9, 9, 0));
    EXPECT_EQ(0, pNode->SetImage(hImage, hImage, 9, 9, 0));
    EXPECT_EQ(0, pNode->m_fnUpdateBCAndT(1, 2, 3));

    EXPECT_EQ(hImage, pNode->m_hImage);
    EXPECT_EQ(CRect(1, 2, 5, 5), BoundsOf(*pNode));
    EXPECT_EQ(0, pNode->m_nBrightness);
}

TEST_F(Node, ACopyKeepsPlaceAndValuesButNoLinksAndStandsInNoList) {
    CImgNode* pNode = AddPicture(doc, Image(1, 1, {0x112233}), Mask(1, 1, {7}), 3, 4);
    pNode->m_pShadowNode = AddBox(doc, CRect(0, 0, 1, 1));
    pNode->m_shadow.dSoftness = 2.5;
    pNode->m_fnUpdateBCAndT(500, -500, 101);

    CImgNode* pCopy = pNode->Duplicate();

    ASSERT_NE(nullptr, pCopy);
    EXPECT_EQ(CRect(3, 4, 4, 5), BoundsOf(*pCopy));
    EXPECT_EQ(2.5, pCopy->m_shadow.dSoftness);
    EXPECT_EQ(500, pCopy->m_nBrightness);
    EXPECT_EQ(-500, pCopy->m_nContrast);
    EXPECT_EQ(101, pCopy->m_nTransparency);
    EXPECT_EQ(nullptr, pCopy->m_pShadowNode);
    EXPECT_EQ(0x33, buffer_host::Look(pCopy->m_hImage).pixels[0]);
    EXPECT_EQ(7, buffer_host::Look(pCopy->m_tx.hMask).pixels[0]);
    EXPECT_EQ(nullptr, doc.GetObjList()->Find(pCopy));
    EXPECT_EQ(pNode->m_nId, CNodeBookkeeping::CopyOf(*pCopy));
    EXPECT_NE(pNode->m_nId, pCopy->m_nId);
}

TEST_F(Node, AScaledCopyTruncatesPlaceAndSize) {
    CImgNode* pNode = AddBox(doc, CRect(-3, 7, 8, 16));

    EXPECT_EQ(CRect(-1, 3, 4, 7), BoundsOf(*pNode->m_fnDuplicateImageNode(0.5)));
}

TEST_F(Node, ACopyThatFailsLeavesNothingBehind) {
    CImgNode* pNode = AddPicture(doc, Solid(0, 2, 2), Mask(2, 2, {}), 0, 0);
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    const std::size_t nBuffers = buffer_host::BufferCount();

    for (const char* pszFault : {"copy", "node", "buffer"}) {
        const CFaultScope fault(pszFault);
        EXPECT_EQ(nullptr, pNode->Duplicate()) << pszFault;
        EXPECT_EQ(nullptr, pNode->m_fnDuplicateImageNode(2.0)) << pszFault;
    }
    {
        const CFaultScope secondBuffer("buffer", true, 1);
        EXPECT_EQ(nullptr, pNode->Duplicate());
    }
    EXPECT_EQ(nNodes, CNodeBookkeeping::LiveNodes());
    EXPECT_EQ(nBuffers, buffer_host::BufferCount());
}

TEST_F(Node, ACopyOfATextIsAText) {
    CTextNode* pText = new CTextNode(&doc);
    pText->m_strText = "one\r\ntwo\rthree\nfour";
    pText->m_strFontName = "Arial";
    pText->m_nFontSize = 16;

    CTextNode* pCopy = static_cast<CTextNode*>(pText->m_fnDuplicateImageNode());

    CString strText;
    pCopy->m_fnGetText(strText);
    const std::unique_ptr<char[]> pszFont(pCopy->CloneFontName());
    EXPECT_EQ(node_type::Text, pCopy->m_nType);
    EXPECT_STREQ("one\ntwo\nthree\nfour", strText);
    EXPECT_STREQ("Arial", pszFont.get());
    EXPECT_EQ(16, pCopy->m_nFontSize);
}

TEST(Document, FreesItsNodesOnAndOffThePageAndItsImages) {
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    const std::size_t nBuffers = buffer_host::BufferCount();
    {
        CVorDoc doc(10, 10);
        AddPicture(doc, Solid(0, 2, 2), Mask(2, 2, {}), 0, 0);
        new CImgNode(&doc);
        doc.SetBaseImage(Solid(0, 1, 1));
        doc.m_fnSetSrcBaseImage(Solid(0, 1, 1));
        doc.m_fnSetSrcBaseImage(Solid(0, 1, 1));
        EXPECT_EQ(nNodes + 2, CNodeBookkeeping::LiveNodes());
        EXPECT_EQ(1u, CNodeBookkeeping::OffPage(doc));
        EXPECT_EQ(nBuffers + 4, buffer_host::BufferCount());
    }
    EXPECT_EQ(nNodes, CNodeBookkeeping::LiveNodes());
    EXPECT_EQ(nBuffers, buffer_host::BufferCount());
}

TEST(Document, PutsCompanionsBesideTheirObject) {
    CVorDoc doc(10, 10);
    CImgNode* pBack = AddBox(doc, CRect(0, 0, 1, 1));
    CImgNode* pFront = AddBox(doc, CRect(0, 0, 1, 1));
    CImgNode* pFrame = new CImgNode(&doc);
    CImgNode* pShadow = new CImgNode(&doc);
    CImgNode* pStray = new CImgNode(&doc);
    CImgNode* pOffPage = new CImgNode(&doc);

    EXPECT_EQ(1, doc.InsertNodeFor(pBack, pFrame, 0));
    EXPECT_EQ(1, doc.InsertNodeFor(pFront, pShadow, 1));
    EXPECT_EQ(1, doc.InsertNodeFor(pOffPage, pStray, 1));
    EXPECT_EQ(0, doc.InsertNodeFor(pBack, nullptr, 1));

    EXPECT_EQ((std::vector<CImgNode*>{pStray, pFront, pShadow, pFrame, pBack}), NodesOf(*doc.GetObjList()));
}
