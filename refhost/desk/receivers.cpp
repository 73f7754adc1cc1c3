#include "desk/receivers.h"

#include "trace/trace.h"

namespace {

/// The argument as the record shows it: the kind of the page's objects, which is all that it ever is.
trace::Value PageObjectsArgument(CListenerObject* pPageObjects) {
    if (!pPageObjects) {
        return trace::Pointer{false};
    }
    return static_cast<long long>(kind::PageObjects);
}

} // namespace

CGlobalReceiver::CGlobalReceiver(int nKind, bool bSearches) : m_bSearches(bSearches) {
    AddKind(CategoryId, nKind);
    AddKind(CategoryId, kind::Any);
    CGlobalObjectManager::m_fnGetGlobalObjectManager()->m_fnAddTargetObject(this);
}

CGlobalReceiver::~CGlobalReceiver() {
    CGlobalObjectManager::m_fnGetGlobalObjectManager()->m_fnRemoveTargetObject(this);
}

void CGlobalReceiver::SearchIfAsked() {
    if (!m_bSearches) {
        return;
    }
    CGlobalObjectManager* pManager = CGlobalObjectManager::m_fnGetGlobalObjectManager();
    pManager->m_fnSetCommunicateObjectType(CategoryId, kind::ChangeTracker);
    pManager->m_fnFirst();
}

CChangeTracker::CChangeTracker() : CGlobalReceiver(kind::ChangeTracker, false) {
    AddInterface<IChangeTracker>(this);
}

int CChangeTracker::SetChanged(int nChanged) {
    trace::BusCall("51", IChangeTracker::Id, 3, {nChanged});
    return 1;
}

CChangeReceiver::CChangeReceiver(bool bSearches)
    : CGlobalReceiver(kind::ChangeReceiver, bSearches), m_second(*this) {
    AddInterface<IChangeReceiver>(this);
    AddInterface<IChangeReceiver2>(&m_second);
}

int CChangeReceiver::OnChanged(CListenerObject* pPageObjects) {
    trace::BusCall("38", IChangeReceiver::Id, 1, {PageObjectsArgument(pPageObjects)});
    SearchIfAsked();
    return 1;
}

int CChangeReceiver::CSecond::OnChanged(CListenerObject* pPageObjects, int nReserved) {
    trace::BusCall("38", IChangeReceiver2::Id, 1, {PageObjectsArgument(pPageObjects), nReserved});
    m_owner.SearchIfAsked();
    return 1;
}

CRedrawReceiver::CRedrawReceiver(bool bSearches) : CGlobalReceiver(kind::RedrawReceiver, bSearches) {
    AddInterface<IRedrawReceiver>(this);
}

int CRedrawReceiver::OnRedrawn(CListenerObject* pPageObjects) {
    trace::BusCall("45", IRedrawReceiver::Id, 1, {PageObjectsArgument(pPageObjects)});
    SearchIfAsked();
    return 1;
}
