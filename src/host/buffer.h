// The buffer library: pixel buffers behind checked 32-bit handles.
#pragma once

#include <cstdint>

/// Handle of a pixel buffer; 0 is none. A stale handle makes every call answer 0.
using HBUF32 = std::int32_t;

/// Lock modes of `buf32Lock`.
inline constexpr int BufReadWrite = 3;

/// Allocates a buffer of `nWidth` by `nHeight` pixels of `nBits` (8, 24 or 32) bits. Rows stand directly
/// behind each other without padding; 24-bit pixels are blue, green, red. `nFill` is 1 to clear the pixels to
/// zero. `pReserved` may be null and receives 0. Answers 1, or 0 when a side is out of range (1 to
/// 32,767), the pixels are more than 2^27, or memory or the host's room for pixels is out.
int buf32Alloc(HBUF32* phBuf, int nBits, int nWidth, int nHeight, int nFill, int* pReserved);
/// Gives the address of the first pixel and counts a lock. Null for a bad handle.
void* buf32Lock(HBUF32 hBuf, int nMode);
/// Takes one lock back. Answers 1, or 0 for a bad handle or one that is not locked.
int buf32Unlock(HBUF32 hBuf);
/// Frees the buffer. Answers 1, or 0 for a bad handle.
int buf32Free(HBUF32 hBuf);
/// A copy of the buffer, owned by the caller; 0 on failure.
HBUF32 buf32DupBuf(HBUF32 hBuf);
/// Width, height and bytes per pixel; each pointer may be null. Answers 1, or 0 for a bad handle.
int buf32GetWHU(HBUF32 hBuf, int* pnWidth, int* pnHeight, int* pnUnit);

/// The buffer library's operations on whole pictures.
class CBuf {
  public:
    /// A new 8-bit or 24-bit buffer of that size with the picture resampled over every source pixel; the old
    /// one stays. `nMode` is 2 and `nKeep` 1 at every call. 0 for a bad handle, a size out of range or when
    /// memory is out.
    static HBUF32 Resize(HBUF32 hBuf, int nWidth, int nHeight, int nMode, int nKeep);
};
