#include "tools/shadow_tool.h"

#include "tools/identity.h"

int CShadowTool::InvalidateShadowMark(CImgNode* pNode) {
    CRect rc;
    if (!pNode || !pNode->m_pShadowNode || !GetNodeOutlineMarkRect(pNode, &rc)) {
        return 0;
    }
    return FlushViewRect(&rc);
}

int CShadowTool::GetPanelKind() { return IdentityOf(*this).nPanelKind; }
