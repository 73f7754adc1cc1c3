// Lets a tool that another one contains stand in for it on the bus.
#pragma once

#include "host/listener.h"

class CTool;

/// The owner of an embedded tool and how often the tool has been activated for it. While active, the embedded
/// tool is linked to all that its owner is linked to and counts as the active listener.
class CListenerLinker {
  public:
    virtual ~CListenerLinker() = default;
    /// The tool that is linked.
    virtual CTool* GetEmbedded() = 0;

    /// Not owned; null for none.
    void SetOwner(CTool* pOwner) { m_pOwner = pOwner; }
    CTool* GetOwner() const { return m_pOwner; }
    bool IsActive() const { return m_nActivations > 0; }

    /// Nested: the first one links, the last one unlinks.
    void Activate();
    void Deactivate();
    /// Gives the owner's excluded node to the embedded tool; none without an owner.
    void ShareExcludedNode();

  private:
    void TellActive(CListenerObject* pListener);
    void Connect();
    void Disconnect();

    CTool* m_pOwner = nullptr;
    int m_nActivations = 0;
};

/// Shares the excluded node, and keeps the embedded tool active.
class [[nodiscard]] CLinkScope {
  public:
    explicit CLinkScope(CListenerLinker& linker) : m_linker(linker) {
        m_linker.ShareExcludedNode();
        m_linker.Activate();
    }
    ~CLinkScope() { m_linker.Deactivate(); }
    CLinkScope(const CLinkScope&) = delete;
    CLinkScope& operator=(const CLinkScope&) = delete;

  private:
    CListenerLinker& m_linker;
};
