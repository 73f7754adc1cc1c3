// The canvas object of the image engine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include <afxwin.h>

#include "host/buffer.h"
#include "host/transform.h"

class CImgDoc;
class CFrameParam;
class CScaledSource;

/// Type codes of a node.
namespace node_type {
inline constexpr int Picture = 1;
inline constexpr int Shadow = 8;
inline constexpr int Frame = 16;
inline constexpr int Text = 32;
} // namespace node_type

/// The shadow settings of an object. They outlive its shadow node. Lengths are document units.
struct CShadowParam {
    double dOffsetX = 0.0;
    double dOffsetY = 0.0;
    double dSoftness = 0.0;
    std::int32_t nTransparency = 0; ///< 0 opaque to 100
    COLORREF crColor = 0;
};

/// One object of the page. All fields are public and belong to everybody who follows the rules stated with
/// them; a change of position or size goes through `Move` or `m_fnResize`, because the document finds nodes
/// by place. Rectangles are document units unless said otherwise.
class CImgNode {
  public:
    /// Answers null when the allocation fails, so that `new` yields a null pointer.
    static void* operator new(std::size_t nSize) noexcept;
    static void operator delete(void* pNode) noexcept;

    /// A node made for `pDoc`, which frees it with itself unless somebody deletes it before. `pDoc` may be
    /// null.
    explicit CImgNode(CImgDoc* pDoc);
    CImgNode(const CImgNode&) = delete;
    CImgNode& operator=(const CImgNode&) = delete;
    /// Frees the node's buffers and parameter and leaves the document's lists. Companions are not freed.
    virtual ~CImgNode();

    /// Bounds without companions.
    virtual void GetBoundRect(CRect* pRect);
    /// Bounds joined with those of both companions.
    virtual void GetBoundRectEx(CRect* pRect);
    /// Moves this node alone by whole document units.
    virtual void Move(int nDx, int nDy);
    /// A copy with its own buffers: position kept, owner, frame and shadow links null, in no list. Null on
    /// failure.
    virtual CImgNode* Duplicate();
    /// The same copy as `Duplicate`.
    virtual CImgNode* m_fnDuplicateImageNode();
    /// A copy at a scale: x, y, width and height times `dScale`, truncated. Null on failure.
    virtual CImgNode* m_fnDuplicateImageNode(double dScale);
    /// Gives the node a new position and size.
    virtual void m_fnResize(const CRect& rect);
    /// Answers 1 when the node's bounds meet the rectangle, else 0.
    virtual int NodeInRect(CRect& rect);
    /// Answers 1 when the document point hits a pixel of the node whose mask is not 0, else 0.
    virtual int PtInMask(CPoint point);
    /// Draws the node's own outline with the device context's pen, in document units.
    virtual void DrawMarquee(CDC* pDC);

    /// 1 for a shadow node or a frame node with an owner, else 0.
    int IsShadowNode() const;
    int IsFrameNode() const;
    /// Bounds joined with those of the frame node, if there is one.
    CRect m_fnGetBoundRectWithFrame();
    /// Sets the three display values (brightness and contrast -100 to 100, transparency 0 opaque to 100;
    /// stored as given, clamped when drawn). Answers 1, or 0 when it fails.
    int m_fnUpdateBCAndT(int nBrightness, int nContrast, int nTransparency);
    /// The node's width and height.
    void GetOrthogonalWH(double* pdWidth, double* pdHeight) const;
    CTxParam GetLastTrans() const;
    void SetLastTrans(CTxParam& param);
    /// Gives the node an image (24-bit) and a mask (8-bit or 0), which it owns from then on, and places it at
    /// (x, y) with the image's size. Buffers that it had are freed. `nReserved` is 0. Answers 1, or 0 for a
    /// bad image (then nothing changes).
    int SetImage(HBUF32 hImage, HBUF32 hMask, int nX, int nY, int nReserved);

