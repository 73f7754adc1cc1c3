#include "desk/desk.h"

#include <algorithm>
#include <new>

#include "buffer/buffer_host.h"
#include "desk/guid_text.h"
#include "desk/tool_catalog.h"
#include "host/tool_interfaces.h"
#include "host/undo.h"
#include "image/picture_node.h"
#include "image/view_host.h"
#include "platform/faults.h"
#include "trace/trace.h"

namespace {

constexpr COLORREF StartBase = RGB(0x50, 0x50, 0x50);

} // namespace

CDesk::CDesk()
    : m_service(*this), m_objectPage(kind::ObjectPage, {&m_values, &m_told, this}),
      m_textPage(kind::TextPage, {&m_values, &m_told, this}),
      m_composedPage(kind::ComposedPage, {&m_values, &m_told, this}),
      m_clipboard(*this), m_busObjects{&m_service,      &m_objectPage,  &m_textPage,
                                       &m_composedPage, &m_pageObjects, &m_clipboard} {
    const bool bReceivers = KeepReceiver(std::make_unique<CChangeTracker>()) &&
                            AddReceiver(kind::ChangeReceiver, false) &&
                            AddReceiver(kind::RedrawReceiver, false);
    if (!bReceivers) {
        throw std::bad_alloc();
    }
    ChooseShownPage();
}

CDesk::~CDesk() { Close(); }

bool CDesk::CreateView(CWnd* pParent) {
    m_pView = new CDeskView(*this);
    CDeskView* pView = m_pView;
    if (!pView || !pView->CreateWindowOn(pParent, 1, 1)) {
        m_pView = nullptr;
        return false;
    }
    CViewHost::SetRecomposedHook(*pView, [this](CVorView&) { ShowMarks(); });
    return true;
}

void CDesk::Close() {
    trace::CQuietScope quiet;
    SwitchTool(nullptr, 0);
    GetUndoMgr()->Clear();
    if (m_pView) {
        m_pView->DestroyWindow();
    }
    m_pDoc.reset();
    m_pageObjects.SetDocument(nullptr);
    DropTools();
}

void CDesk::DropTools() {
    SwitchTool(nullptr, 0);
    m_pExcluded = nullptr;
    const std::vector<CListenerObject*> tools = std::move(m_tools);
    m_tools.clear();
    for (CListenerObject* pTool : tools) {
        delete pTool;
    }
}

bool CDesk::NewPage(int nWidth, int nHeight, double dZoom) {
    trace::CQuietScope quiet;
    auto pDoc = std::make_unique<CVorDoc>(nWidth, nHeight);
    if (!pDoc) {
        return false;
    }
    const CToldRecord told = m_told;
    Activate(m_pCurrent, m_pCurrent, 0, 0);
    GetUndoMgr()->Clear();
    SetExcludedNode(nullptr);
    const bool bBase = ReplaceDocument(std::move(pDoc));
    Activate(m_pCurrent, nullptr, 1, 0);
    m_told = told;
    const bool bView = !m_pView || CViewHost::SetAll(*m_pView, static_cast<int>(nWidth * dZoom),
                                                     static_cast<int>(nHeight * dZoom), dZoom, CPoint(0, 0));
    return bBase && bView;
}

bool CDesk::ReplaceDocument(std::unique_ptr<CVorDoc> pDoc) {
    if (m_pView) {
        if (m_pDoc) {
            m_pDoc->RemoveView(m_pView);
        }
        pDoc->AddView(m_pView);
    }
    m_pDoc = std::move(pDoc);
    m_pageObjects.SetDocument(m_pDoc.get());
    // The former page's pixels have made room.
    Picture base;
    const bool bBase = SolidPicture(StartBase, m_pDoc->PageWidth(), m_pDoc->PageHeight(), base);
    m_pDoc->SetBaseImage(base.image.Release());
    return bBase;
}

void CDesk::SetBaseImage(HBUF32 hImage) {
    {
        trace::CQuietScope quiet;
        const CBufferPtr former(m_pDoc->GetBaseImage());
        m_pDoc->SetBaseImage(hImage);
        m_pDoc->m_fnSetSrcBaseImage(0);
    }
    if (m_pView) {
        CViewHost::RecomposeAll(*m_pView);
    }
}

void CDesk::RefreshDocRect(const CRect& rcDoc) {
    if (!m_pView) {
        return;
    }
    {
        trace::CQuietScope quiet;
        CRect rcClient;
        m_pView->DocRectToView(rcDoc, rcClient);
        m_pView->m_fnFlushCacheRect(rcClient);
    }
    ShowMarks();
}

void CDesk::ShowMarks() {
    IToolObjectOps* pOps = Query<IToolObjectOps>(m_pCurrent);
    if (pOps && m_pDoc && !m_pDoc->GetActList()->IsEmpty()) {
        pOps->ShowSelectionMarks(1);
    }
}

// The tool is taken over even when the fault makes the answer a refusal: the module ignores it.
int CDesk::AddTool(CListenerObject* pTool) {
    if (!pTool) {
        return 0;
    }
    m_tools.push_back(pTool);
    LinkTool(pTool);
    if (IToolLink* pLink = Query<IToolLink>(pTool)) {
        pLink->SetExcludedNode(m_pExcluded);
    }
    return platform::FaultTrips("addtool") ? 0 : 1;
}

