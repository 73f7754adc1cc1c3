// The steps of undo and redo, which are the same for every event but for its row in the table.
#pragma once

#include <optional>

#include "host/undo.h"
#include "ops/canvas.h"
#include "ops/refresh.h"
#include "undo/undo_rules.h"

/// Which of the two runs.
enum class Way { Undo, Redo };
/// What a class answers of its change: it could not be made, there was nothing to change, or it stands.
enum class Restored { Failed, Nothing, Done };

/// Draws what was restored and tells those whom the rules name.
void FinishRestoring(const UndoRules& rules, CTool& tool, const CCanvas& canvas, const CRefresh& area);

/// An event of the module. `TEvent` has the fields m_pOwnerTool and m_bUndone and gives
/// - `Restored Restore(Way, CTool&, const CCanvas&, CRefresh&)`: puts the saved state back and keeps the live
///   one; the owner tool may change with it. It adds to the area what it measures itself.
/// - `CRect Area(CTool&, const CCanvas&)`: what its change touches, where that is measured here and is not
/// the
///   selection with its marks.
/// - `bool IsReady(CTool&, const CCanvas&)`, where more must be there than the rules say.
/// It keeps no data, so that a class's fields stand in the order of the contract.
template <class TEvent>
class CUndoSteps : public CUndoEvent {
  public:
    BOOL Accumulate(CUndoEvent*) final { return Rules().next == undo_rule::Next::Absorbs; }
    /// FALSE, with nothing restored, when the owner tool or what the rules need is missing.
    BOOL Undo() final {
        CUndoEvent::Undo();
        return Run(Way::Undo);
    }
    BOOL Redo() final {
        if (Rules().redo == undo_rule::Redo::IsUndo) {
            return Undo();
        }
        CUndoEvent::Redo();
        return Run(Way::Redo);
    }
    void Cancel() final { Free(); }
    BOOL ToolTipNeedText(tagNMTTDISPIFNOA* pText) final {
        return Rules().toolTip == undo_rule::ToolTip::Empty ? TRUE : CUndoEvent::ToolTipNeedText(pText);
    }

    BOOL IsUndone() const { return Self().m_bUndone; }
    CTool* OwnerTool() const { return Self().m_pOwnerTool; }

  protected:
    bool IsReady(CTool&, const CCanvas&) const { return true; }
    CRect Area(CTool& tool, const CCanvas&) const { return SelectionOutlineRect(tool); }

  private:
    TEvent& Self() { return static_cast<TEvent&>(*this); }
    const TEvent& Self() const { return static_cast<const TEvent&>(*this); }
    const UndoRules& Rules() const { return RulesOf(GetRuntimeClass()->m_lpszClassName); }

    BOOL Run(Way way);
    BOOL RunOn(const UndoRules& rules, Way way, CTool& tool, const CCanvas& canvas);
    void TurnFlag(undo_rule::Flag flag, Way way);
    static bool HasNeeded(undo_rule::Needs needs, const CCanvas& canvas);
};

template <class TEvent>
BOOL CUndoSteps<TEvent>::Run(Way way) {
    using undo_rule::Flag;
    const UndoRules& rules = Rules();
    std::optional<CWaitCursor> wait;
    if (rules.wait == undo_rule::Wait::AtStart) {
        wait.emplace();
    }
    if (rules.flag == Flag::FlipsBeforeGuard || rules.flag == Flag::TellsUndoneBeforeGuard) {
        TurnFlag(rules.flag, way);
    }
    CTool* const pTool = Self().m_pOwnerTool;
    if (!pTool) {
        return FALSE;
    }
    const CCanvas canvas(*pTool);
    if (!HasNeeded(rules.needs, canvas) || !Self().IsReady(*pTool, canvas)) {
        return FALSE;
    }
    if (rules.flag == Flag::FlipsAfterGuard) {
        TurnFlag(rules.flag, way);
    }
    return RunOn(rules, way, *pTool, canvas);
}

template <class TEvent>
BOOL CUndoSteps<TEvent>::RunOn(const UndoRules& rules, Way way, CTool& tool, const CCanvas& canvas) {
    using undo_rule::Area;
    if (rules.page == undo_rule::Page::First) {
        tool.SyncToolPanel();
    }
    std::optional<CWaitCursor> wait;
    if (rules.wait == undo_rule::Wait::BehindPage) {
        wait.emplace();
    }
    CRefresh area;
    if (rules.area == Area::Round) {
        area.Add(Self().Area(tool, canvas));
    }
    const Restored restored = Self().Restore(way, tool, canvas, area);
    if (restored != Restored::Done) {
        return restored == Restored::Nothing;
    }
    if (rules.area != Area::InChange) {
        area.Add(Self().Area(tool, canvas));
    }
    FinishRestoring(rules, tool, canvas, area);
    if (rules.flag == undo_rule::Flag::TellsRedoneAtEnd) {
        TurnFlag(rules.flag, way);
    }
    return TRUE;
}

template <class TEvent>
void CUndoSteps<TEvent>::TurnFlag(undo_rule::Flag flag, Way way) {
    BOOL& bUndone = Self().m_bUndone;
    switch (flag) {
    case undo_rule::Flag::TellsUndoneBeforeGuard: bUndone = way == Way::Undo; break;
    case undo_rule::Flag::TellsRedoneAtEnd: bUndone = way == Way::Redo; break;
    default: bUndone = !bUndone; break;
    }
}

template <class TEvent>
bool CUndoSteps<TEvent>::HasNeeded(undo_rule::Needs needs, const CCanvas& canvas) {
    switch (needs) {
    case undo_rule::Needs::Document: return canvas.HasDocument();
    case undo_rule::Needs::View: return static_cast<bool>(canvas);
    default: return true;
    }
}
