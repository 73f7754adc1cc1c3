#include "tools/basic_object_tool.h"

#include "ops/commands/click.h"
#include "tools/identity.h"

int CBasicObjectTool::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (AnswerInterface<ISelectOnly>(this, iid, ppInterface, pExtra)) {
        return 1;
    }
    return CObjectTool::QueryInterface(iid, ppInterface, pExtra);
}

int CBasicObjectTool::GetPanelKind() { return IdentityOf(*this).nPanelKind; }

int CBasicObjectTool::SelectOnly(CImgNode* pNode) { return click::SelectOnly(*this, pNode); }
