// Plain text to and from a window: the clipboard, and dragging inside and across windows.
#pragma once

#include <afxwin.h>

/// Drop effects, and the bits of an operation mask.
namespace drop_effect {
inline constexpr DWORD None = 0;
inline constexpr DWORD Copy = 1;
inline constexpr DWORD Move = 2;
} // namespace drop_effect

/// Phases of a drag over a target.
namespace drop_phase {
inline constexpr int Over = 1; ///< the pointer came in or moved
inline constexpr int Drop = 2; ///< the text is let go; the answer decides whether it arrives
} // namespace drop_phase

/// Where dragged text comes from, as the target is told.
namespace drop_source {
inline constexpr DWORD Own = 0;     ///< from the target's own window
inline constexpr DWORD Foreign = 1; ///< from another window, or from the clipboard
} // namespace drop_source

/// The formats of the clipboard.
inline constexpr UINT DropFormatText = 1; ///< CF_TEXT

/// Receives text that is dropped on a window or pasted into it. All points are client pixels of the window.
/// The virtual operations are called back on the window's thread; the texts they get have CR LF line ends and
/// stay the caller's.
class CDragDropTarget {
  public:
    CDragDropTarget() = default;
    CDragDropTarget(const CDragDropTarget&) = delete;
    CDragDropTarget& operator=(const CDragDropTarget&) = delete;

    /// The window that receives drops (not owned; null takes it back). One target a window: a later one
    /// replaces the former. Forgotten by itself when the window goes.
    void m_fnSetDropWindow(CWnd* pWnd);
    /// 1 lets drops and pastes through, 0 (the start) holds them off.
    void m_fnEnableDropOperation(int nEnable);
    /// 1 when dropping is enabled and the clipboard holds text.
    int m_fnIsPasteFromClipboardEnabled(CPoint& point);
    /// Delivers the clipboard's text as a drop at the point: m_fnOnDataArrive with drop_phase::Drop and
    /// drop_source::Foreign, then, when that answers 1, m_fnOnDataArrive_CF_TEXT. Answers 1 when the text was
    /// delivered, else 0.
    int m_fnPasteClipboardData(CPoint& point);

    /// A drag moves over the window, or is let go. `nPhase` is a drop_phase, `nFormat` a clipboard format,
    /// `dwKeyState` MK_ bits, `dwSource` a drop_source. `*pdwEffect` receives a drop_effect. Answers 1 when
    /// the text may arrive (drop_phase::Drop alone), else 0.
    virtual int m_fnOnDataArrive(int nReserved, int nPhase, UINT nFormat, CString& strData, DWORD dwKeyState,
                                 CPoint point, DWORD dwSource, DWORD* pdwEffect);
    /// The text arrives; `*pdwEffect` receives the drop_effect that was carried out.
    virtual void m_fnOnDataArrive_CF_TEXT(int nReserved, CString& strData, DWORD dwReserved,
                                          DWORD* pdwEffect);
    /// The drag left the window or was given up.
    virtual void m_fnOnDragLeave();

  protected:
    ~CDragDropTarget();

  private:
    friend class CDragSession;

    HWND m_hDropWnd = nullptr;
    int m_nDropEnabled = 0;
};

/// Gives text that is dragged from a window or copied from it. All points are client pixels of the window.
class CDragDropSource {
  public:
    CDragDropSource() = default;
    CDragDropSource(const CDragDropSource&) = delete;
    CDragDropSource& operator=(const CDragDropSource&) = delete;

    /// The window that drags begin on (not owned; null takes it back). Forgotten by itself when the window
    /// goes.
    void m_fnSetDragWindow(CWnd* pWnd);
    /// 1 lets drags and copies begin, 0 (the start) holds them off. While enabled, a left press at a point
    /// for which m_fnOnPrepareDrag answers 1 is held back: moving on begins a drag, releasing without that
    /// hands press and release to the window.
    void m_fnEnableDragOperation(int nEnable);
    /// 1 when dragging is enabled and m_fnOnPrepareDrag answers 1 at the point.
    int m_fnIsCopyToClipboardEnabled(CPoint& point);
    /// Asks m_fnOnPrepareDragData_CF_TEXT and puts the text on the clipboard. 1, or 0 when there is none or
    /// memory is short; then the clipboard keeps what it had.
    int m_fnCopyDataToClipboard(CPoint& point);
    /// The drop_effect bits that a drag may end with.
    void m_fnSetAllowedDragOperation(DWORD dwMask);
    void m_fnSetPreferClipboardFormat(UINT nFormat);

    /// 1 when a drag may begin at the point.
    virtual int m_fnOnPrepareDrag(CPoint& point);
    /// The text to drag or copy, with CR LF line ends. 1, or 0 when there is none.
    virtual int m_fnOnPrepareDragData_CF_TEXT(CPoint& point, CString& strData);

  protected:
    ~CDragDropSource();

  private:
    friend class CDragSession;

    HWND m_hDragWnd = nullptr;
    int m_nDragEnabled = 0;
    DWORD m_dwAllowed = drop_effect::None;
    UINT m_nFormat = 0;
};
