// What a frame node knows of the component that it was made from.
#pragma once

#include <cstddef>

#include <windows.h>

/// A frame's parameter. Whoever makes one gives it to a frame node, which owns it from then on.
class CFrameParam {
  public:
    /// Answers null when the allocation fails, so that `new` yields a null pointer.
    static void* operator new(std::size_t nSize) noexcept;
    static void operator delete(void* pParam) noexcept;

    /// Takes the component's frame rectangle (component units). `pImage` and `pMask` are null and `nReserved`
    /// is 1 at every call. Answers 1, or 0 when it fails or without a rectangle; then nothing changes.
    int SetSource(void* pImage, void* pMask, tagRECT* pRect, int nReserved);
    /// Copies out the rectangle that the frame's picture fills: the one given last, empty before.
    void GetSourceFitRect(tagRECT* pRect) const;

  private:
    RECT m_rcFit{};
};
