#include "text/object/text_place.h"

#include "frames/frame_place.h"
#include "shadows/shadow_build.h"
#include "text/object/text_attributes.h"

namespace {

void PlaceFrame(CTextNode& object, const FrameLink& frame, int nOldHeight, FrameRule rule) {
    if (rule == FrameRule::Dropped) {
        return;
    }
    RestoreFrameLink(object, frame);
    if (rule == FrameRule::Centered) {
        CenterFrame(object);
    } else if (rule == FrameRule::Scaled) {
        ScaleFrame(object, nOldHeight, object.m_tx.nHeight);
    }
}

} // namespace

// Moving the data also moves the rebuilt text's empty links.
bool TakePlace(CTool& tool, CTextNode& object, CTextNode& rebuilt, const PlaceRule& rule) {
    const bool bRebuildShadow = rule.shadow == ShadowRule::Rebuilt && object.m_pShadowNode;
    if (rule.shadow == ShadowRule::Rebuilt) {
        RemoveShadow(tool, &object);
    }
    const FrameLink frame = FrameLinkOf(object);
    const DisplayValues display = DisplayValuesOf(object);
    const CShadowParam shadow = object.m_shadow;
    CImgNode* const pShadow = object.m_pShadowNode;
    const int nOldHeight = object.m_tx.nHeight;

    object.m_fnMoveMemberDataFrom(&rebuilt);
    object.m_shadow = rule.shadow == ShadowRule::KeptTruncated ? TruncatedParam(shadow) : shadow;
    object.m_pShadowNode = pShadow;
    PlaceFrame(object, frame, nOldHeight, rule.frame);
    if (rule.display == DisplayRule::Kept && !SetDisplayValues(object, display)) {
        return false;
    }
    return !bRebuildShadow || CreateShadow(tool, &object, shadow);
}
