// What targets take from the clipboard and sources put there.
#include <cstring>
#include <optional>

#include "host/drag_drop.h"
#include "services/drag_session.h"

namespace {

class [[nodiscard]] CClipboardScope {
  public:
    explicit CClipboardScope(HWND hWnd) : m_bOpen(::OpenClipboard(hWnd) != FALSE) {}
    ~CClipboardScope() {
        if (m_bOpen) {
            ::CloseClipboard();
        }
    }
    CClipboardScope(const CClipboardScope&) = delete;
    CClipboardScope& operator=(const CClipboardScope&) = delete;
    bool IsOpen() const { return m_bOpen; }

  private:
    bool m_bOpen;
};

/// The clipboard's text up to its first zero; nothing when it has none.
std::optional<CString> ReadText(HWND hWnd) {
    const CClipboardScope clipboard(hWnd);
    HGLOBAL hBlock = clipboard.IsOpen() ? ::GetClipboardData(DropFormatText) : nullptr;
    const char* pszText = static_cast<const char*>(hBlock ? ::GlobalLock(hBlock) : nullptr);
    if (!pszText) {
        return std::nullopt;
    }
    const CString strText(pszText, static_cast<int>(::strnlen(pszText, ::GlobalSize(hBlock))));
    ::GlobalUnlock(hBlock);
    return strText;
}

/// A block with the text and its zero, the caller's; null when memory is short.
HGLOBAL BlockOf(const CString& strText) {
    const std::size_t nBytes = static_cast<std::size_t>(strText.GetLength()) + 1;
    HGLOBAL hBlock = ::GlobalAlloc(GMEM_MOVEABLE, nBytes);
    if (hBlock) {
        std::memcpy(::GlobalLock(hBlock), static_cast<LPCSTR>(strText), nBytes);
        ::GlobalUnlock(hBlock);
    }
    return hBlock;
}

/// On success the block is the clipboard's.
bool PutOnClipboard(HWND hWnd, HGLOBAL hBlock) {
    const CClipboardScope clipboard(hWnd);
    return clipboard.IsOpen() && ::EmptyClipboard() && ::SetClipboardData(DropFormatText, hBlock);
}

} // namespace

int CDragDropTarget::m_fnIsPasteFromClipboardEnabled(CPoint& /*point*/) {
    return m_nDropEnabled != 0 && ::IsClipboardFormatAvailable(DropFormatText);
}

int CDragDropTarget::m_fnPasteClipboardData(CPoint& point) {
    if (CDragSession::EnabledTarget(m_hDropWnd) != this) {
        return 0;
    }
    const std::optional<CString> text = ReadText(m_hDropWnd);
    if (!text) {
        return 0;
    }
    CDragSession::Offer offer;
    offer.strText = *text;
    offer.point = point;
    DWORD dwEffect = drop_effect::None;
    return CDragSession::Drop(m_hDropWnd, offer, drop_effect::Copy | drop_effect::Move, dwEffect) == 1;
}

int CDragDropSource::m_fnIsCopyToClipboardEnabled(CPoint& point) {
    return m_nDragEnabled != 0 && m_fnOnPrepareDrag(point) == 1;
}

int CDragDropSource::m_fnCopyDataToClipboard(CPoint& point) {
    // The source may be gone after it was asked.
    const HWND hWnd = m_hDragWnd;
    CString strText;
    if (m_nDragEnabled == 0 || m_fnOnPrepareDragData_CF_TEXT(point, strText) != 1 ||
        *static_cast<LPCSTR>(strText) == '\0') {
        return 0;
    }
    HGLOBAL hBlock = BlockOf(strText);
    if (!hBlock) {
        return 0;
    }
    if (PutOnClipboard(hWnd, hBlock)) {
        return 1;
    }
    ::GlobalFree(hBlock);
    return 0;
}
