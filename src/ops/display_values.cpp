#include "ops/display_values.h"

DisplayValues DisplayValuesOf(const CImgNode& node) {
    return {node.m_nBrightness, node.m_nContrast, node.m_nTransparency};
}

DisplayValues RequestedValues(const DisplayValues& request, const CImgNode& node) {
    const auto wanted = [](int nRequest, int nLive) {
        return nRequest == KeepDisplayValue ? nLive : nRequest;
    };
    return {wanted(request.nBrightness, node.m_nBrightness), wanted(request.nContrast, node.m_nContrast),
            wanted(request.nTransparency, node.m_nTransparency)};
}

bool SetDisplayValues(CImgNode& node, const DisplayValues& values) {
    return node.m_fnUpdateBCAndT(values.nBrightness, values.nContrast, values.nTransparency) != 0;
}

bool CopyDisplayValues(CImgNode& node, const CImgNode& other) {
    return SetDisplayValues(node, DisplayValuesOf(other));
}
