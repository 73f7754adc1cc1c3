#include "ops/commands/panels.h"

#include "host/document_service.h"
#include "host/panels.h"
#include "host/tool_ids.h"
#include "ops/bus.h"
#include "ops/canvas.h"
#include "ops/commands/panel_values.h"
#include "ops/selection_class.h"

namespace {

/// What follows once the page is chosen.
enum class Then { Stop, Reset, Fill, FillText };

struct PageChoice {
    int nPage;
    Then then;
};

// `bObject` and `bText` tell whether the page that is showing is the object page and the text page.
PageChoice ChoosePage(int nClass, bool bObject, bool bText) {
    switch (nClass) {
    case selection_class::OneText:
    case selection_class::SeveralTexts:
        if (bObject) {
            return {0, Then::Reset};
        }
        return {1, bText ? Then::FillText : Then::Reset};
    case selection_class::OneOther:
    case selection_class::SeveralOthers:
        if (bObject) {
            return {1, Then::Fill};
        }
        return {bText ? 0 : 1, Then::Reset};
    case selection_class::Mixed: return {bObject || bText ? 0 : 1, Then::Stop};
    default: return {1, Then::Reset};
    }
}

/// The page within the object page, and within the text page, that suits a tool.
int ObjectPageFor(CListenerObject& tool) {
    if (bus::IsOfKind(tool, tool_kind::Display)) {
        return 2;
    }
    if (bus::IsOfKind(tool, tool_kind::Shadow)) {
        return 3;
    }
    return bus::IsOfKind(tool, tool_kind::FrameBase) ? 1 : 0;
}

int TextPageFor(CListenerObject& tool) {
    if (bus::IsOfKind(tool, tool_kind::Display)) {
        return 1;
    }
    return bus::IsOfKind(tool, tool_kind::Shadow) ? 2 : 0;
}

// Shows the tool's page on its property object. False when the interface that the object's kind calls for is
// missing.
bool ShowToolPage(CListenerObject& tool, CListenerObject& property) {
    if (bus::IsOfKind(property, kind::ObjectPage)) {
        IObjectPage* pPage = bus::Query<IObjectPage>(&property);
        return pPage && (pPage->SelectPage(ObjectPageFor(tool)), true);
    }
    if (bus::IsOfKind(property, kind::TextPage)) {
        ITextAttributePanel* pPage = bus::Query<ITextAttributePanel>(&property);
        return pPage && (pPage->SelectPage(TextPageFor(tool)), true);
    }
    if (bus::IsOfKind(property, kind::ComposedPage)) {
        IPropertyArea* pArea = bus::Query<IPropertyArea>(&property);
        return pArea && (pArea->OnObjectsChanged(1), true);
    }
    return true;
}

bool FillPanels(CTool& tool, CListenerObject& page, bool bTextValues) {
    const CCanvas canvas(tool);
    if (!canvas.HasDocument()) {
        return false;
    }
    if (bTextValues && !panel_values::ShowText(page, canvas.Selection())) {
        return false;
    }
    panel_values::ShowDisplay(page, canvas.Selection());
    panel_values::ShowShadow(page, canvas.Selection());
    if (!bus::IsOfKind(tool, tool_kind::FrameBase)) {
        return true;
    }
    CListenerObject* pPage = bus::FindObject(tool, CategoryId, kind::PropertyArea);
    return pPage && panel_values::ShowFrame(*pPage, canvas.Selection());
}

} // namespace

int panels::SyncAttributePanels(CTool& tool) {
    const int nClass = tool.ClassifySelection();
    CListenerObject* pPage = bus::FindObject(tool, CategoryId, kind::PropertyArea);
    if (!pPage) {
        return 1;
    }
    IPropertyArea* pArea = bus::Query<IPropertyArea>(pPage);
    if (!pArea) {
        return 0;
    }
    const PageChoice choice =
        ChoosePage(nClass, bus::IsOfKind(*pPage, kind::ObjectPage), bus::IsOfKind(*pPage, kind::TextPage));
    pArea->ShowPage(choice.nPage);
    if (choice.then == Then::Reset) {
        tool.ResetHost();
    }
    if (choice.then == Then::Reset || choice.then == Then::Stop) {
        return 1;
    }
    return FillPanels(tool, *pPage, choice.then == Then::FillText) ? 1 : 0;
}

int panels::SyncToolPanel(CTool& tool) {
    ICurrentToolService* pService = bus::FindService<ICurrentToolService>(tool, kind::Document);
    CListenerObject* pProperty = pService ? pService->GetPropertyObject(tool.GetToolClassId()) : nullptr;
    if (!pProperty || !ShowToolPage(tool, *pProperty)) {
        return 0;
    }
    tool.SyncAttributePanels();
    return 1;
}

int panels::ResetHost(CTool& tool) {
    if (IHostReset* pReset = bus::FindService<IHostReset>(tool, kind::PropertyArea)) {
        pReset->Reset(0);
    }
    return 1;
}
