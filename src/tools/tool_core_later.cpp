// Operations whose subjects this module does not offer yet: they keep their places and refuse, changing
// nothing.
#include "tools/tool_core.h"

void CToolCore::m_fnRemoveFrame() {}
void CToolCore::m_fnRemoveShadow() {}

int CToolCore::MakePlaceholderFrame(CImgNode*, const RECT*) { return 0; }
