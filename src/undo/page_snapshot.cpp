#include "undo/page_snapshot.h"

#include "host/kinds.h"
#include "host/notifications.h"
#include "ops/bus.h"
#include "ops/canvas.h"
#include "ops/groups.h"
#include "ops/nodes.h"
#include "ops/refresh.h"

namespace {

IPageObjects* TableOf(CTool& tool) { return bus::FindService<IPageObjects>(tool, kind::PageObjects); }

void CaptureValues(CTool& tool, const CNodeRefList& objects, CList<std::int32_t, std::int32_t>& values) {
    values.RemoveAll();
    if (IPageObjects* pTable = TableOf(tool)) {
        for (CImgNode* pObject : Each(objects)) {
            values.AddTail(pTable->GetValue(pObject));
        }
    }
}

// The host keeps its table by the objects' places, so it is filled again in their order.
void WriteBackValues(CTool& tool, const CList<std::int32_t, std::int32_t>& values) {
    if (IPageObjects* pTable = TableOf(tool)) {
        pTable->ClearValues();
        for (const std::int32_t nValue : Each(values)) {
            pTable->AppendValue(nValue);
        }
    }
}

void AppendGroups(CImgNodeList& nodes, const CNodeRefList& objects) {
    for (CImgNode* pObject : Each(objects)) {
        AddGroupAtTail(nodes, *pObject);
    }
}

} // namespace

void CapturePage(CTool& tool, const CCanvas& canvas, PageSnapshot& page) {
    CaptureObjects(canvas, page.objects);
    CopyList(canvas.Selection(), page.selection);
    CaptureValues(tool, page.objects, page.values);
}

void CopyPage(const PageSnapshot& from, PageSnapshot& to) {
    CopyList(from.objects, to.objects);
    CopyList(from.selection, to.selection);
    CopyList(from.values, to.values);
}

void WriteBackPage(CTool& tool, const CCanvas& canvas, const PageSnapshot& page) {
    canvas.Objects().RemoveAll();
    canvas.Selection().RemoveAll();
    AppendGroups(canvas.Objects(), page.objects);
    for (CImgNode* pNode : Each(page.selection)) {
        canvas.Selection().AddTail(pNode);
    }
    WriteBackValues(tool, page.values);
}

void PageSwap::Capture(CTool& tool) {
    const CCanvas canvas(tool);
    if (canvas.HasDocument()) {
        CapturePage(tool, canvas, restore);
        CapturePage(tool, canvas, previous);
    } else {
        CopyPage(PageSnapshot(), restore);
        CopyPage(PageSnapshot(), previous);
    }
}

void PageSwap::Exchange(CTool& tool, const CCanvas& canvas, CRefresh& area) {
    PageSnapshot live;
    CapturePage(tool, canvas, live);
    area.Add(SelectionOutlineRect(tool));
    WriteBackPage(tool, canvas, restore);
    CopyPage(restore, previous);
    CopyPage(live, restore);
    area.Add(SelectionOutlineRect(tool));
}

void CaptureObjects(const CCanvas& canvas, CNodeRefList& objects) {
    objects.RemoveAll();
    for (CImgNode* pNode : Each(canvas.Objects())) {
        if (!pNode->m_pOwner) {
            objects.AddTail(pNode);
        }
    }
}

void WriteBackObjects(const CCanvas& canvas, const CNodeRefList& objects) {
    canvas.Objects().RemoveAll();
    AppendGroups(canvas.Objects(), objects);
}
