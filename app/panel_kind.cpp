#include "panel_kind.h"

#include <array>

#include "host/kinds.h"
#include "host/tool_ids.h"
#include "tools/basic_object_tool.h"
#include "tools/display_tool.h"
#include "tools/frame_tool.h"
#include "tools/shadow_tool.h"

namespace {

template <class Tool>
int Ask(CListenerObject& tool) {
    return static_cast<Tool&>(tool).GetPanelKind();
}

/// A family of tools, known by the kind that all its members answer.
struct Family {
    int nKind;
    int (*pfnAsk)(CListenerObject&);
};

constexpr std::array<Family, 4> Families = {{
    {tool_kind::BasicObject, Ask<CBasicObjectTool>},
    {tool_kind::Display, Ask<CDisplayTool>},
    {tool_kind::FrameBase, Ask<CFrameToolBase>},
    {tool_kind::Shadow, Ask<CShadowTool>},
}};

} // namespace

int AskPanelKind(CListenerObject& tool) {
    for (const Family& family : Families) {
        int nResult = 0;
        tool.IsKindOf(CategoryId, family.nKind, &nResult, nullptr);
        if (nResult == 1) {
            return family.pfnAsk(tool);
        }
    }
    return 0;
}
