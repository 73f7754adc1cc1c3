#include "entry/catalog.h"
#include "host/tool_category.h"
#include "tools/object_tool.h"

extern "C" AFX_EXT_API int g_fnLoadAndLinkToolCat(IToolCategory* pCategory) {
    if (!pCategory) {
        return 0;
    }
    for (const ToolMaker makeTool : ToolMakers) {
        CObjectTool* pTool = makeTool();
        if (!pTool) {
            return 0;
        }
        pCategory->AddTool(pTool);
    }
    return 1;
}
