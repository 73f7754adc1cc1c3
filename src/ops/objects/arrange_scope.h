// The frame of every operation that moves or resizes the selected objects: the area before, the change, the
// area after.
#pragma once

#include "host/tool_interfaces.h"
#include "ops/canvas.h"
#include "ops/refresh.h"

class [[nodiscard]] CArrangeScope {
  public:
    CArrangeScope(CCanvas& canvas, IToolObjectOps& tool) : m_canvas(canvas), m_tool(tool) { AddArea(); }
    /// Refreshes the union of both areas and notifies; no panel is synced.
    ~CArrangeScope() {
        AddArea();
        m_refresh.FlushMarkRepaint(m_canvas.View(), m_tool);
        NotifyChangedThenRedrawn(m_tool);
    }
    CArrangeScope(const CArrangeScope&) = delete;
    CArrangeScope& operator=(const CArrangeScope&) = delete;

  private:
    void AddArea() {
        CRect rc(0, 0, 0, 0);
        m_tool.GetSelectionOutlineRect(&rc);
        m_refresh.Add(rc);
    }

    CCanvas& m_canvas;
    IToolObjectOps& m_tool;
    CRefresh m_refresh;
};
