#include "undo/undo_steps.h"

#include "host/kinds.h"
#include "host/panels.h"
#include "ops/bus.h"

namespace {

void Draw(const UndoRules& rules, CTool& tool, const CCanvas& canvas, const CRefresh& area) {
    if (rules.drawing == undo_rule::Drawing::Plain) {
        area.Repaint(canvas);
    } else {
        area.FlushMarkRepaint(canvas, tool);
    }
}

void Notify(const UndoRules& rules, CTool& tool) {
    if (rules.notices == undo_rule::Notices::None) {
        return;
    }
    if (rules.notices == undo_rule::Notices::SelectorToo) {
        if (IPropertyArea* pArea = bus::FindService<IPropertyArea>(tool, kind::PropertyArea)) {
            pArea->OnObjectsChanged(1);
        }
    }
    NotifyChangedThenRedrawn(tool);
}

} // namespace

void FinishRestoring(const UndoRules& rules, CTool& tool, const CCanvas& canvas, const CRefresh& area) {
    Draw(rules, tool, canvas, area);
    if (rules.page == undo_rule::Page::Last) {
        tool.SyncToolPanel();
    }
    if (rules.panels == undo_rule::Panels::Before) {
        tool.SyncAttributePanels();
    }
    Notify(rules, tool);
    if (rules.panels == undo_rule::Panels::Behind) {
        tool.SyncAttributePanels();
    }
}
