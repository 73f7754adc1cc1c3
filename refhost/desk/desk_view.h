// The canvas window of the desk.
#pragma once

#include "host/vor_view.h"

class CDesk;
struct IToolInput;

/// Hands the view's mouse and key messages to the current tool, in client pixels. It deletes itself with its
/// window.
class CDeskView : public CVorView {
  public:
    /// The desk is not owned and outlives the window.
    explicit CDeskView(CDesk& desk) : m_desk(desk) {}

    /// Makes the window: a child of `pParent`, or a window of its own. On failure the object is gone.
    BOOL CreateWindowOn(CWnd* pParent, int nWidth, int nHeight);

  protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

  private:
    IToolInput* Input() const;
    /// A press takes the focus unless a child of the view has it.
    void TakeFocus();

    CDesk& m_desk;
};
