// The host's document service on the bus.
#pragma once

#include "bus/bus_object.h"
#include "host/document_service.h"

class CDesk;

/// Kind 4: the desk's document, the current tool's listener, and the property object of each tool class.
class CDocumentService : public CBusObject,
                         public IDocumentService,
                         public ICurrentToolService,
                         public IActiveListenerService {
  public:
    explicit CDocumentService(CDesk& desk);

    CVorDoc* GetActiveDocument() override;

    int Reserved1() override { return 0; }
    CListenerObject* GetCurrentTool() override;
    CListenerObject* GetPropertyObject(const GUID& toolClass) override;

    int SetActiveListener(CListenerObject* pListener) override;

  private:
    CDesk& m_desk;
};
