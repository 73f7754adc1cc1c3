// Objects and interfaces that the bus hides for a while.
#pragma once

#include <windows.h>

namespace bus {

/// Searches (`m_fnFirst`, `m_fnNext`) for that kind find nothing from here on. What an object answers itself
/// stays.
void MaskKind(const GUID& category, int nKind);
void UnmaskKind(const GUID& category, int nKind);
/// Bus objects of that kind lack the interface from here on.
void MaskInterface(const GUID& category, int nKind, const GUID& iid);
void UnmaskInterface(const GUID& category, int nKind, const GUID& iid);
void ClearMasks();

bool IsKindMasked(const GUID& category, int nKind);
bool IsInterfaceMasked(const GUID& category, int nKind, const GUID& iid);
/// Whether any interface is masked at all.
bool HasInterfaceMasks();

} // namespace bus
