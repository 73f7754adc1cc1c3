// The care taken of a tool's excluded node.
#pragma once

#include "host/tool.h"

/// Takes a node out of the object list for as long as it lives, and puts it back at the same place: after its
/// former predecessor, or at the head when it had none.
class [[nodiscard]] CExcludedNodeScope {
  public:
    /// A null node, or one that is not in the list, is left alone.
    CExcludedNodeScope(CImgNodeList& objects, CImgNode* pNode);
    ~CExcludedNodeScope();
    CExcludedNodeScope(const CExcludedNodeScope&) = delete;
    CExcludedNodeScope& operator=(const CExcludedNodeScope&) = delete;

    bool HasTaken() const { return m_bTaken; }

  private:
    CImgNodeList& m_objects;
    CImgNode* m_pNode;
    CImgNode* m_pPredecessor = nullptr;
    bool m_bTaken = false;
};

/// Moves the tool's excluded node to the head of the object list, if it is in it.
void KeepExcludedNodeInFront(CTool& tool, CImgNodeList& objects);
void KeepExcludedNodeInFront(CTool& tool);
