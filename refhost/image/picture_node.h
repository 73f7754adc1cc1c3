// Picture objects as the host puts them on its page.
#pragma once

#include <windows.h>

#include "host/img_doc.h"
#include "image/picture_file.h"

/// The picture at another size, resampled over every source pixel; false when memory is out or a size is out
/// of range.
bool ScalePicture(const Picture& picture, int nWidth, int nHeight, Picture& scaled);
/// A picture of one colour. False when memory is out or a size is out of range.
bool SolidPicture(COLORREF color, int nWidth, int nHeight, Picture& picture);
/// Gives the picture an elliptic mask of its size: 255 where the pixel's centre lies inside the ellipse, else
/// 0.
bool AddEllipseMask(Picture& picture);
/// A node for the document, not yet in any list, showing the picture in the rectangle (document units,
/// top-left and size). A picture of another size is scaled, and its own pixels stay in the node's transform
/// source. Takes the buffers over. Null on failure.
CImgNode* MakePictureNode(CImgDoc& doc, Picture&& picture, const CRect& rect);
/// The same for a node that exists: its buffers are replaced. Answers false, and the node is as before, on
/// failure.
bool SetNodePicture(CImgNode& node, Picture&& picture, const CRect& rect);
