// The change notifications and the selection's own undo record.
#include "host/notifications.h"
#include "ops/bus.h"
#include "tools/tool_core.h"
#include "undo/recorder.h"
#include "undo/sel_changed_event.h"

namespace {

// The first global object of that kind, asked for its interface; null when either is missing.
template <class TInterface>
TInterface* FindGlobal(int nKind) {
    return bus::FindService<TInterface>(*CGlobalObjectManager::m_fnGetGlobalObjectManager(), nKind);
}

} // namespace

int CToolCore::NotifyObjectsChanged() {
    CCanvas canvas(*this);
    if (!canvas.HasDocument()) {
        return 0;
    }
    canvas.Document().SetModifiedFlag(TRUE);
    CListenerObject* pPageObjects = bus::FindObject(*this, CategoryId, kind::PageObjects);
    if (!pPageObjects) {
        return 0;
    }
    IChangeTracker* pTracker = FindGlobal<IChangeTracker>(kind::ChangeTracker);
    if (!pTracker) {
        return 0;
    }
    pTracker->SetChanged(1);
    bus::Broadcast<IChangeReceiver>(kind::ChangeReceiver, [pPageObjects](IChangeReceiver& receiver) {
        receiver.OnChanged(pPageObjects);
    });
    bus::Broadcast<IChangeReceiver2>(kind::ChangeReceiver, [pPageObjects](IChangeReceiver2& receiver) {
        receiver.OnChanged(pPageObjects, 0);
    });
    return 1;
}

int CToolCore::NotifyObjectsRedrawn() {
    CListenerObject* pPageObjects = bus::FindObject(*this, CategoryId, kind::PageObjects);
    if (!pPageObjects) {
        return 0;
    }
    bus::Broadcast<IRedrawReceiver>(kind::RedrawReceiver, [pPageObjects](IRedrawReceiver& receiver) {
        receiver.OnRedrawn(pPageObjects);
    });
    return 1;
}

int CToolCore::RecordSelectionUndo() {
    std::unique_ptr<CSelChangedUndoEvent> pEvent = CaptureState<CSelChangedUndoEvent>(AsObjectTool());
    if (!pEvent) {
        return 0;
    }
    RecordEvent(pEvent);
    return 1;
}
