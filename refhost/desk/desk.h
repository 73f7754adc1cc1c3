// The host's desk: the document and its view, the tools, and the host's own objects on the bus.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desk/desk_clipboard.h"
#include "desk/desk_services.h"
#include "desk/desk_view.h"
#include "desk/page_objects.h"
#include "desk/page_recorder.h"
#include "desk/panel_values.h"
#include "desk/property_page.h"
#include "desk/receivers.h"
#include "desk/told_record.h"
#include "host/img_doc.h"
#include "host/tool_category.h"

/// Which page is showing, that is, answers kind 1.
enum class PanelChoice { Auto, Object, Text, ObjectAndText, Composed, Missing };

/// One desk with one page. It owns the document, the tools that it received, and its objects on the bus; the
/// view's window owns the view. Whoever ends a desk that has tools calls `Close` while the module is still
/// loaded.
class CDesk : public IToolCategory, private IPageSelection {
  public:
    /// Throws std::bad_alloc when there is no memory for its objects.
    CDesk();
    ~CDesk();
    CDesk(const CDesk&) = delete;
    CDesk& operator=(const CDesk&) = delete;

    /// Makes the view: a child of `pParent`, or a window of its own. False when it cannot be made.
    bool CreateView(CWnd* pParent);
    /// Empties the undo stack and leaves document and tools, in this order.
    void Close();
    /// Leaves the tools alone; the page stays.
    void DropTools();

    /// A new page (document units) at a zoom; the view gets its size in client pixels, cut to whole ones.
    /// The base image is dark grey. Undo, excluded node and an open editor go; the current tool stays. False
    /// when there is no memory: the page is there without its base image or the view's cache, or, without a
    /// document, the former page stays.
    bool NewPage(int nWidth, int nHeight, double dZoom);
    CVorDoc* Document() const { return m_pDoc.get(); }
    CDeskView* View() const { return m_pView; }
    void OnViewGone() { m_pView = nullptr; }
    /// The document takes the image (24-bit, 0 for none) over; the source base image goes.
    void SetBaseImage(HBUF32 hImage);
    /// Composes the part of the page afresh that the document rectangle covers.
    void RefreshDocRect(const CRect& rcDoc);

    int AddTool(CListenerObject* pTool) override;
    const std::vector<CListenerObject*>& Tools() const { return m_tools; }
    /// By class name; null when there is none.
    CListenerObject* FindTool(const std::string& className) const;
    CListenerObject* CurrentTool() const { return m_pCurrent; }
    /// The host's switch: the old tool is left, then the new one (null for none) is current and entered.
    void SwitchTool(CListenerObject* pTool, int nRedraw);
    /// What the document service answers as the current tool; a switch sets it.
    CListenerObject* ActiveListener() const { return m_pActive; }
    void SetActiveListener(CListenerObject* pListener) { m_pActive = pListener; }
    /// Told to every tool. Null for none.
    void SetExcludedNode(CImgNode* pNode);
    CImgNode* ExcludedNode() const { return m_pExcluded; }
    /// The tool that becomes current when the page of that kind (7 or 12) is told `nPage`; an empty name for
    /// none.
    void SetHandover(int nKind, int nPage, const std::string& className);

    CPanelValues& Panels() { return m_values; }
    const CToldRecord& Told() const { return m_told; }
    void ShowPanel(PanelChoice choice);
    /// The kind of the page that is showing, 0 for none.
    int ShownPanel() const { return m_nShown; }
    /// The page kind that the tool pairs with, 0 for none.
    int PanelKindOf(CListenerObject* pTool) const;
    CListenerObject* PropertyPage(const GUID& toolClass);
    /// Another property object for the class: a page kind, 0 for none.
    void SetPropertyKind(const GUID& toolClass, int nKind);
    CPageObjects& PageObjects() { return m_pageObjects; }
    CDeskClipboard& Clipboard() { return m_clipboard; }
    /// One more global receiver of kind 38 or 45; false for another kind, and without memory.
    bool AddReceiver(int nKind, bool bSearches);

    /// An interface of a listener, or null; also for a null listener.
    template <class Interface>
    static Interface* Query(CListenerObject* pObject) {
        void* pInterface = nullptr;
        if (!pObject || !pObject->QueryInterface(Interface::Id, &pInterface, nullptr)) {
            return nullptr;
        }
        return static_cast<Interface*>(pInterface);
    }

  private:
    void OnPageSelected(int nKind, int nPage) override;
    void LinkTool(CListenerObject* pTool);
    void Activate(CListenerObject* pTool, CListenerObject* pOther, int nActivate, int nRedraw);
    bool ReplaceDocument(std::unique_ptr<CVorDoc> pDoc);
    bool KeepReceiver(std::unique_ptr<CGlobalReceiver> pReceiver);
    void ChooseShownPage();
    CPropertyPage* PageOfKind(int nKind);
    void ShowMarks();

    CPanelValues m_values;
    CToldRecord m_told;
    std::unique_ptr<CVorDoc> m_pDoc;
    CDeskView* m_pView = nullptr; ///< its window owns it

    CDocumentService m_service;
    CPropertyPage m_objectPage;
    CPropertyPage m_textPage;
    CPropertyPage m_composedPage;
    CPageObjects m_pageObjects;
    CDeskClipboard m_clipboard;
    std::vector<std::unique_ptr<CGlobalReceiver>> m_receivers;
    std::vector<CListenerObject*> m_busObjects; ///< what every tool is linked with, in this order

    std::vector<CListenerObject*> m_tools; ///< owned, in the order received
    CListenerObject* m_pCurrent = nullptr;
    CListenerObject* m_pActive = nullptr;
    CImgNode* m_pExcluded = nullptr;
    std::map<std::pair<int, int>, std::string> m_handovers;
    std::map<std::string, int> m_propertyKinds; ///< by class GUID in text
    PanelChoice m_panelChoice = PanelChoice::Auto;
    int m_nShown = 0;
};
