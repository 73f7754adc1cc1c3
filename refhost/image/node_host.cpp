#include "image/node_host.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

#include "buffer/buffer_host.h"
#include "host/frame_param.h"
#include "image/shown_picture.h"
#include "image/spatial_index.h"

namespace {

/// A table that nodes freed at the very end of the process still find.
std::unordered_set<const CImgNode*>& LiveNodeTable() {
    static auto* pTable = new std::unordered_set<const CImgNode*>;
    return *pTable;
}

LONG Saturated(std::int64_t nValue) {
    return static_cast<LONG>(
        std::clamp<std::int64_t>(nValue, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}

/// Copies a buffer unless there is none; false when it cannot be.
bool CopyBuffer(HBUF32 hFrom, HBUF32& hTo) {
    hTo = hFrom != 0 ? buf32DupBuf(hFrom) : 0;
    return hFrom == 0 || hTo != 0;
}

bool CopyParam(const CFrameParam* pFrom, CFrameParam*& pTo) {
    pTo = pFrom ? new CFrameParam(*pFrom) : nullptr;
    return !pFrom || pTo;
}

CImgNode* OwnCompanion(const CImgNode& node, CImgNode* pCompanion) {
    return CNodeBookkeeping::IsLive(pCompanion) && pCompanion->m_pOwner == &node ? pCompanion : nullptr;
}

} // namespace

std::size_t CNodeBookkeeping::LiveNodes() { return LiveNodeTable().size(); }

std::size_t CNodeBookkeeping::OffPage(const CImgDoc& doc) {
    return static_cast<std::size_t>(std::count_if(doc.m_nodeSet.begin(), doc.m_nodeSet.end(),
                                                  [](const CImgNode* pNode) { return !IsOnPage(*pNode); }));
}

std::vector<CImgNode*> CNodeBookkeeping::NodesById(const CImgDoc& doc) {
    std::vector<CImgNode*> nodes = doc.m_nodeSet;
    std::sort(nodes.begin(), nodes.end(),
              [](const CImgNode* a, const CImgNode* b) { return a->m_nId < b->m_nId; });
    return nodes;
}

CImgNode* CNodeBookkeeping::NodeById(const CImgDoc& doc, std::uint32_t nId) {
    const auto node = std::find_if(doc.m_nodeSet.begin(), doc.m_nodeSet.end(),
                                   [nId](const CImgNode* pNode) { return pNode->m_nId == nId; });
    return node != doc.m_nodeSet.end() ? *node : nullptr;
}

std::uint32_t CNodeBookkeeping::CopyOf(const CImgNode& node) { return node.m_nCopyOf; }

bool CNodeBookkeeping::IsOnPage(const CImgNode& node) { return node.m_posInObjList != nullptr; }

CImgNode* CNodeBookkeeping::LiveOwner(const CImgNode& node) {
    return IsLive(node.m_pOwner) ? node.m_pOwner : nullptr;
}

CImgNode* CNodeBookkeeping::LiveFrame(const CImgNode& node) { return OwnCompanion(node, node.m_pFrameNode); }

CImgNode* CNodeBookkeeping::LiveShadow(const CImgNode& node) {
    return OwnCompanion(node, node.m_pShadowNode);
}

void CNodeBookkeeping::NodesInRect(const CImgDoc& doc, const CRect& rect, std::vector<CImgNode*>& nodes) {
    doc.m_pIndex->Query({rect.left, rect.top, rect.right, rect.bottom}, nodes);
}

void CNodeBookkeeping::NodesAtPoint(const CImgDoc& doc, const CPoint& point, std::vector<CImgNode*>& nodes) {
    doc.m_pIndex->Query({point.x, point.y, std::int64_t{point.x} + 1, std::int64_t{point.y} + 1}, nodes);
}

CRect CNodeBookkeeping::NodeRect(const CImgNode& node) {
    const CTxParam& tx = node.m_tx;
    const bool bOffset = tx.nOffsetFlag == 1;
    const std::int64_t nLeft = std::int64_t{tx.nX} + (bOffset ? tx.nOffsetX : 0);
    const std::int64_t nTop = std::int64_t{tx.nY} + (bOffset ? tx.nOffsetY : 0);
    return CRect(Saturated(nLeft), Saturated(nTop), Saturated(nLeft + tx.nWidth),
                 Saturated(nTop + tx.nHeight));
}

void CNodeBookkeeping::PlaceChanged(CImgNode& node) {
    if (node.m_bIndexed) {
        node.m_pDoc->m_pIndex->Update(node, NodeRect(node));
    }
}

CChangedArea& CNodeBookkeeping::Changed(const CImgDoc& doc) { return doc.m_pIndex->Changed(); }

void CNodeBookkeeping::Register(CImgNode& node, CImgDoc* pDoc) {
    if (!pDoc) {
        return;
    }
    node.m_pDoc = pDoc;
    node.m_nNodeSetIndex = static_cast<std::uint32_t>(pDoc->m_nodeSet.size());
    pDoc->m_nodeSet.push_back(&node);
}

void CNodeBookkeeping::Unregister(CImgNode& node) {
    CImgDoc* pDoc = node.m_pDoc;
    if (!pDoc) {
        return;
    }
    pDoc->m_actList.DropNode(node);
    pDoc->m_objList.DropNode(node);
    CImgNode* pLast = pDoc->m_nodeSet.back();
    pDoc->m_nodeSet[node.m_nNodeSetIndex] = pLast;
    pLast->m_nNodeSetIndex = node.m_nNodeSetIndex;
    pDoc->m_nodeSet.pop_back();
    node.m_pDoc = nullptr;
}

void CNodeBookkeeping::Enter(const CImgNode& node) { LiveNodeTable().insert(&node); }

void CNodeBookkeeping::Leave(const CImgNode& node) { LiveNodeTable().erase(&node); }

bool CNodeBookkeeping::IsLive(const CImgNode* pNode) { return LiveNodeTable().contains(pNode); }

void CNodeBookkeeping::CopyValues(const CImgNode& from, CImgNode& to) {
    to.m_nBrightness = from.m_nBrightness;
    to.m_nContrast = from.m_nContrast;
    to.m_nTransparency = from.m_nTransparency;
    to.m_shadow = from.m_shadow;
    to.m_rcFrame = from.m_rcFrame;
    to.m_rcPlaceHolder = from.m_rcPlaceHolder;
    to.m_nPlaceHolderMode = from.m_nPlaceHolderMode;
    to.m_nFrameFollows = from.m_nFrameFollows;
    to.m_nKeepProportions = from.m_nKeepProportions;
    to.m_nPictureWidth = from.m_nPictureWidth;
    to.m_nPictureHeight = from.m_nPictureHeight;
    to.m_scaledBuffers = from.m_scaledBuffers; // It says nothing until the buffers are the same ones.
}

bool CNodeBookkeeping::CopyFields(const CImgNode& from, CImgNode& to) {
    to.m_nType = from.m_nType;
    to.m_tx = from.m_tx;
    to.m_tx.hMask = 0;
    CopyValues(from, to);
    to.m_nCopyOf = from.m_nId;
    const bool bCopied =
        CopyBuffer(from.m_hImage, to.m_hImage) && CopyBuffer(from.m_tx.hMask, to.m_tx.hMask) &&
        CopyBuffer(from.m_hTransSrcImage, to.m_hTransSrcImage) &&
        CopyBuffer(from.m_hTransSrcMask, to.m_hTransSrcMask) && CopyBuffer(from.m_hMergeBuf, to.m_hMergeBuf);
    CShownPicture::CopyMark(from, to);
    return bCopied && CopyParam(from.m_pFrameParam, to.m_pFrameParam);
}
