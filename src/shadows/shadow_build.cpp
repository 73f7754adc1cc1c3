#include "shadows/shadow_build.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "host/mask.h"
#include "ops/axis.h"
#include "ops/buffer_owner.h"
#include "ops/canvas.h"
#include "ops/groups.h"
#include "ops/nodes.h"
#include "ops/refresh.h"
#include "ops/saturate.h"

namespace {

constexpr int MaskBits = 8;
constexpr int BitsPerByte = 8;
constexpr int FullMaskScale = 100; ///< percent
constexpr int NoSoftMask = -1;     ///< the softness that makes no mask
constexpr int ResizeMode = 2;      ///< of CBuf::Resize: smooth

/// A mask that is freed with it, unless it belongs to the object.
class CHardMask {
  public:
    explicit CHardMask(CImgNode& node) {
        if (node.m_pFrameNode) {
            m_hMask = node.CreateMaskBufByCombine();
            m_bOwned = true;
        } else if (node.m_tx.hMask) {
            m_hMask = node.m_tx.hMask;
        } else {
            m_hMask = OpaqueMask(node.m_tx.nWidth, node.m_tx.nHeight);
            m_bOwned = true;
        }
    }
    ~CHardMask() { Replace(0, false); }
    CHardMask(const CHardMask&) = delete;
    CHardMask& operator=(const CHardMask&) = delete;

    HBUF32 Get() const { return m_hMask; }

    /// Brings the mask to the object's size at its mask scale.
    void Scale(const CTxParam& tx) {
        if (tx.nMaskScale == FullMaskScale || !m_hMask) {
            return;
        }
        const auto scaled = [&tx](int nLength) {
            return Saturated(static_cast<long long>(nLength) * tx.nMaskScale / 100);
        };
        Replace(CBuf::Resize(m_hMask, scaled(tx.nWidth), scaled(tx.nHeight), ResizeMode, 1), true);
    }

  private:
    static HBUF32 OpaqueMask(int nWidth, int nHeight) {
        CBufferOwner mask(MaskBits, nWidth, nHeight);
        void* pPixels = mask ? buf32Lock(mask.Get(), BufReadWrite) : nullptr;
        if (!pPixels) {
            return 0;
        }
        std::memset(pPixels, 0xFF, static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight));
        buf32Unlock(mask.Get());
        return mask.Release();
    }

    void Replace(HBUF32 hMask, bool bOwned) {
        if (m_bOwned && m_hMask) {
            buf32Free(m_hMask);
        }
        m_hMask = hMask;
        m_bOwned = bOwned;
    }

    HBUF32 m_hMask = 0;
    bool m_bOwned = false;
};

// Also places the block at the shadow's position; 0 when no mask can be made.
HBUF32 SoftMaskOf(CImgNode& node, int nSoftness, CTxParam& block, CSize offset, CPoint& ptShadow) {
    CHardMask mask(node);
    if (!mask.Get()) {
        return 0;
    }
    mask.Scale(node.m_tx);
    return MakeSoftMask(mask.Get(), nSoftness, block, offset, ShadowBase(node), ptShadow);
}

// Where the node's bounds start when its position is at the point.
CPoint WithOwnOffset(const CImgNode& node, CPoint ptPosition) {
    return node.m_tx.nOffsetFlag == 1 ? Moved(ptPosition, CSize(node.m_tx.nOffsetX, node.m_tx.nOffsetY))
                                      : ptPosition;
}

CSize ShadowSizeOf(CImgNode& node) {
    return node.m_pFrameNode ? node.m_fnGetBoundRectWithFrame().Size()
                             : CSize(node.m_tx.nWidth, node.m_tx.nHeight);
}

// What is filled already is copied behind itself, twice as much each time.
void FillWith(COLORREF crColor, std::span<unsigned char> pixels, std::size_t nUnit) {
    const unsigned char channels[4] = {GetBValue(crColor), GetGValue(crColor), GetRValue(crColor), 0};
    std::memcpy(pixels.data(), channels, nUnit);
    for (std::size_t nFilled = nUnit; nFilled < pixels.size(); nFilled *= 2) {
        std::memcpy(pixels.data() + nFilled, pixels.data(), std::min(nFilled, pixels.size() - nFilled));
    }
}

// A buffer of the soft mask's size and of the object's pixel depth, filled with the colour; 0 on failure.
HBUF32 MakeColorBuffer(HBUF32 hSoftMask, HBUF32 hImage, COLORREF crColor) {
    int nWidth = 0;
    int nHeight = 0;
    int nUnit = 0;
    if (!buf32GetWHU(hSoftMask, &nWidth, &nHeight, nullptr) ||
        !buf32GetWHU(hImage, nullptr, nullptr, &nUnit)) {
        return 0;
    }
    CBufferOwner buffer(nUnit * BitsPerByte, nWidth, nHeight);
    auto* pPixel = buffer ? static_cast<unsigned char*>(buf32Lock(buffer.Get(), BufReadWrite)) : nullptr;
    if (!pPixel) {
        return 0;
    }
    FillWith(crColor,
             {pPixel, static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight) *
                          static_cast<std::size_t>(nUnit)},
             static_cast<std::size_t>(nUnit));
    buf32Unlock(buffer.Get());
    return buffer.Release();
}

