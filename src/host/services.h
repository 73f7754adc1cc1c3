// The shared-services library.
#pragma once

#include "host/buffer.h"

/// The host's global services.
class CGlobalAPI {
  public:
    /// Merges `hWork` and `hExtra` (0 for none) into the buffer `hOut`, all 24-bit and of one size.
    /// `nPercent`, 0 to 100, is the strength with which the image shows; `hMask` (8-bit, 0 for none) limits
    /// where `hExtra` covers `hWork`. Answers 1, or 0 when a buffer is bad or the sizes differ; then `hOut`
    /// is unchanged.
    static int m_fnMergeBuf(HBUF32 hOut, HBUF32 hWork, HBUF32 hExtra, int nPercent, HBUF32 hMask);
};

/// Copies the host's default font name, zero-terminated and cut to `nSize` bytes with its zero, into
/// `pszName`. Answers 0, nothing being copied, when the host has none.
int gfnGetDefaultFontNameFromQuorProd(char* pszName, int nSize);
