#include "tools/frame_tool.h"

#include "tools/identity.h"

int CFrameToolBase::GetPanelKind() { return IdentityOf(*this).nPanelKind; }
