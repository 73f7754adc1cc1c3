// The host's global objects that are told after the page's objects changed.
#pragma once

#include "bus/bus_object.h"
#include "host/notifications.h"

/// What the receivers share: each is a target of the global manager from its making to its end.
class CGlobalReceiver : public CBusObject {
  public:
    ~CGlobalReceiver() override;

  protected:
    /// With `bSearches` the receiver searches the global manager each time it is called.
    CGlobalReceiver(int nKind, bool bSearches);
    void SearchIfAsked();

  private:
    bool m_bSearches;
};

/// Kind 51.
class CChangeTracker final : public CGlobalReceiver, public IChangeTracker {
  public:
    CChangeTracker();

    int Reserved1() override { return 0; }
    int Reserved2() override { return 0; }
    int SetChanged(int nChanged) override;
};

/// Kind 38.
class CChangeReceiver final : public CGlobalReceiver, public IChangeReceiver {
  public:
    explicit CChangeReceiver(bool bSearches);

    int OnChanged(CListenerObject* pPageObjects) override;

  private:
    /// The second interface's operation has the first one's name, so it stands apart.
    class CSecond final : public IChangeReceiver2 {
      public:
        explicit CSecond(CChangeReceiver& owner) : m_owner(owner) {}
        int OnChanged(CListenerObject* pPageObjects, int nReserved) override;

      private:
        CChangeReceiver& m_owner;
    };
    CSecond m_second;
};

/// Kind 45.
class CRedrawReceiver final : public CGlobalReceiver, public IRedrawReceiver {
  public:
    explicit CRedrawReceiver(bool bSearches);

    int OnRedrawn(CListenerObject* pPageObjects) override;
};
