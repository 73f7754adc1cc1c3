// What the host's libraries know of buffers beyond the contract.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "host/buffer.h"
#include "platform/pixels.h"

namespace buffer_host {

/// Bytes that may be read behind the last pixel of every buffer, so that rows can be read a machine word at a
/// time.
inline constexpr std::size_t ReadablePadding = 4;

/// A buffer's pixels; they hold until the buffer is freed. Rows stand directly behind each other.
struct View {
    std::uint8_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int unit = 0; ///< bytes per pixel

    std::size_t RowBytes() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(unit); }
    std::uint8_t* Row(int y) const { return pixels + RowBytes() * static_cast<std::size_t>(y); }
};

/// The buffer's pixels without counting a lock; `pixels` is null for a bad handle.
View Look(HBUF32 hBuf);
/// Whether a buffer may have that size: sides from 1 to 32,767, and no more than 2^27 pixels.
bool IsSize(int nWidth, int nHeight);

/// Pixels of the host's own, laid out as a buffer's, that no handle leads to. They count as pixels of the
/// process, not as buffers. Without pixels when the size is out of range or memory is short.
struct OwnPixels {
    OwnPixels() = default;
    OwnPixels(int nUnit, int nWidth, int nHeight);

    View view;
    platform::PixelArray memory;
};

/// Goes up whenever a buffer's pixels may have been written from outside: at every lock.
std::uint32_t LockCount();
/// The buffers alive in the process.
std::size_t BufferCount();

} // namespace buffer_host

/// Owns one buffer.
class CBufferPtr {
  public:
    CBufferPtr() = default;
    explicit CBufferPtr(HBUF32 hBuf) : m_hBuf(hBuf) {}
    CBufferPtr(CBufferPtr&& other) noexcept : m_hBuf(other.Release()) {}
    CBufferPtr& operator=(CBufferPtr&& other) noexcept {
        Reset(other.Release());
        return *this;
    }
    ~CBufferPtr() { Reset(); }

    HBUF32 Get() const { return m_hBuf; }
    explicit operator bool() const { return m_hBuf != 0; }
    [[nodiscard]] HBUF32 Release() { return std::exchange(m_hBuf, 0); }
    void Reset(HBUF32 hBuf = 0) {
        if (m_hBuf != 0 && m_hBuf != hBuf) {
            buf32Free(m_hBuf);
        }
        m_hBuf = hBuf;
    }

  private:
    HBUF32 m_hBuf = 0;
};
