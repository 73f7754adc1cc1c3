// A document's list of nodes.
#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include "host/img_node.h"

/// A list of node references (none are owned) in positions, with constant-time look-up of a node's place in a
/// document's object list and selection. A document list holds a node at most once per look-up: `Find`
/// answers the first place.
class CImgNodeList : public CPtrList {
  public:
    /// A free-standing list for the nodes of `pDoc`.
    explicit CImgNodeList(CImgDoc* pDoc);
    ~CImgNodeList();

    POSITION AddHead(CImgNode* pNode);
    POSITION AddTail(CImgNode* pNode);
    POSITION InsertBefore(POSITION position, CImgNode* pNode);
    POSITION InsertAfter(POSITION position, CImgNode* pNode);
    void RemoveAt(POSITION position);
    CImgNode* RemoveHead();
    CImgNode* RemoveTail();
    void RemoveAll();

    CImgNode* GetHead() const { return static_cast<CImgNode*>(CPtrList::GetHead()); }
    CImgNode* GetTail() const { return static_cast<CImgNode*>(CPtrList::GetTail()); }
    CImgNode* GetNext(POSITION& position) const {
        return static_cast<CImgNode*>(CPtrList::GetNext(position));
    }
    CImgNode* GetPrev(POSITION& position) const {
        return static_cast<CImgNode*>(CPtrList::GetPrev(position));
    }
    CImgNode* GetAt(POSITION position) const { return static_cast<CImgNode*>(CPtrList::GetAt(position)); }
    /// The node's place, or null.
    POSITION Find(const CImgNode* pNode) const;

  private:
    friend class CImgDoc;
    friend struct CNodeBookkeeping;
    enum class Role { Free, Objects, Selection };
    CImgNodeList(CImgDoc* pDoc, Role role);

    void Record(const char* pszOp) const;
    void Record(const char* pszOp, const CImgNode* pNode) const;
    void Record(const char* pszOp, const CImgNode* pNode, POSITION other) const;
    bool Accepts(CImgNode* pNode);
    POSITION& FirstPlace(CImgNode& node) const;
    std::uint32_t& PlaceCount(CImgNode& node) const;
    bool IsFirstPlace(POSITION position) const;
    POSITION Enter(POSITION position);
    void Drop(POSITION position);
    void DropAll();
    void DropNode(CImgNode& node);
    POSITION KeyedBefore(POSITION position) const;
    POSITION KeyedBehind(POSITION position) const;
    void AssignKey(POSITION position);
    void SpreadKeys(POSITION position);
    void SpreadBetween(POSITION first, POSITION last, std::int64_t nFrom, std::int64_t nStep);

    CImgDoc* m_pDoc;
    Role m_role;
};

/// A plain list of node references, as operations and undo events keep them. Block size 10.
using CNodeRefList = CList<CImgNode*, CImgNode*>;
