// Operations whose subjects this module does not offer yet: they keep their places and refuse, changing
// nothing.
#include "tools/tool_core.h"

void CToolCore::m_fnRemoveFrame() {}
void CToolCore::m_fnRemoveShadow() {}
void CToolCore::m_fnEditTextAt(CPoint) {}
void CToolCore::m_fnRemoveTextEffect(CPoint) {}

CTextNode* CToolCore::CreateTextNode(const CString&, const CString&, COLORREF, int, int, int) {
    return nullptr;
}

CTextNode* CToolCore::RecolorTextNode(CTextNode*, COLORREF) { return nullptr; }

int CToolCore::ReplaceTextNode(CTextNode*, CTextNode*, int) { return 0; }

int CToolCore::RebuildTextNodeInPlace(CTextNode*, CTextNode*, int) { return 0; }

int CToolCore::CopyNodeLook(CImgNode*, CImgNode*) { return 0; }

int CToolCore::MakePlaceholderFrame(CImgNode*, const RECT*) { return 0; }
