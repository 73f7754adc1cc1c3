// Moving the selection with the mouse and the arrow keys, with undo.
#pragma once

#include <memory>

#include "host/tool_ids.h"
#include "ops/refresh.h"
#include "tools/tool_core.h"
#include "undo/move_changed_event.h"
#include "undo/recorder.h"

class CToolBase : public CToolCore {
  public:
    ~CToolBase() override;

    void OnSetCursor(CPoint* pPoint) override;
    const GUID& GetToolClassId() override { return tool_class::Base; }

    int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnLButtonUp(UINT nFlags, CPoint point) override;
    int OnMouseMove(UINT nFlags, CPoint point) override;
    int OnRButtonDown(UINT nFlags, CPoint point) override;
    int OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) override;
    int OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags) override;
    int KeepNodeInView(CImgNode* pNode) override;
    int CanRunCommand() override { return IsMoving() ? 0 : CToolCore::CanRunCommand(); }

  protected:
    enum class MoveStep { Interim, Final };

    /// Left press on the selection and not released yet.
    bool IsPressed() const { return m_nButtonHeld == 1; }
    /// The press has become a move.
    bool IsMoving() const { return m_nMoved == 1; }
    /// Any of the four arrow keys is down (asynchronous key state).
    static bool IsArrowKeyHeld();
    /// Another mouse move for the view is queued already.
    bool IsNewerMoveQueued();
    /// Captures the mouse for the view, and lets it go.
    void CaptureMouse();
    static void ReleaseMouse();

    void StartPress(CPoint point);
    int StartMove();
    void StepMove(MoveStep step);
    int FinishMove(CPoint point);
    void CancelMove();

  private:
    static bool IsBeyondThreshold(CSize distance);
    int DragTo(CPoint point);
    void SetAnchor(CImgNode* pAnchor);
    bool CaptureMoveBefore();
    void DragCopies();
    void CopySelectedNodes(const CCanvas& canvas, CNodeRefList& copies);

    CSize WantedDelta(const CCanvas& canvas) const;
    CSize KeptInView(const CCanvas& canvas, CSize delta);
    void MoveNodes(const CCanvas& canvas, CSize delta, CRefresh& refresh);
    void AddMovedArea(CImgNode* pNode, CRefresh& refresh);

    void CountNudgeKey(UINT nChar);
    static bool IsArrowKey(UINT nChar);
    bool IsArrowKeyQueued();
    int StepNudge(const CCanvas& canvas, UINT nChar);
    void AimNudge(const CCanvas& canvas, UINT nChar);
    void FinishNudge();
    bool HasNudgeCapture();

    int m_nButtonHeld = 0;
    int m_nMoved = 0;
    CPoint m_ptPress; ///< client pixels; so the next
    CPoint m_ptLast;
    CNodeRefList m_movedNodes{10}; ///< the selection at the start of a move
    int m_nPressOnSelection = 1;   ///< 1 when the press landed on what was already selected
    int m_nCopied = 0;             ///< 1 once the gesture has copied the selection
    int m_nSnapshotTaken = 0;
    CUndoRecorder<CMoveChangedUndoEvent> m_moveRecorder;
    std::unique_ptr<CMoveChangedUndoEvent> m_pMoveAfter;
    int m_nNudgeKey = 0;
    int m_nNudgeRepeat = 0;
    CUndoRecorder<CMoveChangedUndoEvent> m_nudgeRecorder;
    CImgNode* m_pAnchor = nullptr;  ///< the first selected node at the press
    CSize m_anchorOffset;           ///< document units: press point minus the anchor's position
    std::uint32_t m_nNudgePage = 0; ///< identity of the page that the nudge's capture is of
};
