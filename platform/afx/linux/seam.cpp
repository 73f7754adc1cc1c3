#include "seam.h"
#include "afxdll_.h"

#include "platform/faults.h"
#include "platform/modules.h"
#include "platform/observer.h"

[[maybe_unused]] static const bool g_rawStartInstalled = (platform::SetRawStartHook(&AfxRawStart), true);

bool afx::RefusesAttach() { return platform::FaultTrips("attach"); }

void afx::TellWaitCursor(int nChange) {
    if (platform::IObserver* const pObserver = platform::GetObserver()) {
        pObserver->OnWaitCursor(nChange);
    }
}
