// Guards round drawing objects of the C interface.
#pragma once

#include <windows.h>

/// A memory context for its own life; null inside when none can be had.
class [[nodiscard]] CMemoryContext {
  public:
    CMemoryContext() : m_hDC(::CreateCompatibleDC(nullptr)) {}
    ~CMemoryContext() {
        if (m_hDC) {
            ::DeleteDC(m_hDC);
        }
    }
    CMemoryContext(const CMemoryContext&) = delete;
    CMemoryContext& operator=(const CMemoryContext&) = delete;
    HDC Get() const { return m_hDC; }

  private:
    HDC m_hDC;
};

/// Keeps an object selected for its own life.
class [[nodiscard]] CSelectScope {
  public:
    CSelectScope(HDC hDC, HGDIOBJ hObject) : m_hDC(hDC), m_hBefore(::SelectObject(hDC, hObject)) {}
    ~CSelectScope() { ::SelectObject(m_hDC, m_hBefore); }
    CSelectScope(const CSelectScope&) = delete;
    CSelectScope& operator=(const CSelectScope&) = delete;

  private:
    HDC m_hDC;
    HGDIOBJ m_hBefore;
};