void CDesk::LinkTool(CListenerObject* pTool) {
    for (CListenerObject* pObject : m_busObjects) {
        pTool->m_fnAddTargetObject(pObject);
        pObject->m_fnAddTargetObject(pTool);
    }
}

CListenerObject* CDesk::FindTool(const std::string& className) const {
    const ToolRow* pRow = FindToolRow(className);
    const auto found = std::find_if(m_tools.begin(), m_tools.end(), [pRow](CListenerObject* pTool) {
        return pRow && FindToolRow(pTool) == pRow;
    });
    return found == m_tools.end() ? nullptr : *found;
}

void CDesk::SwitchTool(CListenerObject* pTool, int nRedraw) {
    CListenerObject* pOld = m_pCurrent;
    if (pOld) {
        Activate(pOld, pOld, 0, nRedraw);
    }
    m_pCurrent = pTool;
    m_pActive = pTool;
    if (m_panelChoice == PanelChoice::Auto) {
        ChooseShownPage();
    }
    if (pTool) {
        Activate(pTool, pOld, 1, nRedraw);
    }
}

void CDesk::Activate(CListenerObject* pTool, CListenerObject* pOther, int nActivate, int nRedraw) {
    if (IToolObjectOps* pOps = Query<IToolObjectOps>(pTool)) {
        pOps->OnToolActivate(pOther, nActivate, nRedraw);
    }
}

void CDesk::SetExcludedNode(CImgNode* pNode) {
    m_pExcluded = pNode;
    for (CListenerObject* pTool : m_tools) {
        if (IToolLink* pLink = Query<IToolLink>(pTool)) {
            pLink->SetExcludedNode(pNode);
        }
    }
}

void CDesk::SetHandover(int nKind, int nPage, const std::string& className) {
    if (className.empty()) {
        m_handovers.erase({nKind, nPage});
    } else {
        m_handovers[{nKind, nPage}] = className;
    }
}

void CDesk::OnPageSelected(int nKind, int nPage) {
    const auto found = m_handovers.find({nKind, nPage});
    if (found == m_handovers.end()) {
        return;
    }
    CListenerObject* pTool = FindTool(found->second);
    if (pTool && pTool != m_pCurrent) {
        SwitchTool(pTool, 1);
    }
}

void CDesk::ShowPanel(PanelChoice choice) {
    m_panelChoice = choice;
    ChooseShownPage();
}

int CDesk::PanelKindOf(CListenerObject* pTool) const {
    const ToolRow* pRow = FindToolRow(pTool);
    if (!pRow) {
        return 0;
    }
    if (!pRow->bPanelAsShown) {
        return pRow->identity.nPanelKind;
    }
    return m_nShown ? m_nShown : kind::ComposedPage;
}

void CDesk::ChooseShownPage() {
    int nKind = 0;
    switch (m_panelChoice) {
    case PanelChoice::Auto: nKind = PanelKindOf(m_pCurrent); break;
    case PanelChoice::Object:
    case PanelChoice::ObjectAndText: nKind = kind::ObjectPage; break;
    case PanelChoice::Text: nKind = kind::TextPage; break;
    case PanelChoice::Composed: nKind = kind::ComposedPage; break;
    case PanelChoice::Missing: break;
    }
    if (m_panelChoice == PanelChoice::Auto && !PageOfKind(nKind)) {
        nKind = kind::ObjectPage;
    }
    m_nShown = nKind;
    m_objectPage.SetTextToo(m_panelChoice == PanelChoice::ObjectAndText);
    for (CPropertyPage* pPage : {&m_objectPage, &m_textPage, &m_composedPage}) {
        pPage->SetShowing(pPage->Kind() == nKind);
    }
}

CPropertyPage* CDesk::PageOfKind(int nKind) {
    for (CPropertyPage* pPage : {&m_objectPage, &m_textPage, &m_composedPage}) {
        if (pPage->Kind() == nKind) {
            return pPage;
        }
    }
    return nullptr;
}

CListenerObject* CDesk::PropertyPage(const GUID& toolClass) {
    const auto set = m_propertyKinds.find(GuidText(toolClass));
    const ToolRow* pRow = FindToolRow(toolClass);
    const int nKind = set != m_propertyKinds.end() ? set->second : pRow ? pRow->nPropertyKind : 0;
    CPropertyPage* pPage = PageOfKind(nKind);
    if (pPage) {
        pPage->HandedOver();
    }
    return pPage;
}

void CDesk::SetPropertyKind(const GUID& toolClass, int nKind) {
    m_propertyKinds[GuidText(toolClass)] = nKind;
}

bool CDesk::AddReceiver(int nKind, bool bSearches) {
    switch (nKind) {
    case kind::ChangeReceiver: return KeepReceiver(std::make_unique<CChangeReceiver>(bSearches));
    case kind::RedrawReceiver: return KeepReceiver(std::make_unique<CRedrawReceiver>(bSearches));
    default: return false;
    }
}

bool CDesk::KeepReceiver(std::unique_ptr<CGlobalReceiver> pReceiver) {
    if (pReceiver) {
        m_receivers.push_back(std::move(pReceiver));
        return true;
    }
    return false;
}
