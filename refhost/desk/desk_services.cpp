#include "desk/desk_services.h"

#include "desk/desk.h"
#include "desk/tool_catalog.h"
#include "trace/trace.h"

namespace {

constexpr char On[] = "4";

} // namespace

CDocumentService::CDocumentService(CDesk& desk) : m_desk(desk) {
    AddKind(CategoryId, kind::Document);
    AddKind(CategoryId, kind::Any);
    AddInterface<IDocumentService>(this);
    AddInterface<ICurrentToolService>(this);
    AddInterface<IActiveListenerService>(this);
}

CVorDoc* CDocumentService::GetActiveDocument() { return m_desk.Document(); }

CListenerObject* CDocumentService::GetCurrentTool() { return m_desk.ActiveListener(); }

CListenerObject* CDocumentService::GetPropertyObject(const GUID& toolClass) {
    return m_desk.PropertyPage(toolClass);
}

int CDocumentService::SetActiveListener(CListenerObject* pListener) {
    const ToolRow* pRow = FindToolRow(pListener);
    trace::BusCall(On, IActiveListenerService::Id, 1,
                   {pRow ? trace::Value(std::string(pRow->identity.pszClass))
                         : trace::Value(trace::Pointer{pListener != nullptr})});
    m_desk.SetActiveListener(pListener);
    return 1;
}
