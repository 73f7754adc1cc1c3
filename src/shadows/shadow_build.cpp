// Building, removing and rebuilding the soft-edged shadow of an object.
#include <cstring>

#include "host/mask.h"
#include "ops/buffer_owner.h"
#include "ops/refresh.h"
#include "ops/saturate.h"
#include "tools/tool_core.h"

namespace {

constexpr int MaskBits = 8;
constexpr int BitsPerByte = 8;
constexpr int FullMaskScale = 100; ///< percent
constexpr int NoSoftMask = -1;     ///< the softness that makes no mask
constexpr int ResizeMode = 2;      ///< of CBuf::Resize: smooth

/// What a shadow is built from.
struct ShadowSettings {
    int nOffsetX;
    int nOffsetY;
    int nSoftness;
    int nTransparency;
    COLORREF crColor;
};

ShadowSettings SettingsOf(const CShadowParam& param) {
    return {Truncated(param.dOffsetX), Truncated(param.dOffsetY), Truncated(param.dSoftness),
            param.nTransparency, param.crColor};
}

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

// Where a shadow without offset stands: the object's corner, or the outer corner of object and frame.
CPoint BasePoint(const CImgNode& node) {
    CPoint ptBase(node.m_tx.nX, node.m_tx.nY);
    if (node.m_pFrameNode) {
        ptBase.x = std::min<int>(ptBase.x, node.m_pFrameNode->m_tx.nX);
        ptBase.y = std::min<int>(ptBase.y, node.m_pFrameNode->m_tx.nY);
    }
    return ptBase;
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
    const unsigned char channels[4] = {GetBValue(crColor), GetGValue(crColor), GetRValue(crColor), 0};
    const std::size_t nPixels = static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight);
    for (std::size_t i = 0; i < nPixels; ++i, pPixel += nUnit) {
        std::memcpy(pPixel, channels, static_cast<std::size_t>(nUnit));
    }
    buf32Unlock(buffer.Get());
    return buffer.Release();
}

} // namespace

// The block comes back at the shadow's position, also when no mask is made.
HBUF32 CToolCore::m_fnMakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                                   CPoint& ptShadow) {
    ptShadow = ptBase + offset;
    HBUF32 hSoft = 0;
    if (nSoftness != NoSoftMask) {
        block.nX = Saturated(static_cast<long long>(block.nX) + offset.cx);
        block.nY = Saturated(static_cast<long long>(block.nY) + offset.cy);
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

int CToolCore::m_fnCreateShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                                int nSoftness, int nTransparency) {
    if (!pNode) {
        return 1;
    }
    CCanvas canvas(*this);
    if (!canvas.HasDocument() || !pcrColor) {
        return 0;
    }
    const COLORREF crColor = *pcrColor;
    m_fnRemoveShadowOf(pNode);

    CTxParam block = pNode->m_tx;
    CPoint ptShadow;
    HBUF32 hSoft = 0;
    CSize size(pNode->m_tx.nWidth, pNode->m_tx.nHeight);
    {
        CHardMask mask(*pNode);
        if (!mask.Get()) {
            return 0;
        }
        if (pNode->m_pFrameNode) {
            size = pNode->m_fnGetBoundRectWithFrame().Size();
        }
        mask.Scale(pNode->m_tx);
        hSoft = m_fnMakeSoftMask(mask.Get(), nSoftness, block, CSize(nOffsetX, nOffsetY), BasePoint(*pNode),
                                 ptShadow);
    }
    if (!hSoft) {
        return 0;
    }
    CImgNode* pShadow = MakeShadowNode(canvas, *pNode, block, hSoft, crColor);
    if (!pShadow) {
        return 0;
    }
    pShadow->m_fnResize(CRect(ptShadow, size));
    pShadow->m_nTransparency = nTransparency;
    pNode->m_shadow = {static_cast<double>(nOffsetX), static_cast<double>(nOffsetY),
                       static_cast<double>(nSoftness), nTransparency, crColor};
    return 1;
}

int CToolCore::m_fnCreateShadow(CImgNode* pNode, const CShadowParam& param) {
    const ShadowSettings settings = SettingsOf(param);
    return m_fnCreateShadow(pNode, settings.nOffsetX, settings.nOffsetY, &settings.crColor,
                            settings.nSoftness, settings.nTransparency);
}

// Takes the soft mask over. The new node stands directly behind the object and the two know each other; null
// on failure.
CImgNode* CToolCore::MakeShadowNode(CCanvas& canvas, CImgNode& object, const CTxParam& block, HBUF32 hSoft,
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
    canvas.Document().InsertNodeFor(&object, pShadow, 1);
    pShadow->m_tx.SetOrWH(pShadow->m_tx.nWidth, pShadow->m_tx.nHeight, 0);
    object.m_pShadowNode = pShadow;
    pShadow->m_pOwner = &object;
    pShadow->m_nType = node_type::Shadow;
    return pShadow;
}

int CToolCore::m_fnRemoveShadowOf(CImgNode* pNode) {
    if (pNode && pNode->m_pShadowNode) {
        CImgNode* pShadow = pNode->m_pShadowNode;
        pNode->m_pShadowNode = nullptr;
        delete pShadow;
    }
    return 1;
}

int CToolCore::m_fnRegenerateShadow(CImgNode* pNode) {
    if (!pNode || !pNode->m_pShadowNode) {
        return 1;
    }
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return 0;
    }
    const CShadowParam param = pNode->m_shadow;
    const bool bDetached = canvas.Objects().Find(pNode->m_pShadowNode) == nullptr;
    m_fnRemoveShadowOf(pNode);
    m_fnCreateShadow(pNode, param);
    // Undo events keep shadows off the page this way.
    POSITION position =
        bDetached && pNode->m_pShadowNode ? canvas.Objects().Find(pNode->m_pShadowNode) : nullptr;
    if (position) {
        canvas.Objects().RemoveAt(position);
    }
    return 1;
}

int CToolCore::RefreshNodeShadow(CImgNode* pNode, int nRedraw) {
    if (!pNode || !pNode->m_pShadowNode) {
        return 0;
    }
    CRefresh refresh;
    CRect rc(0, 0, 0, 0);
    GetNodeOutlineRect(pNode, &rc);
    refresh.Add(rc);
    m_fnRegenerateShadow(pNode);
    GetNodeOutlineRect(pNode, &rc);
    refresh.Add(rc);
    CCanvas canvas(*this);
    if (!canvas) {
        return 1;
    }
    CRect rcArea = refresh.Area();
    canvas.View().m_fnFlushCacheRect(rcArea);
    if (nRedraw == 1) {
        canvas.View().RepaintViewRect(rcArea, 1);
    }
    return 1;
}
