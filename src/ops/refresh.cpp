#include "ops/refresh.h"

#include "host/tool_interfaces.h"

void CRefresh::FlushMarkRepaint(CVorView& view, IToolObjectOps& tool) {
    view.m_fnFlushCacheRect(m_rcArea);
    tool.ShowSelectionMarks(1);
    view.RepaintViewRect(m_rcArea, 1);
}

void CRefresh::FlushRepaint(CVorView& view) {
    view.m_fnFlushCacheRect(m_rcArea);
    view.RepaintViewRect(m_rcArea, 1);
}

void NotifyChangedThenRedrawn(IToolObjectOps& tool) {
    tool.NotifyObjectsChanged();
    tool.NotifyObjectsRedrawn();
}
