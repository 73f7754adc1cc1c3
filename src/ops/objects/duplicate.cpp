#include "ops/objects/duplicate.h"

#include "ops/canvas.h"
#include "ops/excluded_node.h"
#include "ops/groups.h"

CImgNode* DuplicateObject(CTool& tool, CImgNode* pNode, int nAdd) {
    const CCanvas canvas(tool);
    if (!pNode || !canvas.HasDocument()) {
        return nullptr;
    }
    CImgNode* pCopy = CopyGroup(*pNode, &CImgNode::Duplicate);
    if (pCopy && nAdd == 1) {
        AddGroupAtHead(canvas.Objects(), *pCopy);
        KeepExcludedNodeInFront(tool, canvas.Objects());
    }
    return pCopy;
}
