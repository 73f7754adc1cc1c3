// The frame of every operation that moves or resizes the selected objects: the area before, the change, the
// area after.
#pragma once

#include "ops/canvas.h"
#include "ops/nodes.h"
#include "ops/refresh.h"

/// False without a view; then nothing is shown either.
class [[nodiscard]] CArrangeScope {
  public:
    explicit CArrangeScope(CTool& tool) : m_tool(tool), m_canvas(tool), m_area(tool) {
        if (m_canvas) {
            CopyList(m_canvas.Selection(), m_nodes);
        }
    }
    /// Refreshes the union of both areas and notifies; no panel is synced.
    ~CArrangeScope() {
        if (m_canvas) {
            m_area.After().FlushMarkRepaint(m_canvas, m_tool);
            NotifyChangedThenRedrawn(m_tool);
        }
    }
    CArrangeScope(const CArrangeScope&) = delete;
    CArrangeScope& operator=(const CArrangeScope&) = delete;

    explicit operator bool() const { return static_cast<bool>(m_canvas); }
    const CCanvas& Canvas() const { return m_canvas; }
    /// The selection, in its order.
    const CNodeRefList& Nodes() const { return m_nodes; }

  private:
    CTool& m_tool;
    CCanvas m_canvas;
    CTouchedArea m_area;
    CNodeRefList m_nodes;
};
