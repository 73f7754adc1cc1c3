#include "tools/object_page_tool.h"

#include "host/panels.h"
#include "ops/current_tool.h"

int CObjectPageTool::OnLButtonDown(UINT nFlags, CPoint point) {
    const int nAnswer = CBasicObjectTool::OnLButtonDown(nFlags, point);
    if (IsCurrentTool(*this)) {
        if (IPropertyArea* pArea = bus::FindService<IPropertyArea>(*this, kind::ObjectPage)) {
            pArea->OnObjectsChanged(1);
        }
    }
    return nAnswer;
}
