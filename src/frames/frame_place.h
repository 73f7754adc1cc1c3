// Keeping a frame round an object whose size or place has changed.
#pragma once

#include "host/img_node.h"

/// The object's placeholder as it lies on the page: its component's rectangle mapped by the frame node's
/// place (document units). For an object with a frame.
CRect PlaceHolderOnPage(const CImgNode& object);
/// Moves the object's frame so that its placeholder is centred on the object.
void CenterFrame(CImgNode& object);
/// Scales the object's frame by the two heights and centres it; without an old height it only centres.
void ScaleFrame(CImgNode& object, int nOldHeight, int nNewHeight);
/// The object's frame rectangles and its frame, as an operation that rebuilds the object carries them over.
struct FrameLink {
    CImgNode* pFrame;
    CRect rcFrame;
    CRect rcPlaceHolder;
    std::int32_t nFollows;
    std::int32_t nPlaceHolderMode;
};
FrameLink FrameLinkOf(const CImgNode& object);
/// Links the frame to the object again, which takes the rectangles over; a null frame links nothing.
void RestoreFrameLink(CImgNode& object, const FrameLink& link);
