// The base of the host's own objects on the bus.
#pragma once

#include <vector>

#include "host/kinds.h"
#include "host/listener.h"

/// Answers kinds and interfaces from two tables that the derived class fills, less what is masked.
class CBusObject : public CListenerObject {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;

  protected:
    /// A kind that is there already is not added twice.
    void AddKind(const GUID& category, int nKind);
    void RemoveKind(const GUID& category, int nKind);
    /// The interface's address within the object; `Interface::Id` names it.
    template <class Interface>
    void AddInterface(Interface* pInterface) {
        m_interfaces.push_back({Interface::Id, pInterface});
    }

  private:
    struct KindRow {
        GUID category;
        int nKind;
    };
    struct InterfaceRow {
        GUID id;
        void* pInterface;
    };
    bool Lacks(const GUID& iid) const;

    std::vector<KindRow> m_kinds;
    std::vector<InterfaceRow> m_interfaces;
};
