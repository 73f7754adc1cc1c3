// The host's object clipboard on the bus.
#pragma once

#include "bus/bus_object.h"
#include "desk/panel_values.h"
#include "host/object_clipboard.h"

/// Kind 12 of the edit category. It answers what a person has set and copies nothing.
class CDeskClipboard : public CBusObject, public IObjectClipboard {
  public:
    /// The values are not owned.
    explicit CDeskClipboard(const CPanelValues& values);

    int CanCopy(CPoint point) override;
    int Copy(CPoint point) override;
    int CanPaste(CPoint point) override;
    int Paste(CPoint point, int nFlag) override;

  private:
    const CPanelValues& m_values;
};
