#pragma once

namespace platform {

/// Arms the fault `name` (see FaultTrips): it trips from the (after + 1)-th asking on, or only that one time
/// when `once`. Arming it again replaces the former arming and counts anew.
void ArmFault(const char* name, bool once, unsigned after);
void ClearFaults();
/// Asks whether the named thing is to fail now; counts the asking. False, after one flag test, while nothing
/// is armed.
bool FaultTrips(const char* name);

} // namespace platform
