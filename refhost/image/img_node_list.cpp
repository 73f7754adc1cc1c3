#include "host/img_node_list.h"

#include <string>

#include "host/img_doc.h"
#include "image/node_host.h"
#include "image/spatial_index.h"
#include "trace/trace.h"

namespace {

/// Room between the keys of neighbours at the ends of the list.
constexpr std::int64_t KeyGap = std::int64_t{1} << 24;
/// The least room that a spreading leaves between two keys.
constexpr std::int64_t LeastSpread = std::int64_t{1} << 12;

} // namespace

CImgNodeList::CImgNodeList(CImgDoc* pDoc) : CImgNodeList(pDoc, Role::Free) {}

CImgNodeList::CImgNodeList(CImgDoc* pDoc, Role role) : m_pDoc(pDoc), m_role(role) {}

CImgNodeList::~CImgNodeList() { DropAll(); }

void CImgNodeList::Record(const char* pszOp) const {
    if (m_role == Role::Free || !trace::IsOn()) {
        return;
    }
    const std::string op = std::string(m_role == Role::Objects ? "objects." : "selection.") + pszOp;
    trace::Call("doc", op.c_str());
}

void CImgNodeList::Record(const char* pszOp, const CImgNode* pNode) const {
    if (m_role == Role::Free || !trace::IsOn()) {
        return;
    }
    const std::string op = std::string(m_role == Role::Objects ? "objects." : "selection.") + pszOp;
    trace::Call("doc", op.c_str(), {trace::Node(pNode)});
}

void CImgNodeList::Record(const char* pszOp, const CImgNode* pNode, POSITION other) const {
    if (m_role == Role::Free || !trace::IsOn()) {
        return;
    }
    const std::string op = std::string(m_role == Role::Objects ? "objects." : "selection.") + pszOp;
    trace::Call("doc", op.c_str(), {trace::Node(pNode), trace::Node(other ? GetAt(other) : nullptr)});
}

POSITION CImgNodeList::AddHead(CImgNode* pNode) {
    if (!Accepts(pNode)) {
        return nullptr;
    }
    Record("AddHead", pNode);
    return Enter(CPtrList::AddHead(pNode));
}

POSITION CImgNodeList::AddTail(CImgNode* pNode) {
    if (!Accepts(pNode)) {
        return nullptr;
    }
    Record("AddTail", pNode);
    return Enter(CPtrList::AddTail(pNode));
}

POSITION CImgNodeList::InsertBefore(POSITION position, CImgNode* pNode) {
    if (!Accepts(pNode)) {
        return nullptr;
    }
    Record("InsertBefore", pNode, position);
    return Enter(CPtrList::InsertBefore(position, pNode));
}

POSITION CImgNodeList::InsertAfter(POSITION position, CImgNode* pNode) {
    if (!Accepts(pNode)) {
        return nullptr;
    }
    Record("InsertAfter", pNode, position);
    return Enter(CPtrList::InsertAfter(position, pNode));
}

void CImgNodeList::RemoveAt(POSITION position) {
    if (!position) {
        return;
    }
    Record("RemoveAt", GetAt(position));
    Drop(position);
}

CImgNode* CImgNodeList::RemoveHead() {
    if (IsEmpty()) {
        return nullptr;
    }
    CImgNode* pNode = GetHead();
    Record("RemoveHead", pNode);
    Drop(GetHeadPosition());
    return pNode;
}

CImgNode* CImgNodeList::RemoveTail() {
    if (IsEmpty()) {
        return nullptr;
    }
    CImgNode* pNode = GetTail();
    Record("RemoveTail", pNode);
    Drop(GetTailPosition());
    return pNode;
}

void CImgNodeList::RemoveAll() {
    Record("RemoveAll");
    DropAll();
}

POSITION CImgNodeList::Find(const CImgNode* pNode) const {
    CImgNode* pSought = const_cast<CImgNode*>(pNode);
    if (m_role == Role::Free) {
        return CPtrList::Find(pSought);
    }
    // Whoever kept a pointer to a node that was deleted asks for it here, and is told that it is gone.
    const bool bOurs = CNodeBookkeeping::IsLive(pNode) && pNode->m_pDoc == m_pDoc;
    return bOurs ? FirstPlace(*pSought) : nullptr;
}

bool CImgNodeList::Accepts(CImgNode* pNode) {
    if (!pNode) {
        return false;
    }
    if (m_role == Role::Free) {
        return true;
    }
    if (!CNodeBookkeeping::IsLive(pNode)) {
        return false;
    }
    // A node made without a document belongs to the one whose list takes it.
    if (!pNode->m_pDoc) {
        CNodeBookkeeping::Register(*pNode, m_pDoc);
    }
    return pNode->m_pDoc == m_pDoc;
}

