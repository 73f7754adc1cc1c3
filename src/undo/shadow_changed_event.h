// Takes back a change of shadows: their settings, and whether they are there.
#pragma once

#include <cstdint>

#include "host/img_node_list.h"
#include "undo/undo_steps.h"

/// One node's shadow settings and whether it had a shadow node.
struct NodeShadowRecord {
    CImgNode* node = nullptr;
    double offsetX = 0.0;
    double offsetY = 0.0;
    double softness = 0.0;
    std::int32_t transparency = 0;
    COLORREF color = 0;
    BOOL hasShadow = FALSE;

    /// The settings are compared exactly.
    bool operator==(const NodeShadowRecord& other) const = default;
};

/// Each step captures the current selection, not the saved nodes, for the next one.
class CShadowChangedUndoEvent : public CUndoSteps<CShadowChangedUndoEvent> {
    DECLARE_DYNCREATE(CShadowChangedUndoEvent)

  public:
    ~CShadowChangedUndoEvent() override;

    /// Saves the selected nodes' shadows, in the order of selection. A null tool saves nothing.
    virtual void m_fnSaveState(CTool* pTool);
    BOOL m_fnIsSameState(const CShadowChangedUndoEvent* pOther) const;

  private:
    friend CUndoSteps;
    using SavedList = CList<NodeShadowRecord, const NodeShadowRecord&>;

    static void Capture(const CCanvas& canvas, SavedList& records);
    Restored Restore(Way way, CTool& tool, const CCanvas& canvas, CRefresh& area);

    SavedList m_saved;
    CTool* m_pOwnerTool = nullptr; ///< not owned
    BOOL m_bUndone = FALSE;
};

/// The same, recorded when shadows are dragged.
class CShadowMoveChangedUndoEvent : public CShadowChangedUndoEvent {
    DECLARE_DYNCREATE(CShadowMoveChangedUndoEvent)

  public:
    void m_fnSaveState(CTool* pTool) override;
};