// Takes the soft mask over. The new node stands directly behind the object, or off the page like it and comes
// with it; the two know each other. Null on failure.
CImgNode* MakeShadowNode(const CCanvas& canvas, CImgNode& object, const CTxParam& block, HBUF32 hSoft,
                         COLORREF crColor) {
    const HBUF32 hColor = MakeColorBuffer(hSoft, object.m_hImage, crColor);
    CImgNode* pShadow = hColor ? new CImgNode(&canvas.Document()) : nullptr;
    if (!pShadow) {
        buf32Free(hSoft);
        if (hColor) {
            buf32Free(hColor);
        }
        return nullptr;
    }
    pShadow->m_tx = block;
    pShadow->m_tx.hMask = 0;
    pShadow->SetImage(hColor, hSoft, block.nX, block.nY, 0);
    if (canvas.Objects().Find(&object)) {
        canvas.Document().InsertNodeFor(&object, pShadow, 1);
    }
    pShadow->m_tx.SetOrWH(pShadow->m_tx.nWidth, pShadow->m_tx.nHeight, 0);
    object.m_pShadowNode = pShadow;
    pShadow->m_pOwner = &object;
    pShadow->m_nType = node_type::Shadow;
    return pShadow;
}

} // namespace

CPoint ShadowBase(const CImgNode& object) {
    CPoint ptBase(object.m_tx.nX, object.m_tx.nY);
    if (object.m_pFrameNode) {
        ptBase.x = std::min<int>(ptBase.x, object.m_pFrameNode->m_tx.nX);
        ptBase.y = std::min<int>(ptBase.y, object.m_pFrameNode->m_tx.nY);
    }
    return ptBase;
}

HBUF32 MakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                    CPoint& ptShadow) {
    ptShadow = Moved(ptBase, offset);
    HBUF32 hSoft = 0;
    if (nSoftness != NoSoftMask) {
        const CPoint ptBlock = Moved(CPoint(block.nX, block.nY), offset);
        block.nX = ptBlock.x;
        block.nY = ptBlock.y;
        block.hMask = hMask;
        if (!sel32SoftEdgeMakeMask(&block, 0, nSoftness, 0, 0, 0, 0)) {
            block.hMask = 0;
        }
        hSoft = block.hMask;
    }
    block.nX = ptShadow.x;
    block.nY = ptShadow.y;
    return hSoft;
}

int CreateShadow(CTool& tool, CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                 int nSoftness, int nTransparency) {
    if (!pNode) {
        return 1;
    }
    const CCanvas canvas(tool);
    if (!canvas.HasDocument() || !pcrColor) {
        return 0;
    }
    const COLORREF crColor = *pcrColor;
    RemoveShadow(tool, pNode);

    CTxParam block = pNode->m_tx;
    CPoint ptShadow;
    const HBUF32 hSoft = SoftMaskOf(*pNode, nSoftness, block, CSize(nOffsetX, nOffsetY), ptShadow);
    CImgNode* pShadow = hSoft ? MakeShadowNode(canvas, *pNode, block, hSoft, crColor) : nullptr;
    if (!pShadow) {
        return 0;
    }
    pShadow->m_fnResize(RectAt(WithOwnOffset(*pShadow, ptShadow), ShadowSizeOf(*pNode)));
    pShadow->m_nTransparency = nTransparency;
    pNode->m_shadow = {static_cast<double>(nOffsetX), static_cast<double>(nOffsetY),
                       static_cast<double>(nSoftness), nTransparency, crColor};
    return 1;
}

int CreateShadow(CTool& tool, CImgNode* pNode, const CShadowParam& param) {
    const COLORREF crColor = param.crColor;
    return CreateShadow(tool, pNode, Truncated(param.dOffsetX), Truncated(param.dOffsetY), &crColor,
                        Truncated(param.dSoftness), param.nTransparency);
}

int RemoveShadow(CTool& tool, CImgNode* pNode) {
    if (pNode) {
        FreeCompanion(CCanvas(tool), pNode->m_pShadowNode);
    }
    return 1;
}

int RegenerateShadow(CTool& tool, CImgNode* pNode) {
    if (!pNode || !pNode->m_pShadowNode) {
        return 1;
    }
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    const CShadowParam param = pNode->m_shadow;
    const bool bDetached = canvas.Objects().Find(pNode->m_pShadowNode) == nullptr;
    RemoveShadow(tool, pNode);
    CreateShadow(tool, pNode, param);
    // Undo events keep shadows off the page this way.
    if (bDetached) {
        TakeOut(canvas.Objects(), pNode->m_pShadowNode);
    }
    return 1;
}

int RefreshNodeShadow(CTool& tool, CImgNode* pNode, int nRedraw) {
    if (!pNode || !pNode->m_pShadowNode) {
        return 0;
    }
    CRefresh refresh;
    refresh.Add(OutlineRect(tool, pNode));
    RegenerateShadow(tool, pNode);
    refresh.Add(OutlineRect(tool, pNode));
    const CCanvas canvas(tool);
    if (nRedraw == 1) {
        refresh.FlushRepaint(canvas);
    } else {
        refresh.Flush(canvas);
    }
    return 1;
}

CShadowParam TruncatedParam(CShadowParam param) {
    param.dOffsetX = Truncated(param.dOffsetX);
    param.dOffsetY = Truncated(param.dOffsetY);
    param.dSoftness = Truncated(param.dSoftness);
    return param;
}
