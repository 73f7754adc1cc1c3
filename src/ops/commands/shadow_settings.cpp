#include "ops/commands/shadow_settings.h"

#include "ops/axis.h"
#include "ops/canvas.h"
#include "ops/nodes.h"
#include "ops/refresh.h"
#include "shadows/shadow_build.h"
#include "undo/recorder.h"
#include "undo/shadow_changed_event.h"

namespace {

constexpr int MaskX = 1; ///< of the offsets that are set
constexpr int MaskY = 2;

/// Which area an operation takes as the one before the change: each changed object's, or the selection's.
enum class AreaBefore { OfObjects, OfSelection };

/// Makes the change to each selected object that wants it; a companion never does. Answers whether there was
/// one.
template <class TWants, class TChange>
bool ChangeObjects(CTool& tool, const CCanvas& canvas, CRefresh& area, AreaBefore before, TWants wants,
                   TChange change) {
    CNodeRefList nodes;
    CopyList(canvas.Selection(), nodes);
    bool bChanged = false;
    if (before == AreaBefore::OfSelection) {
        area.Add(SelectionOutlineRect(tool));
    }
    for (CImgNode* pNode : Each(nodes)) {
        if (pNode->m_pOwner || !wants(*pNode)) {
            continue;
        }
        if (before == AreaBefore::OfObjects) {
            area.Add(OutlineRect(tool, pNode, Shown::Alone));
        }
        change(*pNode);
        area.Add(OutlineRect(tool, pNode, Shown::Alone));
        bChanged = true;
    }
    return bChanged;
}

/// The frame of every operation: captured, changed, shown, recorded, told.
template <class TWants, class TChange>
int ChangeSelection(CTool& tool, TWants wants, TChange change, AreaBefore before = AreaBefore::OfObjects) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    if (!canvas.HasSelection()) {
        return 1;
    }
    CUndoRecorder<CShadowChangedUndoEvent> recorder;
    if (!recorder.CaptureBefore(tool)) {
        return 0;
    }
    CRefresh area;
    if (!ChangeObjects(tool, canvas, area, before, wants, change)) {
        return 1;
    }
    area.FlushMarkRepaint(canvas, tool);
    const Recorded recorded = recorder.RecordChange(tool);
    if (recorded == Recorded::Recorded) {
        NotifyRedrawnThenChanged(tool);
    }
    return recorded == Recorded::NoCapture ? 0 : 1;
}

bool HasShadow(const CImgNode& object) { return object.m_pShadowNode != nullptr; }

CPoint OffsetOf(const CImgNode& object) {
    return CPoint(Truncated(object.m_shadow.dOffsetX), Truncated(object.m_shadow.dOffsetY));
}

CPoint WantedOffset(const CImgNode& object, int nMask, CPoint offset) {
    const CPoint own = OffsetOf(object);
    return CPoint(nMask & MaskX ? offset.x : own.x, nMask & MaskY ? offset.y : own.y);
}

// The shadow node stays; it moves to where a new one would stand.
void MoveShadow(CImgNode& object, CPoint offset) {
    CImgNode& shadow = *object.m_pShadowNode;
    const CPoint ptWanted = Moved(ShadowBase(object), CSize(offset.x, offset.y));
    shadow.Move(Saturated(static_cast<long long>(ptWanted.x) - shadow.m_tx.nX),
                Saturated(static_cast<long long>(ptWanted.y) - shadow.m_tx.nY));
    object.m_shadow.dOffsetX = offset.x;
    object.m_shadow.dOffsetY = offset.y;
}

} // namespace

int shadow_settings::GetCount(CTool& tool) {
    const CCanvas canvas(tool);
    return canvas.HasDocument() ? static_cast<int>(canvas.Selection().GetCount()) : 0;
}

int shadow_settings::ApplyShadow(CTool& tool, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                                 int nSoftness, int nTransparency) {
    if (!pcrColor) {
        return 0;
    }
    const auto all = [](const CImgNode&) { return true; };
    const auto replace = [&](CImgNode& object) {
        CreateShadow(tool, &object, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency);
    };
    return ChangeSelection(tool, all, replace, AreaBefore::OfSelection);
}

int shadow_settings::SetOffset(CTool& tool, int nMask, int nX, int nY) {
    const CPoint offset(nX, nY);
    const auto differs = [&](const CImgNode& object) {
        return HasShadow(object) && WantedOffset(object, nMask, offset) != OffsetOf(object);
    };
    const auto move = [&](CImgNode& object) { MoveShadow(object, WantedOffset(object, nMask, offset)); };
    return ChangeSelection(tool, differs, move);
}

int shadow_settings::SetColor(CTool& tool, const COLORREF* pcrColor) {
    if (!pcrColor) {
        return 0;
    }
    const auto differs = [&](const CImgNode& object) {
        return HasShadow(object) && object.m_shadow.crColor != *pcrColor;
    };
    const auto rebuild = [&](CImgNode& object) {
        CShadowParam param = object.m_shadow;
        param.crColor = *pcrColor;
        CreateShadow(tool, &object, param);
    };
    return ChangeSelection(tool, differs, rebuild);
}

int shadow_settings::SetSoftness(CTool& tool, int nSoftness) {
    const auto differs = [nSoftness](const CImgNode& object) {
        return HasShadow(object) && object.m_shadow.dSoftness != static_cast<double>(nSoftness);
    };
    const auto rebuild = [&](CImgNode& object) {
        CShadowParam param = object.m_shadow;
        param.dSoftness = nSoftness;
        CreateShadow(tool, &object, param);
    };
    return ChangeSelection(tool, differs, rebuild);
}

int shadow_settings::SetTransparency(CTool& tool, int nTransparency) {
    const auto differs = [nTransparency](const CImgNode& object) {
        return HasShadow(object) && object.m_shadow.nTransparency != nTransparency;
    };
    const auto set = [nTransparency](CImgNode& object) {
        object.m_pShadowNode->m_nTransparency = nTransparency;
        object.m_shadow.nTransparency = nTransparency;
    };
    return ChangeSelection(tool, differs, set);
}

int shadow_settings::RemoveShadows(CTool& tool) {
    const auto remove = [&tool](CImgNode& object) { RemoveShadow(tool, &object); };
    return ChangeSelection(tool, HasShadow, remove);
}
