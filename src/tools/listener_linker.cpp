#include "tools/listener_linker.h"

#include <vector>

#include "host/document_service.h"
#include "host/tool.h"
#include "ops/bus.h"

namespace {

// All that the listener is linked to, whatever its kind.
std::vector<CListenerObject*> TargetsOf(CListenerObject& listener) {
    std::vector<CListenerObject*> targets;
    listener.m_fnSetCommunicateObjectType(CategoryId, kind::Any);
    for (CListenerObject* pTarget = listener.m_fnFirst(); pTarget; pTarget = listener.m_fnNext()) {
        targets.push_back(pTarget);
    }
    return targets;
}

} // namespace

void CListenerLinker::Activate() {
    if (++m_nActivations == 1) {
        TellActive(GetEmbedded());
        Connect();
    }
}

void CListenerLinker::Deactivate() {
    if (--m_nActivations == 0) {
        TellActive(m_pOwner);
        Disconnect();
    }
}

// The owner searches: the embedded tool may be linked to nobody yet.
void CListenerLinker::TellActive(CListenerObject* pListener) {
    if (!m_pOwner) {
        return;
    }
    if (auto* pService = bus::FindService<IActiveListenerService>(*m_pOwner, kind::Document)) {
        pService->SetActiveListener(pListener);
    }
}

void CListenerLinker::Connect() {
    CListenerObject* const pEmbedded = GetEmbedded();
    if (!m_pOwner) {
        return;
    }
    for (CListenerObject* pTarget : TargetsOf(*m_pOwner)) {
        if (pTarget != pEmbedded) {
            pEmbedded->m_fnAddTargetObject(pTarget);
            pTarget->m_fnAddTargetObject(pEmbedded);
        }
    }
}

void CListenerLinker::Disconnect() {
    CListenerObject* const pEmbedded = GetEmbedded();
    for (CListenerObject* pTarget : TargetsOf(*pEmbedded)) {
        pEmbedded->m_fnRemoveTargetObject(pTarget);
        pTarget->m_fnRemoveTargetObject(pEmbedded);
    }
}

void CListenerLinker::ShareExcludedNode() {
    GetEmbedded()->SetExcludedNode(m_pOwner ? m_pOwner->GetExcludedNode() : nullptr);
}
