// What ends an operation: the changed area is gathered, then composed, marked and repainted, and those
// concerned are told.
#pragma once

#include "host/tool.h"
#include "ops/areas.h"

class CCanvas;

/// Gathers the client area that an operation changed. An empty rectangle adds nothing. Without a view nothing
/// is drawn.
class CRefresh {
  public:
    void Add(const RECT& rc) { m_rcArea.UnionRect(&m_rcArea, &rc); }
    const CRect& Area() const { return m_rcArea; }

    /// Composes the area afresh in the display cache, shows the selection marks, and repaints it at once.
    void FlushMarkRepaint(const CCanvas& canvas, CTool& tool) const;
    /// The same without marks.
    void FlushRepaint(const CCanvas& canvas) const;
    /// The two halves: composes the area afresh, and repaints what the cache holds.
    void Flush(const CCanvas& canvas) const;
    void Repaint(const CCanvas& canvas) const;

  private:
    CRect m_rcArea{0, 0, 0, 0};
};

/// The area that a change of the selection touches: measured when this is made, and once more after the
/// change.
class CTouchedArea : public CRefresh {
  public:
    using Measure = CRect (*)(CTool&);

    explicit CTouchedArea(CTool& tool, Measure measure = &SelectionOutlineRect)
        : m_tool(tool), m_measure(measure) {
        Add(m_measure(m_tool));
    }
    CTouchedArea& After() {
        Add(m_measure(m_tool));
        return *this;
    }

  private:
    CTool& m_tool;
    Measure m_measure;
};

/// The two change notifications in the usual order, and in that of edited text and of shadow settings.
void NotifyChangedThenRedrawn(CTool& tool);
void NotifyRedrawnThenChanged(CTool& tool);
