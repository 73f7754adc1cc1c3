#include "ops/excluded_node.h"

#include "ops/canvas.h"

CExcludedNodeScope::CExcludedNodeScope(CImgNodeList& objects, CImgNode* pNode)
    : m_objects(objects), m_pNode(pNode) {
    POSITION position = pNode ? objects.Find(pNode) : nullptr;
    if (!position) {
        return;
    }
    POSITION previous = position;
    objects.GetPrev(previous);
    m_pPredecessor = previous ? objects.GetAt(previous) : nullptr;
    objects.RemoveAt(position);
    m_bTaken = true;
}

CExcludedNodeScope::~CExcludedNodeScope() {
    if (!m_bTaken) {
        return;
    }
    POSITION predecessor = m_pPredecessor ? m_objects.Find(m_pPredecessor) : nullptr;
    if (predecessor) {
        m_objects.InsertAfter(predecessor, m_pNode);
    } else {
        m_objects.AddHead(m_pNode);
    }
}

void KeepExcludedNodeInFront(CTool& tool, CImgNodeList& objects) {
    CImgNode* pNode = tool.GetExcludedNode();
    if (POSITION place = pNode ? objects.Find(pNode) : nullptr) {
        objects.RemoveAt(place);
        objects.AddHead(pNode);
    }
}

void KeepExcludedNodeInFront(CTool& tool) {
    const CCanvas canvas(tool);
    if (canvas.HasDocument()) {
        KeepExcludedNodeInFront(tool, canvas.Objects());
    }
}
