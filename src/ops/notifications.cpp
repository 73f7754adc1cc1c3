#include "ops/notifications.h"

#include "host/notifications.h"
#include "ops/bus.h"
#include "ops/canvas.h"

namespace {

// The first global object of that kind, asked for its interface; null when either is missing.
template <class TInterface>
TInterface* FindGlobal(int nKind) {
    return bus::FindService<TInterface>(*CGlobalObjectManager::m_fnGetGlobalObjectManager(), nKind);
}

} // namespace

int notifications::NotifyObjectsChanged(CTool& tool) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return 0;
    }
    canvas.Document().SetModifiedFlag(TRUE);
    CListenerObject* pPageObjects = bus::FindObject(tool, CategoryId, kind::PageObjects);
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

int notifications::NotifyObjectsRedrawn(CTool& tool) {
    CListenerObject* pPageObjects = bus::FindObject(tool, CategoryId, kind::PageObjects);
    if (!pPageObjects) {
        return 0;
    }
    bus::Broadcast<IRedrawReceiver>(kind::RedrawReceiver, [pPageObjects](IRedrawReceiver& receiver) {
        receiver.OnRedrawn(pPageObjects);
    });
    return 1;
}
