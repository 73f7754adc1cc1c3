#include "bus/masks.h"

#include <algorithm>
#include <vector>

namespace {

struct KindMask {
    GUID category;
    int nKind;
};
bool operator==(const KindMask& a, const KindMask& b) {
    return a.nKind == b.nKind && a.category == b.category;
}

struct InterfaceMask {
    KindMask kind;
    GUID iid;
};
bool operator==(const InterfaceMask& a, const InterfaceMask& b) { return a.kind == b.kind && a.iid == b.iid; }

struct Masks {
    std::vector<KindMask> kinds;
    std::vector<InterfaceMask> interfaces;
};

Masks& All() {
    static Masks masks;
    return masks;
}

template <class T>
bool Holds(const std::vector<T>& masks, const T& mask) {
    return std::find(masks.begin(), masks.end(), mask) != masks.end();
}

template <class T>
void AddOnce(std::vector<T>& masks, const T& mask) {
    if (!Holds(masks, mask)) {
        masks.push_back(mask);
    }
}

} // namespace

namespace bus {

void MaskKind(const GUID& category, int nKind) { AddOnce(All().kinds, {category, nKind}); }

void UnmaskKind(const GUID& category, int nKind) { std::erase(All().kinds, KindMask{category, nKind}); }

void MaskInterface(const GUID& category, int nKind, const GUID& iid) {
    AddOnce(All().interfaces, {{category, nKind}, iid});
}

void UnmaskInterface(const GUID& category, int nKind, const GUID& iid) {
    std::erase(All().interfaces, InterfaceMask{{category, nKind}, iid});
}

void ClearMasks() { All() = Masks{}; }

bool IsKindMasked(const GUID& category, int nKind) {
    return !All().kinds.empty() && Holds(All().kinds, {category, nKind});
}

bool IsInterfaceMasked(const GUID& category, int nKind, const GUID& iid) {
    return Holds(All().interfaces, {{category, nKind}, iid});
}

bool HasInterfaceMasks() { return !All().interfaces.empty(); }

} // namespace bus
