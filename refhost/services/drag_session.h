// The one drag that may run, from the press that is held back to the drop.
#pragma once

#include <optional>

#include "host/drag_drop.h"

/// Calls out to targets and sources, any of which may destroy windows and delete targets and sources: nothing
/// of them is kept over such a call, all are found again by window.
class CDragSession {
  public:
    /// A text as it is offered to a target.
    struct Offer {
        CString strText = {};
        UINT nFormat = DropFormatText;
        DWORD dwKeyState = 0; ///< MK_ bits
        CPoint point;         ///< client pixels of the target's window
        DWORD dwSource = drop_source::Foreign;
    };

    static void SetTargetWindow(CDragDropTarget& target, HWND hWnd);
    static void SetSourceWindow(CDragDropSource& source, HWND hWnd);
    /// The window goes, or its source: gives a drag from it up. The window's own target is not told, because
    /// it may be half gone. `pSource` may be null.
    static void SourceGoes(CDragDropSource* pSource, HWND hWnd);

    /// What a message to a drag window means to the session. False: the window's own procedure, `pfnOwn`, is
    /// to have it.
    static bool Handle(HWND hWnd, WNDPROC pfnOwn, UINT nMessage, WPARAM wParam, LPARAM lParam);

    static CDragDropTarget* EnabledTarget(HWND hWnd);
    /// Tells the window's target of an offer, whose text it gets to see itself. Its answer, or -1 when the
    /// window has no enabled target.
    static int Ask(HWND hWnd, int nPhase, Offer& offer, DWORD& dwEffect);
    /// Asks with drop_phase::Drop and delivers the text when that answers 1, unless the target then means to
    /// do what is not allowed. Answers as Ask, but 0 when a text that was asked for could not be delivered;
    /// `dwEffect` is what was carried out.
    static int Drop(HWND hWnd, Offer& offer, DWORD dwAllowed, DWORD& dwEffect);
    static void Leave(HWND hWnd);

    /// The effect of the last drag that came to its end, and how many did, given up or not.
    static DWORD LastEffect() { return s_dwLastEffect; }
    static unsigned Count() { return s_nCount; }

  private:
    struct Drag {
        HWND hSource;
        WNDPROC pfnOwn;
        CPoint ptPress;   ///< client pixels of the source
        WPARAM pressKeys; ///< the press's MK_ bits
        unsigned nSerial;
        bool bMoving = false; ///< past the press that is held back
        CString strText = {};
        DWORD dwAllowed = drop_effect::None;
        HWND hOver = nullptr; ///< the window whose target was told last
    };

    static CDragDropSource* EnabledSource(HWND hWnd);
    static bool HoldPress(HWND hWnd, WNDPROC pfnOwn, WPARAM wParam, CPoint point);
    static void StepTo(WPARAM wParam, CPoint point);
    static void LetGo(WPARAM wParam, CPoint point);
    static void HandOverClick(const Drag& drag, WPARAM wParam, CPoint point);
    static void GiveUp(bool bTellOwn = true);

    static bool Begin();
    static void Hover(WPARAM wParam, CPoint point);
    static bool EnterTargetAt(CPoint point);
    static Offer OfferFrom(const Drag& drag, WPARAM wParam, CPoint point);
    static bool IsRunning(unsigned nSerial) { return s_drag && s_drag->nSerial == nSerial; }
    static Drag End();

    static std::optional<Drag> s_drag;
    static HWND s_hReleasing; ///< the drag window whose capture the session is giving back
    static unsigned s_nSerial;
    static unsigned s_nCount;
    static DWORD s_dwLastEffect;
};
