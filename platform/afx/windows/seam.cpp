#include "seam.h"

// Here the system itself refuses modules and shows cursors.
bool afx::RefusesAttach() { return false; }

void afx::TellWaitCursor(int) {}
