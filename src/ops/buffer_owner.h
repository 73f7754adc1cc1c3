// A pixel buffer that is freed unless it is handed on.
#pragma once

#include "host/buffer.h"

class [[nodiscard]] CBufferOwner {
  public:
    /// Allocates a cleared buffer; owns nothing when that fails.
    CBufferOwner(int nBits, int nWidth, int nHeight) {
        buf32Alloc(&m_hBuf, nBits, nWidth, nHeight, 1, nullptr);
    }
    ~CBufferOwner() {
        if (m_hBuf) {
            buf32Free(m_hBuf);
        }
    }
    CBufferOwner(const CBufferOwner&) = delete;
    CBufferOwner& operator=(const CBufferOwner&) = delete;

    explicit operator bool() const { return m_hBuf != 0; }
    HBUF32 Get() const { return m_hBuf; }
    /// Gives the buffer to the caller.
    HBUF32 Release() {
        const HBUF32 hBuf = m_hBuf;
        m_hBuf = 0;
        return hBuf;
    }

  private:
    HBUF32 m_hBuf = 0;
};