    /// Gives the node the picture or the mask that it shows at whatever size it has, as they were before any
    /// scaling (24-bit and 8-bit, or 0 for none). The node owns them from then on, and their pixels stay as
    /// they are; what it had is freed. A source is shown with its own mask; without one it leaves the node's.
    void SetTransSrcImg(HBUF32 hImage);
    void SetTransSrcMask(HBUF32 hMask);
    /// Frees the merge buffer, if there is one.
    void m_fnRemoveMergeBuf();
    /// The object's placeholder as its frame has it on the page; the object's bounds without a frame or with
    /// an empty frame rectangle.
    CRect m_fnGetPlaceHolderRect();

    /// Brings image and mask to the node's size, always from the picture as it was before any scaling. The
    /// arguments are 0 or 1 and reserved. When memory is out the buffers stay and are scaled as they are
    /// drawn.
    void m_fnAdjustImageNodeBuf(int nReserved, int nReserved2);
    /// A new 8-bit buffer over the bounds of object and frame that holds, for each pixel, the stronger of
    /// both masks; a node without a mask counts as opaque. The caller frees it; 0 when it cannot be made.
    HBUF32 CreateMaskBufByCombine();

    int m_nType = node_type::Picture;
    CTxParam m_tx;                  ///< position, size, mask and the rest of the transform block
    HBUF32 m_hImage = 0;            ///< owned; 24-bit; drawn at the node's size
    HBUF32 m_hTransSrcImage = 0;    ///< owned; the picture before any scaling, or 0; shown before the image
    HBUF32 m_hTransSrcMask = 0;     ///< owned; its mask, or 0
    HBUF32 m_hMergeBuf = 0;         ///< owned; 0 when none
    std::int32_t m_nBrightness = 0; ///< display values: read freely, written through `m_fnUpdateBCAndT`
    std::int32_t m_nContrast = 0;
    std::int32_t m_nTransparency = 0;
    CImgNode* m_pOwner = nullptr;         ///< set only on a companion: the object it belongs to
    CImgNode* m_pFrameNode = nullptr;     ///< the object's frame companion
    CImgNode* m_pShadowNode = nullptr;    ///< the object's shadow companion
    CShadowParam m_shadow;                ///< kept when the shadow node goes
    CFrameParam* m_pFrameParam = nullptr; ///< owned; on a frame node only
    CRect m_rcFrame;                      ///< frame rectangle of its component (on an object: a copy)
    CRect m_rcPlaceHolder;                ///< placeholder rectangle of the same component
    std::int32_t m_nPlaceHolderMode = 0;  ///< 1: the object always keeps a frame
    std::int32_t m_nFrameFollows = 0;     ///< 1: the frame is the object's own empty one
    std::int32_t m_nKeepProportions = 0;  ///< 1: resizing with a frame keeps the picture's proportions
    std::int32_t m_nPictureWidth = 0;     ///< size of the picture as it was loaded
    std::int32_t m_nPictureHeight = 0;
    std::uint32_t m_nId = 0; ///< identity, never used twice in a process

  private:
    friend class CImgDoc;
    friend class CImgNodeList;
    friend class CSpatialIndex;
    friend struct CNodeBookkeeping;
    friend struct CShownPicture;

    // The document's bookkeeping: where the node stands in its lists (the first place and the number of
    // places), its order key, ascending from front to back, and its cell in the spatial index.
    CImgDoc* m_pDoc = nullptr;
    std::uint32_t m_nNodeSetIndex = 0;
    std::uint32_t m_nCopyOf = 0; ///< identity of the node that this one was duplicated from
    bool m_bPasted = false;      ///< came from the object clipboard
    POSITION m_posInObjList = nullptr;
    POSITION m_posInActList = nullptr;
    std::uint32_t m_nInObjList = 0;
    std::uint32_t m_nInActList = 0;
    std::int64_t m_nStackKey = 0;
    CImgNode* m_pNextInCell = nullptr;
    CImgNode* m_pPrevInCell = nullptr;
    CRect m_rcIndexed;
    bool m_bIndexed = false;

    // What the host shows of a transform source: image and mask when they are the source at the node's size
    // (with the buffers that say so: both, and both of the source), else a copy made when first looked at.
    std::array<HBUF32, 4> m_scaledBuffers{};
    mutable std::unique_ptr<CScaledSource> m_pScaledSource;
};
