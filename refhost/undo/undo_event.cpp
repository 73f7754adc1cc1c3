#include "host/undo.h"

#include <new>

#include "platform/faults.h"
#include "undo/undo_host.h"

namespace {

std::size_t g_nEvents = 0;

} // namespace

IMPLEMENT_DYNAMIC(CUndoEvent, CObject)

void* CUndoEvent::operator new(std::size_t nSize) noexcept {
    return platform::FaultTrips("undo-event") ? nullptr : ::operator new(nSize, std::nothrow);
}

void CUndoEvent::operator delete(void* pEvent) noexcept { ::operator delete(pEvent); }

CUndoEvent::CUndoEvent() { ++g_nEvents; }

CUndoEvent::~CUndoEvent() { --g_nEvents; }

BOOL CUndoEvent::IsDummyUndo() { return FALSE; }

BOOL CUndoEvent::Accumulate(CUndoEvent* /*pNext*/) { return FALSE; }

BOOL CUndoEvent::SetUndo(IProject_Method2* /*pProject*/, CImgNode* /*pNode*/, int /*nFlag*/) { return FALSE; }

BOOL CUndoEvent::SetUndo(IProject_Method2* /*pProject*/, CImgNodeList& /*nodes*/, int /*nFlag*/) {
    return FALSE;
}

BOOL CUndoEvent::SetUndo(IProject_Method2* /*pProject*/, int /*nFlag*/) { return FALSE; }

BOOL CUndoEvent::Undo() { return TRUE; }

BOOL CUndoEvent::Redo() { return TRUE; }

void CUndoEvent::Free() {}

void CUndoEvent::Cancel() {}

void CUndoEvent::GetRedrawRect(CRect* pRect) {
    if (pRect) {
        pRect->SetRectEmpty();
    }
}

void CUndoEvent::GetRedrawRect(CRect& rect) { GetRedrawRect(&rect); }

BOOL CUndoEvent::ToolTipNeedText(tagNMTTDISPIFNOA* /*pText*/) { return FALSE; }

namespace undo_host {

std::size_t EventCount() { return g_nEvents; }

} // namespace undo_host
