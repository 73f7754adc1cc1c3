// The settings of the selected objects' shadows, as the host's shadow page sets them. Answers as those of
// IShadowSettings.
#pragma once

#include "host/tool.h"

namespace shadow_settings {
int GetCount(CTool& tool);
int ApplyShadow(CTool& tool, int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                int nTransparency);
int SetOffset(CTool& tool, int nMask, int nX, int nY);
int SetColor(CTool& tool, const COLORREF* pcrColor);
int SetSoftness(CTool& tool, int nSoftness);
int SetTransparency(CTool& tool, int nTransparency);
int RemoveShadows(CTool& tool);
} // namespace shadow_settings
