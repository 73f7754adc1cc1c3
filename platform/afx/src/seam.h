#pragma once

// What the framework needs of the system beneath it beyond the C interface: one implementation a system, in
// linux/ and windows/. There, too, AfxRawStart is installed in what loads modules.

namespace afx {

/// Whether an extension module that is attached now is to be refused.
bool RefusesAttach();
/// +1: a wait cursor begins; -1: it ends.
void TellWaitCursor(int nChange);

} // namespace afx
