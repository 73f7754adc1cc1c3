// The display values of a node: brightness, contrast and transparency.
#pragma once

#include "host/img_node.h"

/// In a request: the node keeps the value that it has.
inline constexpr int KeepDisplayValue = -1;

struct DisplayValues {
    int nBrightness;
    int nContrast;
    int nTransparency;

    bool operator==(const DisplayValues& other) const = default;
};

DisplayValues DisplayValuesOf(const CImgNode& node);
/// What the request asks of the node: its own value where it is to keep one.
DisplayValues RequestedValues(const DisplayValues& request, const CImgNode& node);
/// False when the node does not take them.
bool SetDisplayValues(CImgNode& node, const DisplayValues& values);
bool CopyDisplayValues(CImgNode& node, const CImgNode& other);
