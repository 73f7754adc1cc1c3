#include "text/text_tool_base.h"

#include "tools/identity_tables.h"
#include "tools/tool_ids.h"

int CTextToolBase::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    return OwnKindOrBase<CBasicObjectTool>(*this, {CategoryId, tool_kind::TextBase}, category, nKind, pResult,
                                           pExtra);
}

const GUID& CTextToolBase::GetToolClassId() { return tool_class::TextBase; }
