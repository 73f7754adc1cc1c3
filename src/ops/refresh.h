// The refresh that ends an operation: what changed is gathered, then composed, marked and repainted.
#pragma once

#include <afxwin.h>

#include "host/vor_view.h"

struct IToolObjectOps;

/// Gathers the client area that an operation changed. An empty rectangle adds nothing.
class CRefresh {
  public:
    void Add(const RECT& rc) { m_rcArea.UnionRect(&m_rcArea, &rc); }
    const CRect& Area() const { return m_rcArea; }

    /// Composes the area afresh in the display cache, shows the selection marks, and repaints the area at
    /// once.
    void FlushMarkRepaint(CVorView& view, IToolObjectOps& tool);
    /// Composes the area afresh and repaints it at once, without marks.
    void FlushRepaint(CVorView& view);

  private:
    CRect m_rcArea{0, 0, 0, 0};
};

/// The two change notifications in their usual order.
void NotifyChangedThenRedrawn(IToolObjectOps& tool);
