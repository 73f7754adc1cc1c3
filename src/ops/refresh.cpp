#include "ops/refresh.h"

#include "ops/canvas.h"

void CRefresh::FlushMarkRepaint(const CCanvas& canvas, CTool& tool) const {
    if (canvas) {
        Flush(canvas);
        tool.ShowSelectionMarks(1);
        Repaint(canvas);
    }
}

void CRefresh::FlushRepaint(const CCanvas& canvas) const {
    Flush(canvas);
    Repaint(canvas);
}

void CRefresh::Flush(const CCanvas& canvas) const {
    if (canvas) {
        CRect rcArea = m_rcArea;
        canvas.View().m_fnFlushCacheRect(rcArea);
    }
}

void CRefresh::Repaint(const CCanvas& canvas) const {
    if (canvas) {
        canvas.View().RepaintViewRect(m_rcArea, 1);
    }
}

void NotifyChangedThenRedrawn(CTool& tool) {
    tool.NotifyObjectsChanged();
    tool.NotifyObjectsRedrawn();
}

void NotifyRedrawnThenChanged(CTool& tool) {
    tool.NotifyObjectsRedrawn();
    tool.NotifyObjectsChanged();
}
