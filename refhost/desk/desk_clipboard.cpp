#include "desk/desk_clipboard.h"

#include <new>

#include "clipboard/object_bytes.h"
#include "desk/desk.h"
#include "desk/object_paste.h"
#include "trace/trace.h"

namespace {

constexpr char On[] = "edit:12";

} // namespace

CDeskClipboard::CDeskClipboard(CDesk& desk) : m_desk(desk) {
    AddKind(EditCategoryId, edit_kind::ObjectClipboard);
    AddKind(CategoryId, kind::Any);
    AddInterface<IObjectClipboard>(this);
}

int CDeskClipboard::CanCopy(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 1, {static_cast<const POINT&>(point)});
    const CPanelValues& values = m_desk.Panels();
    return values.bRealClipboard ? !SelectedObjects().empty() : values.nCanCopy;
}

int CDeskClipboard::Copy(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 2, {static_cast<const POINT&>(point)});
    const CPanelValues& values = m_desk.Panels();
    return values.bRealClipboard ? CopyObjects() : values.nClipboardResult;
}

int CDeskClipboard::CanPaste(CPoint point) {
    trace::BusCall(On, IObjectClipboard::Id, 3, {static_cast<const POINT&>(point)});
    const CPanelValues& values = m_desk.Panels();
    return values.bRealClipboard ? !m_content.empty() : values.nCanPaste;
}

int CDeskClipboard::Paste(CPoint point, int nFlag) {
    trace::BusCall(On, IObjectClipboard::Id, 4, {static_cast<const POINT&>(point), nFlag});
    const CPanelValues& values = m_desk.Panels();
    return values.bRealClipboard ? PasteObjects(point) : values.nClipboardResult;
}

std::vector<CImgNode*> CDeskClipboard::SelectedObjects() const {
    std::vector<CImgNode*> objects;
    CVorDoc* pDoc = m_desk.Document();
    for (POSITION pos = pDoc ? pDoc->GetObjList()->GetHeadPosition() : nullptr; pos;) {
        CImgNode* pNode = pDoc->GetObjList()->GetNext(pos);
        if (!pNode->m_pOwner && pDoc->GetActList()->Find(pNode)) {
            objects.push_back(pNode);
        }
    }
    return objects;
}

int CDeskClipboard::CopyObjects() {
    try {
        return WriteObjects(SelectedObjects(), m_content) ? 1 : 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

int CDeskClipboard::PasteObjects(const CPoint& point) {
    CVorDoc* pDoc = m_desk.Document();
    if (!pDoc || !m_desk.View()) {
        return 0;
    }
    try {
        NodeGroups groups;
        if (!ReadObjects(m_content, *pDoc, groups)) {
            return 0;
        }
        CPoint ptDoc;
        m_desk.View()->ViewPointToDoc(point, ptDoc);
        MoveGroupsTo(groups, ptDoc);
        PasteGroups(m_desk, std::move(groups));
        return 1;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}
