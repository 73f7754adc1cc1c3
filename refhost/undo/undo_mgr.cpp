#include "host/undo.h"

#include "trace/trace.h"

namespace {

void DestroyAll(CUndoEventList& events) {
    while (!events.IsEmpty()) {
        delete events.RemoveHead();
    }
}

/// Puts an event where its owner keeps it; what finds no room is destroyed.
BOOL Keep(POSITION position, CUndoEvent* pEvent) {
    if (!position) {
        delete pEvent;
    }
    return position != nullptr;
}

CUndoEvent* EventAt(const CUndoEventList& events, int nIndex) {
    const POSITION position = events.FindIndex(nIndex);
    return position ? events.GetAt(position) : nullptr;
}

} // namespace

CUndoMgr::CUndoMgr() = default;

CUndoMgr::~CUndoMgr() { Clear(); }

BOOL CUndoMgr::AddUndoEvent(CUndoEvent*& pEvent, BOOL bRecord) {
    if (!pEvent) {
        return FALSE;
    }
    if (trace::IsOn()) {
        trace::Call("undo", "AddUndoEvent",
                    {pEvent->GetRuntimeClass()->m_lpszClassName, static_cast<long long>(bRecord)});
    }
    if (m_pPack) {
        return Keep(m_pPack->AddTail(pEvent), pEvent);
    }
    DestroyAll(m_redo);
    if (!m_undo.IsEmpty() && m_undo.GetHead()->IsAccumulating() && m_undo.GetHead()->Accumulate(pEvent)) {
        delete pEvent;
        return TRUE;
    }
    return Keep(m_undo.AddHead(pEvent), pEvent);
}

void CUndoMgr::BeginPackUndoEvent(CUndoEventList* pList) {
    if (trace::IsOn()) {
        trace::Call("undo", "BeginPackUndoEvent");
    }
    if (!m_pPack) {
        m_pPack = pList;
    }
}

CUndoEventList* CUndoMgr::EndPackUndoEvent() {
    if (trace::IsOn()) {
        trace::Call("undo", "EndPackUndoEvent");
    }
    CUndoEventList* pPack = m_pPack;
    m_pPack = nullptr;
    return pPack;
}

BOOL CUndoMgr::Undo() {
    if (m_undo.IsEmpty()) {
        return FALSE;
    }
    CUndoEvent* pEvent = m_undo.RemoveHead();
    const BOOL bRestored = pEvent->Undo();
    Keep(m_redo.AddHead(pEvent), pEvent);
    return bRestored;
}

BOOL CUndoMgr::Redo() {
    if (m_redo.IsEmpty()) {
        return FALSE;
    }
    CUndoEvent* pEvent = m_redo.RemoveHead();
    const BOOL bRestored = pEvent->Redo();
    Keep(m_undo.AddHead(pEvent), pEvent);
    return bRestored;
}

void CUndoMgr::Clear() {
    DestroyAll(m_undo);
    DestroyAll(m_redo);
}

CUndoEvent* CUndoMgr::GetUndoEvent(int nIndex) const { return EventAt(m_undo, nIndex); }

CUndoEvent* CUndoMgr::GetRedoEvent(int nIndex) const { return EventAt(m_redo, nIndex); }

CUndoMgr* GetUndoMgr() {
    static CUndoMgr manager;
    return &manager;
}
