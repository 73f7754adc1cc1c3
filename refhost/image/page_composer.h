// Composes a page's pixels from its base image and its nodes.
#pragma once

#include <cstdint>
#include <vector>

#include "host/img_doc.h"
#include "image/row_source.h"
#include "image/view_map.h"

/// Pixels 0x00RRGGBB; the stride counts pixels.
struct PixelTarget {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;

    std::uint32_t* Row(int y) const { return pixels + static_cast<std::ptrdiff_t>(y) * stride; }
};

/// Keeps its working memory from one call to the next.
class CPageComposer {
  public:
    /// What lies outside the base image.
    static constexpr std::uint32_t Backdrop = 0x00505050;

    /// Composes the part of the client area, clipped to the target: the backdrop, the base image at the
    /// page's size, then every node that touches the part, back to front. A null document gives the backdrop
    /// alone.
    void Compose(const CImgDoc* pDoc, const ViewMap& map, const PixelTarget& target, const RECT& rcPart);

  private:
    void FillBackdrop(const PixelTarget& target, const RECT& rcPart);
    void DrawBase(const CImgDoc& doc, const ViewMap& map, const PixelTarget& target, const RECT& rcPart);
    void DrawNode(const CImgNode& node, const ViewMap& map, const PixelTarget& target, const RECT& rcPart);

    std::vector<CImgNode*> m_nodes;
    CRowSource m_image;
    CRowSource m_mask;
    std::vector<std::uint8_t> m_toned;
    std::vector<std::uint8_t> m_shares;
};