POSITION& CImgNodeList::FirstPlace(CImgNode& node) const {
    return m_role == Role::Objects ? node.m_posInObjList : node.m_posInActList;
}

std::uint32_t& CImgNodeList::PlaceCount(CImgNode& node) const {
    return m_role == Role::Objects ? node.m_nInObjList : node.m_nInActList;
}

bool CImgNodeList::IsFirstPlace(POSITION position) const { return FirstPlace(*GetAt(position)) == position; }

POSITION CImgNodeList::Enter(POSITION position) {
    if (!position || m_role == Role::Free) {
        return position;
    }
    CImgNode& node = *GetAt(position);
    const POSITION former = FirstPlace(node);
    FirstPlace(node) = ++PlaceCount(node) == 1 ? position : CPtrList::Find(&node);
    if (m_role != Role::Objects || FirstPlace(node) == former) {
        return position;
    }
    AssignKey(position);
    if (!former) {
        m_pDoc->m_pIndex->Insert(node, CNodeBookkeeping::NodeRect(node));
    }
    return position;
}

void CImgNodeList::Drop(POSITION position) {
    if (m_role == Role::Free) {
        CPtrList::RemoveAt(position);
        return;
    }
    CImgNode& node = *GetAt(position);
    const bool bWasFirst = IsFirstPlace(position);
    if (bWasFirst) {
        FirstPlace(node) = PlaceCount(node) > 1 ? CPtrList::Find(&node, position) : nullptr;
    }
    --PlaceCount(node);
    CPtrList::RemoveAt(position);
    if (m_role != Role::Objects || !bWasFirst) {
        return;
    }
    if (node.m_posInObjList) {
        AssignKey(node.m_posInObjList);
    } else {
        m_pDoc->m_pIndex->Remove(node);
    }
}

void CImgNodeList::DropAll() {
    if (m_role == Role::Free) {
        CPtrList::RemoveAll();
        return;
    }
    while (!IsEmpty()) {
        Drop(GetTailPosition());
    }
}

void CImgNodeList::DropNode(CImgNode& node) {
    while (FirstPlace(node)) {
        Record("RemoveAt", &node);
        Drop(FirstPlace(node));
    }
}

POSITION CImgNodeList::KeyedBefore(POSITION position) const {
    GetPrev(position);
    while (position && !IsFirstPlace(position)) {
        GetPrev(position);
    }
    return position;
}

POSITION CImgNodeList::KeyedBehind(POSITION position) const {
    GetNext(position);
    while (position && !IsFirstPlace(position)) {
        GetNext(position);
    }
    return position;
}

void CImgNodeList::AssignKey(POSITION position) {
    const POSITION before = KeyedBefore(position);
    const POSITION behind = KeyedBehind(position);
    std::int64_t& nKey = GetAt(position)->m_nStackKey;
    if (!before) {
        nKey = behind ? GetAt(behind)->m_nStackKey - KeyGap : 0;
        return;
    }
    const std::int64_t nBefore = GetAt(before)->m_nStackKey;
    const std::int64_t nRoom = behind ? GetAt(behind)->m_nStackKey - nBefore : 2 * KeyGap;
    nKey = nBefore + nRoom / 2;
    if (nRoom < 2) {
        SpreadKeys(position);
    }
}

/// Takes in ever more neighbours until their keys, spread evenly, stand apart again. The room asked for grows
/// with their number, so that many insertions at one place stay cheap on average.
void CImgNodeList::SpreadKeys(POSITION position) {
    POSITION first = position;
    POSITION last = position;
    std::int64_t nCount = 1;
    for (;;) {
        const POSITION before = KeyedBefore(first);
        const POSITION behind = KeyedBehind(last);
        if (!before || !behind) {
            const std::int64_t nFrom = before   ? GetAt(before)->m_nStackKey
                                       : behind ? GetAt(behind)->m_nStackKey - KeyGap * (nCount + 1)
                                                : 0;
            SpreadBetween(first, last, nFrom, KeyGap);
            return;
        }
        const std::int64_t nFrom = GetAt(before)->m_nStackKey;
        const std::int64_t nStep = (GetAt(behind)->m_nStackKey - nFrom) / (nCount + 1);
        if (nStep >= LeastSpread && nStep >= nCount) {
            SpreadBetween(first, last, nFrom, nStep);
            return;
        }
        first = before;
        last = behind;
        nCount += 2;
    }
}

void CImgNodeList::SpreadBetween(POSITION first, POSITION last, std::int64_t nFrom, std::int64_t nStep) {
    for (POSITION at = first;; at = KeyedBehind(at)) {
        nFrom += nStep;
        GetAt(at)->m_nStackKey = nFrom;
        if (at == last) {
            return;
        }
    }
}
