// What a node shows.
#pragma once

#include "host/img_node.h"
#include "image/pixel_scale.h"

/// A transform source at the size at which its node shows it.
class CScaledSource {
  public:
    /// The source's own pixels are given; without memory the copy has none.
    CScaledSource(const CImgNode& node, const PixelPair& source);

    /// Whether it was made of the node's present source at its present size.
    bool IsOf(const CImgNode& node) const;
    const buffer_host::View& Image() const { return m_image.view; }
    const buffer_host::View& Mask() const { return m_mask.view; }

  private:
    HBUF32 m_hImage;
    HBUF32 m_hMask;
    CSize m_size;
    buffer_host::OwnPixels m_image;
    buffer_host::OwnPixels m_mask;
};

/// The road to the copies that a node keeps for showing.
struct CShownPicture {
    /// The node's transform source at its size, where it has one, else its image and mask: each to be
    /// stretched over the node's bounds, and without pixels where there is none. Good until the node or one
    /// of its buffers changes.
    static PixelPair Of(const CImgNode& node);
    /// The node's image and mask are its source at the node's size.
    static void MarkScaled(CImgNode& node);
    /// The node's buffers are copies of the other's.
    static void CopyMark(const CImgNode& from, CImgNode& to);

  private:
    static bool IsMarked(const CImgNode& node);
};
