#include "tools/identity.h"

const ToolIdentity& IdentityOf(CTool& tool) {
    const ToolIdentity* pIdentity = FindToolIdentity(tool.GetToolClassId());
    return pIdentity ? *pIdentity : ToolIdentities.front();
}

bool IsOfToolKind(CTool& tool, const GUID& category, int nKind) {
    for (const ToolIdentity* pIdentity = &IdentityOf(tool);;) {
        if (IsEqualGUID(pIdentity->category, category) && pIdentity->nKind == nKind) {
            return true;
        }
        if (IsEqualGUID(pIdentity->baseId, pIdentity->classId)) {
            return false;
        }
        pIdentity = FindToolIdentity(pIdentity->baseId);
    }
}
