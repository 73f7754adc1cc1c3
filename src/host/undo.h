// The undo library: events, and the manager that owns them.
#pragma once

#include <cstddef>
#include <memory>

#include <afxtempl.h>
#include <afxwin.h>

class CImgNode;
class CImgNodeList;
struct IProject_Method2;
struct tagNMTTDISPIFNOA;

/// One recorded change. Its virtual operations stand behind the five of CObject in a fixed order.
class CUndoEvent : public CObject {
    DECLARE_DYNAMIC(CUndoEvent)

  public:
    /// Answers null when the allocation fails, so that `new` yields a null pointer.
    static void* operator new(std::size_t nSize) noexcept;
    static void operator delete(void* pEvent) noexcept;

    CUndoEvent();
    ~CUndoEvent() override;

    virtual BOOL IsDummyUndo();
    /// TRUE when the event can absorb `pNext`.
    virtual BOOL Accumulate(CUndoEvent* pNext);
    virtual BOOL SetUndo(IProject_Method2* pProject, CImgNode* pNode, int nFlag);
    virtual BOOL SetUndo(IProject_Method2* pProject, CImgNodeList& nodes, int nFlag);
    virtual BOOL SetUndo(IProject_Method2* pProject, int nFlag);
    /// Puts the saved state back. FALSE when nothing was restored.
    virtual BOOL Undo();
    virtual BOOL Redo();
    /// Releases what the event owns.
    virtual void Free();
    virtual void Cancel();
    virtual void GetRedrawRect(CRect* pRect);
    virtual void GetRedrawRect(CRect& rect);
    virtual BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText);

    /// Whether the manager may ask this event to absorb the next one.
    void SetAccumulate(BOOL bAccumulate) { m_bAccumulate = bAccumulate; }
    BOOL IsAccumulating() const { return m_bAccumulate; }
    /// The string id of the description that the host shows, 0 for none.
    void m_fnSetUndoEventDescriptionText(UINT nId) { m_nDescriptionId = nId; }
    UINT GetStrID() const { return m_nDescriptionId; }

  private:
    BOOL m_bAccumulate = FALSE;
    UINT m_nDescriptionId = 0;
};

using CUndoEventList = CList<CUndoEvent*, CUndoEvent*>;

/// The manager of the undo and redo stacks. It owns every event that it was given and drops.
class CUndoMgr {
  public:
    CUndoMgr();
    ~CUndoMgr();

    /// Takes the event over: onto the undo stack, which empties the redo stack, or into the open pack.
    /// `pEvent` keeps its value. `bRecord` is TRUE at every call. Answers TRUE, or FALSE for a null event.
    BOOL AddUndoEvent(CUndoEvent*& pEvent, BOOL bRecord);
    /// Opens a pack: events go into `pList`, the caller's, until it is closed. Packs do not nest; a second
    /// opening is refused.
    void BeginPackUndoEvent(CUndoEventList* pList);
    /// Closes the pack and returns its list, whose events are the caller's; null when none is open.
    CUndoEventList* EndPackUndoEvent();

    /// Undoes or redoes the newest event and moves it to the other stack, whatever the event answers. FALSE
    /// when there is none or when the event restored nothing.
    BOOL Undo();
    BOOL Redo();
    /// Destroys every event of both stacks.
    void Clear();
    /// The events, newest first; `nIndex` counts from 0. Null beyond the end.
    CUndoEvent* GetUndoEvent(int nIndex) const;
    CUndoEvent* GetRedoEvent(int nIndex) const;

  private:
    CUndoEventList m_undo; ///< newest at the head
    CUndoEventList m_redo;
    CUndoEventList* m_pPack = nullptr;
};

/// The one manager; never null.
CUndoMgr* GetUndoMgr();
