#include "ops/stacking.h"

#include "ops/canvas.h"
#include "ops/excluded_node.h"
#include "ops/groups.h"
#include "ops/nodes.h"
#include "ops/refresh.h"

namespace {

void Sort(const CCanvas& canvas, CNodeRefList& nodes) {
    nodes.RemoveAll();
    for (CImgNode* pNode : Each(canvas.Objects())) {
        if (!pNode->m_pOwner && canvas.IsSelected(pNode)) {
            nodes.AddTail(pNode);
        }
    }
}

/// The frame of a move: the selected objects in stacking order, and what shows the page afterwards. Stacking
/// changes no rectangle, so the area is taken once.
class CStackingScope {
  public:
    explicit CStackingScope(CTool& tool) : m_tool(tool), m_canvas(tool) {
        if (m_canvas) {
            Sort(m_canvas, m_sorted);
        }
    }
    ~CStackingScope() {
        if (m_canvas) {
            CRefresh refresh;
            refresh.Add(SelectionOutlineRect(m_tool));
            refresh.FlushMarkRepaint(m_canvas, m_tool);
            NotifyChangedThenRedrawn(m_tool);
        }
    }
    CStackingScope(const CStackingScope&) = delete;
    CStackingScope& operator=(const CStackingScope&) = delete;

    explicit operator bool() const { return static_cast<bool>(m_canvas); }
    CImgNodeList& Objects() const { return m_canvas.Objects(); }
    CNodeRefList& Sorted() { return m_sorted; }

  private:
    CTool& m_tool;
    CCanvas m_canvas;
    CNodeRefList m_sorted;
};

// Whether the first objects in the order of `range`, as many as are selected, are the selected ones.
template <class TRange>
int StartsWithSelection(const CCanvas& canvas, TRange range) {
    INT_PTR nLeft = canvas.Selection().GetCount();
    for (CImgNode* pNode : range) {
        if (nLeft == 0) {
            break;
        }
        if (pNode->IsShadowNode() || pNode->IsFrameNode()) {
            continue;
        }
        if (!canvas.IsSelected(pNode)) {
            return 0;
        }
        --nLeft;
    }
    return nLeft == 0 ? 1 : 0;
}

void PutAtHead(CImgNodeList& objects, CImgNode& object) {
    TakeGroupOut(objects, object);
    AddGroupAtHead(objects, object);
}

void PutAtTail(CImgNodeList& objects, CImgNode& object) {
    TakeGroupOut(objects, object);
    AddGroupAtTail(objects, object);
}

} // namespace

void stacking::SortByStacking(CTool& tool, CNodeRefList& nodes) {
    const CCanvas canvas(tool);
    if (canvas.HasDocument()) {
        Sort(canvas, nodes);
    }
}

void stacking::BringForward(CTool& tool) {
    CStackingScope stack(tool);
    if (!stack) {
        return;
    }
    bool bOneStayed = false;
    for (CImgNode* pObject : Each(stack.Sorted())) {
        CImgNode* pOther = ObjectInFrontOf(stack.Objects(), *pObject);
        if (pOther) {
            PutGroupInFrontOf(stack.Objects(), *pObject, *pOther);
        }
        bOneStayed = bOneStayed || !pOther;
    }
    if (bOneStayed) {
        PutAtHead(stack.Objects(), *stack.Sorted().GetHead());
    }
    KeepExcludedNodeInFront(tool, stack.Objects());
}

void stacking::SendBackward(CTool& tool) {
    CStackingScope stack(tool);
    if (!stack) {
        return;
    }
    bool bOneStayed = false;
    for (CImgNode* pObject : Backwards(stack.Sorted())) {
        CImgNode* pOther = ObjectBehind(stack.Objects(), *pObject);
        if (pOther) {
            PutGroupBehind(stack.Objects(), *pObject, *pOther);
        }
        bOneStayed = bOneStayed || !pOther;
    }
    if (bOneStayed) {
        PutAtTail(stack.Objects(), *stack.Sorted().GetTail());
    }
}

void stacking::BringToFront(CTool& tool) {
    CStackingScope stack(tool);
    if (!stack) {
        return;
    }
    for (CImgNode* pObject : Backwards(stack.Sorted())) {
        PutAtHead(stack.Objects(), *pObject);
    }
    KeepExcludedNodeInFront(tool, stack.Objects());
}

void stacking::SendToBack(CTool& tool) {
    CStackingScope stack(tool);
    if (!stack) {
        return;
    }
    for (CImgNode* pObject : Each(stack.Sorted())) {
        PutAtTail(stack.Objects(), *pObject);
    }
}

int stacking::IsSelectionAtFront(CTool& tool) {
    const CCanvas canvas(tool);
    return canvas.HasDocument() ? StartsWithSelection(canvas, Each(canvas.Objects())) : 0;
}

int stacking::IsSelectionAtBack(CTool& tool) {
    const CCanvas canvas(tool);
    return canvas.HasDocument() ? StartsWithSelection(canvas, Backwards(canvas.Objects())) : 0;
}
