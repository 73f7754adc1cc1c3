// The selection-mask library.
#pragma once

#include "host/transform.h"

/// Makes a soft mask from the hard 8-bit mask in the block's fifth word and leaves it there; the hard mask
/// stays the caller's, the soft one becomes the caller's. The soft mask has the hard one's size and fades
/// over `nSoftness` pixels round its edges; outside the mask counts as empty. 0 softness gives a copy. Every
/// other argument is 0. Answers 1, or 0 for a bad mask, a negative softness or when memory is out; the word
/// is unchanged then.
int sel32SoftEdgeMakeMask(CTxParam* pBlock, int nReserved, int nSoftness, int nReserved1, int nReserved2,
                          int nReserved3, int nReserved4);
