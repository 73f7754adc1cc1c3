#include <gtest/gtest.h>

#include <climits>

#include "host/frame_param.h"
#include "host/text_node.h"
#include "refhost_help.h"

using namespace refhost_help;

namespace {

class FrameNode : public ::testing::Test {
  protected:
    /// A frame without an image of its own: red on the left, nothing on the right.
    CImgNode* AddFrame() {
        CImgNode* pFrame = AddBox(doc, CRect(10, 10, 14, 12));
        pFrame->SetTransSrcImg(Image(2, 1, {0xFF0000, 0x0000FF}));
        pFrame->SetTransSrcMask(Mask(2, 1, {255, 0}));
        pFrame->m_pFrameParam = new CFrameParam;
        RECT rect{1, 2, 3, 4};
        EXPECT_EQ(1, pFrame->m_pFrameParam->SetSource(nullptr, nullptr, &rect, 1));
        return pFrame;
    }
    std::uint32_t Pixel(int x, int y) {
        Canvas canvas(100, 100);
        CPageComposer().Compose(&doc, {1.0, {0, 0}}, canvas.Target(), canvas.All());
        return canvas.At(x, y);
    }

    CVorDoc doc{100, 100};
};

CRect FitOf(const CImgNode* pNode) {
    CRect rect;
    pNode->m_pFrameParam->GetSourceFitRect(&rect);
    return rect;
}

} // namespace

TEST_F(FrameNode, ThePlaceholderLiesWhereTheFrameHasIt) {
    struct Row {
        CRect rcOnPage, rcFrame, rcPlaceHolder, expected;
    };
    const CRect rcObject(1, 2, 3, 4);
    CImgNode* pObject = AddBox(doc, rcObject);
    EXPECT_EQ(rcObject, pObject->m_fnGetPlaceHolderRect());
    pObject->m_pFrameNode = AddFrame();
    for (const Row& row : std::initializer_list<Row>{
             {{200, 100, 400, 260}, {0, 0, 100, 80}, {10, 20, 70, 60}, {220, 140, 340, 220}},
             {{0, 0, 10, 10}, {0, 0, 3, 3}, {1, 1, 3, 3}, {3, 3, 9, 9}},
             {{0, 0, 5, 5}, {10, 10, 20, 20}, {7, 9, 14, 13}, {-1, 0, 2, 2}},
             {{0, 0, 20, 20}, {0, 0, 10, 10}, {30, 30, 10, 10}, {60, 60, 20, 20}},
             {{0, 0, 2000000000, 9}, {0, 0, 1, 9}, {2, 2, 3, 3}, {INT_MAX, 2, INT_MAX, 3}},
             {{0, 0, 20, 20}, {5, 5, 5, 9}, {1, 1, 2, 2}, rcObject},
             {{0, 0, 20, 20}, {5, 9, 9, 5}, {1, 1, 2, 2}, rcObject}}) {
        pObject->m_pFrameNode->m_fnResize(row.rcOnPage);
        pObject->m_rcFrame = row.rcFrame;
        pObject->m_rcPlaceHolder = row.rcPlaceHolder;
        const CRect rcFound = pObject->m_fnGetPlaceHolderRect();
        EXPECT_EQ(row.expected, rcFound)
            << rcFound.left << ' ' << rcFound.top << ' ' << rcFound.right << ' ' << rcFound.bottom;
    }
}

TEST_F(FrameNode, ASourceIsShownAtTheNodesSizeWithItsMask) {
    CImgNode* pFrame = AddFrame();
    const std::size_t nBuffers = buffer_host::BufferCount();
    EXPECT_EQ(0xFF0000u, Pixel(10, 11));
    EXPECT_EQ(CPageComposer::Backdrop, Pixel(13, 11));
    EXPECT_EQ(1, pFrame->PtInMask(CPoint(10, 11)));
    EXPECT_EQ(0, pFrame->PtInMask(CPoint(13, 11)));
    const CBufferPtr whole(pFrame->CreateMaskBufByCombine());
    EXPECT_EQ(255, buffer_host::Look(whole.Get()).Row(1)[0]);
    EXPECT_EQ(0, buffer_host::Look(whole.Get()).Row(1)[3]);
    EXPECT_EQ(nBuffers + 1, buffer_host::BufferCount()) << "showing is the host's affair";

    pFrame->m_fnResize(CRect(50, 50, 90, 51));
    EXPECT_EQ(0, pFrame->PtInMask(CPoint(89, 50)));
    EXPECT_EQ(0xFF0000u, Pixel(50, 50));
    pFrame->SetTransSrcMask(Mask(3, 3, {255, 255, 255, 255, 255, 255, 255, 255, 255}));
    EXPECT_EQ(1, pFrame->PtInMask(CPoint(89, 50)));
    pFrame->SetTransSrcImg(Solid(0x00FF00, 1, 1));
    EXPECT_EQ(0x00FF00u, Pixel(50, 50));
}

TEST_F(FrameNode, AScaledPictureIsNotScaledOnceMoreForShowing) {
    CImgNode* pNode = AddPicture(doc, Solid(0xFF0000, 2, 2), 0, 0, 0);
    pNode->m_fnResize(CRect(0, 0, 4, 4));
    pNode->m_fnAdjustImageNodeBuf(0, 0);
    CImgNode* pCopy = pNode->Duplicate();
    doc.GetObjList()->AddHead(pCopy);
    const std::size_t nTaken = platform::PixelBytesTaken();
    EXPECT_EQ(0xFF0000u, Pixel(1, 1));
    EXPECT_EQ(nTaken, platform::PixelBytesTaken());
    pNode->SetTransSrcImg(Solid(0x0000FF, 2, 2));
    doc.GetObjList()->RemoveHead();
    EXPECT_EQ(0x0000FFu, Pixel(1, 1)) << "another source is shown though the image has the node's size";
}

TEST_F(FrameNode, TheParameterHasOneOwner) {
    CImgNode* pFrame = AddFrame();
    for (CImgNode* pCopy : {pFrame->Duplicate(), pFrame->m_fnDuplicateImageNode(0.5)}) {
        EXPECT_TRUE(pCopy->m_pFrameParam && pCopy->m_pFrameParam != pFrame->m_pFrameParam);
        EXPECT_EQ(CRect(1, 2, 3, 4), FitOf(pCopy));
    }
    CTextNode from(&doc);
    CTextNode to(&doc);
    from.m_pFrameParam = new CFrameParam;
    to.m_pFrameParam = new CFrameParam;
    const CFrameParam* const pMoved = from.m_pFrameParam;
    to.m_fnMoveMemberDataFrom(&from);
    EXPECT_TRUE(to.m_pFrameParam == pMoved && !from.m_pFrameParam);

    CFrameParam* const pParam = pFrame->m_pFrameParam;
    RECT rect{9, 9, 9, 9};
    const CFaultScope noParam("frame-param");
    EXPECT_EQ(nullptr, new CFrameParam);
    EXPECT_EQ(nullptr, pFrame->Duplicate());
    const CFaultScope noSource("frame-source");
    EXPECT_TRUE(!pParam->SetSource(nullptr, nullptr, &rect, 1) && FitOf(pFrame) == CRect(1, 2, 3, 4));
}
