// The record of what the module calls on the host, in order. Off unless a host asks for it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

#include <afxwin.h>

class CImgNode;

namespace trace {

/// A colour argument, printed as #RRGGBB.
struct Color {
    COLORREF value;
};
/// A node argument; kept by its id, because the node may be gone when the record is read. 0 is none, and a
/// node that is gone already.
struct Node {
    Node(const CImgNode* pNode);
    std::uint32_t id;
};
/// Something without a printable value that is there or not.
struct Pointer {
    bool present;
};

using Value = std::variant<long long, double, std::string, RECT, POINT, GUID, Color, Node, Pointer>;

struct Row {
    std::string on;    ///< "view", "undo", "doc", "cursor", … or the kind: "4", "edit:12"
    std::string iface; ///< interface GUID in capitals, or empty
    std::string op;    ///< operation number of an interface, or a name
    std::vector<Value> args;
};

/// Whether calls are being recorded. Cheap enough for every call on a hot path.
bool IsOn();
void TurnOn(bool bOn);
/// Appends a row, unless recording is off or quiet.
void Call(const char* pszOn, const char* pszOp, std::initializer_list<Value> args = {});
void BusCall(const std::string& on, const GUID& iface, int nOp, std::initializer_list<Value> args = {});
/// Removes and returns everything recorded so far.
std::vector<Row> Take();

/// While one lives, nothing is recorded: the host's own work is not the module's.
class [[nodiscard]] CQuietScope {
  public:
    CQuietScope();
    ~CQuietScope();
    CQuietScope(const CQuietScope&) = delete;
    CQuietScope& operator=(const CQuietScope&) = delete;
};

} // namespace trace
