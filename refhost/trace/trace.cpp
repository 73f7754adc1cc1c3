#include "trace/trace.h"

#include <cstdio>
#include <utility>

#include "host/vor_view.h"
#include "image/node_host.h"
#include "platform/observer.h"

namespace trace {
namespace {

struct State {
    bool bOn = false;
    int nQuiet = 0;
    std::vector<Row> rows;
};

State& Record() {
    static State state;
    return state;
}

/// The other windows are the tools' own.
bool IsView(HWND window) { return dynamic_cast<CVorView*>(CWnd::FromHandlePermanent(window)) != nullptr; }

/// Turns what the view and the wait cursor are told into rows.
class CWindowObserver : public platform::IObserver {
  public:
    void OnInvalidate(HWND window, const RECT* rect, BOOL erase) override {
        if (!IsOn() || !IsView(window)) {
            return;
        }
        if (rect) {
            Call("view", "InvalidateRect", {*rect, static_cast<long long>(erase)});
        } else {
            Call("view", "InvalidateRect", {Pointer{false}, static_cast<long long>(erase)});
        }
    }
    void OnWaitCursor(int change) override {
        if (IsOn()) {
            Call("cursor", change > 0 ? "BeginWaitCursor" : "EndWaitCursor");
        }
    }
};

CWindowObserver& Observer() {
    static CWindowObserver observer;
    return observer;
}

/// {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX} in capitals.
std::string GuidText(const GUID& id) {
    char text[39];
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1, id.Data2,
                  id.Data3, id.Data4[0], id.Data4[1], id.Data4[2], id.Data4[3], id.Data4[4], id.Data4[5],
                  id.Data4[6], id.Data4[7]);
    return text;
}

} // namespace

Node::Node(const CImgNode* pNode) : id(CNodeBookkeeping::IsLive(pNode) ? pNode->m_nId : 0) {}

bool IsOn() {
    const State& state = Record();
    return state.bOn && state.nQuiet == 0;
}

void TurnOn(bool bOn) {
    Record().bOn = bOn;
    platform::SetObserver(bOn ? &Observer() : nullptr);
}

void Call(const char* pszOn, const char* pszOp, std::initializer_list<Value> args) {
    if (IsOn()) {
        Record().rows.push_back({pszOn, {}, pszOp, args});
    }
}

void BusCall(const std::string& on, const GUID& iface, int nOp, std::initializer_list<Value> args) {
    if (IsOn()) {
        Record().rows.push_back({on, GuidText(iface), std::to_string(nOp), args});
    }
}

std::vector<Row> Take() { return std::exchange(Record().rows, {}); }

CQuietScope::CQuietScope() { ++Record().nQuiet; }

CQuietScope::~CQuietScope() { --Record().nQuiet; }

} // namespace trace
