// How a property page tells the record of calls what it was told.
#pragma once

#include <initializer_list>
#include <string>

#include "desk/panel_values.h"
#include "desk/told_record.h"

/// Is told that a tool asked for a page of the object or text panel: at clicks on objects and when a tool
/// shows its page.
struct IPageSelection {
    virtual void OnPageSelected(int nKind, int nPage) = 0;

  protected:
    ~IPageSelection() = default;
};

/// What the pages of a desk share. Nothing of it is owned.
struct PageSurroundings {
    CPanelValues* pValues;
    CToldRecord* pTold;
    IPageSelection* pSelection;
};

/// One page's voice: its calls stand in the trace under the kind by which it was last found.
class CPageRecorder {
  public:
    CPageRecorder(int nKind, const PageSurroundings& around) : m_around(around) { FoundBy(nKind); }

    void FoundBy(int nKind) { m_on = std::to_string(nKind); }

    /// Records one call of an operation that tells the page something, or asks it.
    void Told(const GUID& iid, int nOp, std::initializer_list<trace::Value> args) const {
        trace::BusCall(m_on, iid, nOp, args);
        m_around.pTold->Tell(iid, nOp, args);
    }
    CPanelValues& Values() const { return *m_around.pValues; }
    void PageSelected(int nKind, int nPage) const { m_around.pSelection->OnPageSelected(nKind, nPage); }

  private:
    std::string m_on;
    PageSurroundings m_around;
};
