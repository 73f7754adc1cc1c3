#include "entry/catalog.h"

#include "text/tools/text_tool.h"
#include "tools/combo_tools.h"
#include "tools/display_tool.h"
#include "tools/frame_tool.h"
#include "tools/object_page_tool.h"
#include "tools/select_tool.h"
#include "tools/shadow_tool.h"

namespace {

template <class TTool>
CObjectTool* Make() {
    return new TTool;
}

} // namespace

const std::array<ToolMaker, 11> ToolMakers = {
    &Make<CSelectTool>,      &Make<CObjectPageTool>, &Make<CDisplayPageTool>,   &Make<CFrameTool>,
    &Make<CImageShadowTool>, &Make<CTextTool>,       &Make<CTextDisplayTool>,   &Make<CTextShadowTool>,
    &Make<CTextToolBase>,    &Make<CTextComboTool>,  &Make<CAdaptiveComboTool>,
};
