// A rebuilt text object takes the place of the old one, which keeps its identity and its place on the page.
#pragma once

#include "host/text_node.h"
#include "host/tool.h"

/// The frame: its link goes, it stays as it lies, is centred on the object, or is scaled by the heights and
/// centred.
enum class FrameRule { Dropped, Kept, Centered, Scaled };
/// The shadow: it stays linked as it is, also with its settings cut to whole numbers, or is freed and made
/// again. Its settings stay in every case.
enum class ShadowRule { Kept, KeptTruncated, Rebuilt };
/// The display values: those of the rebuilt text, or the old ones.
enum class DisplayRule { FromRebuilt, Kept };

struct PlaceRule {
    FrameRule frame;
    ShadowRule shadow;
    DisplayRule display;
};

/// The object takes the rebuilt text's data, which is left empty and stays the caller's. False when display
/// values that are kept are refused (the shadow is not made again then) or the shadow cannot be made.
bool TakePlace(CTool& tool, CTextNode& object, CTextNode& rebuilt, const PlaceRule& rule);
