#include "ops/excluded_node.h"

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

void KeepExcludedNodeInFront(CImgNodeList& objects, CImgNode* pNode) {
    POSITION position = pNode ? objects.Find(pNode) : nullptr;
    if (position) {
        objects.RemoveAt(position);
        objects.AddHead(pNode);
    }
}
