// Setting display values. Answers as those of ISelectionDisplay and INodeDisplay.
#pragma once

#include <cstdint>

#include "host/tool.h"
#include "ops/display_values.h"

namespace display {
int SetSelectionDisplay(CTool& tool, const DisplayValues& request);
int SetNodeDisplay(CImgNode* pNode, const DisplayValues& values, std::int32_t* pError);
} // namespace display
