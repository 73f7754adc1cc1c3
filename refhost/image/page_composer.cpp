#include "image/page_composer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "image/blend.h"
#include "image/node_host.h"
#include "image/shown_picture.h"

namespace {

/// A picture's box in client pixels, and the part of it to draw.
struct Placement {
    RECT box;
    RECT part;

    std::int64_t Width() const { return std::int64_t{box.right} - box.left; }
    std::int64_t Height() const { return std::int64_t{box.bottom} - box.top; }
    std::int64_t FirstColumn() const { return std::int64_t{part.left} - box.left; }
    int Count() const { return part.right - part.left; }
};

std::optional<Placement> Place(const RECT& box, const RECT& rcPart) {
    Placement placement{box, {}};
    if (IntersectRect(&placement.part, &box, &rcPart) == FALSE) {
        return std::nullopt;
    }
    return placement;
}

void Open(CRowSource& rows, const buffer_host::View& view, const Placement& placement) {
    rows.Open(view, placement.Width(), placement.Height(), placement.FirstColumn(), placement.Count());
}

LONG Held(double dValue) {
    return static_cast<LONG>(
        std::clamp<double>(dValue, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}

/// The document rectangle that holds every node which can round into the part.
CRect Reach(const ViewMap& map, const RECT& rcPart) {
    const RECT rcDoc = map.RectToDoc(rcPart);
    const double dMargin = std::ceil(1.0 / map.dZoom) + 1.0;
    return CRect(Held(rcDoc.left - dMargin), Held(rcDoc.top - dMargin), Held(rcDoc.right + dMargin),
                 Held(rcDoc.bottom + dMargin));
}

/// The display values of one node, as tables; a table that would change nothing is absent.
struct Look {
    explicit Look(const CImgNode& node) : bHidden(node.m_nTransparency >= 100) {
        if (node.m_nBrightness != 0 || node.m_nContrast != 0) {
            tone = blend::ToneTable(node.m_nBrightness, node.m_nContrast);
        }
        if (node.m_nTransparency > 0) {
            opacity = blend::OpacityTable(node.m_nTransparency);
        }
    }
    bool bHidden;
    std::optional<blend::Table> tone;
    std::optional<blend::Table> opacity;
};

} // namespace

void CPageComposer::Compose(const CImgDoc* pDoc, const ViewMap& map, const PixelTarget& target,
                            const RECT& rcPart) {
    const RECT rcTarget{0, 0, target.width, target.height};
    RECT rcClipped;
    if (IntersectRect(&rcClipped, &rcPart, &rcTarget) == FALSE) {
        return;
    }
    if (!pDoc) {
        FillBackdrop(target, rcClipped);
        return;
    }
    DrawBase(*pDoc, map, target, rcClipped);
    CNodeBookkeeping::NodesInRect(*pDoc, Reach(map, rcClipped), m_nodes);
    for (auto node = m_nodes.rbegin(); node != m_nodes.rend(); ++node) {
        DrawNode(**node, map, target, rcClipped);
    }
}

void CPageComposer::FillBackdrop(const PixelTarget& target, const RECT& rcPart) {
    for (int y = rcPart.top; y < rcPart.bottom; ++y) {
        blend::FillRow(target.Row(y) + rcPart.left, Backdrop, rcPart.right - rcPart.left);
    }
}

void CPageComposer::DrawBase(const CImgDoc& doc, const ViewMap& map, const PixelTarget& target,
                             const RECT& rcPart) {
    const buffer_host::View base = buffer_host::Look(doc.GetBaseImage());
    const auto placement = Place(map.RectToClient({0, 0, doc.PageWidth(), doc.PageHeight()}), rcPart);
    const bool bBase = placement && base.pixels && base.unit == 3;
    if (!bBase || EqualRect(&placement->part, &rcPart) == FALSE) {
        FillBackdrop(target, rcPart);
    }
    if (!bBase) {
        return;
    }
    Open(m_image, base, *placement);
    for (int y = placement->part.top; y < placement->part.bottom; ++y) {
        blend::CopyRow(target.Row(y) + placement->part.left,
                       m_image.Row(std::int64_t{y} - placement->box.top), placement->Count());
    }
}

void CPageComposer::DrawNode(const CImgNode& node, const ViewMap& map, const PixelTarget& target,
                             const RECT& rcPart) {
    const auto placement = Place(map.RectToClient(CNodeBookkeeping::NodeRect(node)), rcPart);
    const Look look(node);
    if (!placement || look.bHidden) {
        return;
    }
    const PixelPair shown = CShownPicture::Of(node);
    if (!shown.image.pixels) {
        return;
    }
    const int nCount = placement->Count();
    const bool bMask = shown.mask.pixels;
    Open(m_image, shown.image, *placement);
    if (bMask) {
        Open(m_mask, shown.mask, *placement);
    }
    m_toned.resize(static_cast<std::size_t>(nCount) * 3 + buffer_host::ReadablePadding);
    // Without a mask of its own a transparent node has one even share everywhere.
    m_shares.assign(static_cast<std::size_t>(nCount), look.opacity ? (*look.opacity)[255] : 255);
    for (int y = placement->part.top; y < placement->part.bottom; ++y) {
        const std::int64_t nRow = std::int64_t{y} - placement->box.top;
        std::uint32_t* pTarget = target.Row(y) + placement->part.left;
        const std::uint8_t* pSource = m_image.Row(nRow);
        if (look.tone) {
            blend::ApplyTable(*look.tone, pSource, m_toned.data(), nCount * 3);
            pSource = m_toned.data();
        }
        const std::uint8_t* pShares = bMask ? m_mask.Row(nRow) : m_shares.data();
        if (bMask && look.opacity) {
            blend::ApplyTable(*look.opacity, pShares, m_shares.data(), nCount);
            pShares = m_shares.data();
        }
        blend::MaskRow(pTarget, pSource, pShares, nCount);
    }
}
