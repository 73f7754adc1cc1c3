// Takes back a change of shadows: their settings, and whether they are there.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "undo/toggle_event.h"

/// One node's shadow settings and whether it had a shadow node.
struct NodeShadowRecord {
    CImgNode* node = nullptr;
    double offsetX = 0.0;
    double offsetY = 0.0;
    double softness = 0.0;
    std::int32_t transparency = 0;
    COLORREF color = 0;
    BOOL hasShadow = FALSE;
};

class CShadowChangedUndoEvent : public CToggleUndoEvent<NodeShadowRecord> {
    DECLARE_DYNCREATE(CShadowChangedUndoEvent)

  public:
    ~CShadowChangedUndoEvent() override;

    /// Saves the selected nodes' shadows, in the order of selection. A null tool saves nothing.
    virtual void m_fnSaveState(CObjectTool* pTool);
    /// The settings are compared exactly.
    BOOL m_fnIsSameState(const CShadowChangedUndoEvent* pOther) const;

    /// Captures the current selection, not the saved nodes, for the next undo.
    BOOL Undo() override;

  private:
    static void Capture(CObjectTool& tool, SavedList& records);
    void RestoreShadow(const NodeShadowRecord& record);
};

/// The same, recorded when shadows are dragged.
class CShadowMoveChangedUndoEvent : public CShadowChangedUndoEvent {
    DECLARE_DYNCREATE(CShadowMoveChangedUndoEvent)

  public:
    void m_fnSaveState(CObjectTool* pTool) override;
};
