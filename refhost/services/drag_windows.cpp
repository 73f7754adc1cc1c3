#include "services/drag_windows.h"

#include <unordered_map>

#include "services/drag_session.h"

namespace {

struct Source {
    CDragDropSource* pSource; ///< null while a later procedure keeps ours in the window's chain
    WNDPROC pfnOwn;
};

// Both tables are never torn down: objects of static life leave them as the process ends.
std::unordered_map<HWND, CDragDropTarget*>& Targets() {
    static auto* pTargets = new std::unordered_map<HWND, CDragDropTarget*>;
    return *pTargets;
}

std::unordered_map<HWND, Source>& Sources() {
    static auto* pSources = new std::unordered_map<HWND, Source>;
    return *pSources;
}

HWND TopLevelOf(HWND hWnd) {
    while (HWND hParent = drag_windows::ParentOfChild(hWnd)) {
        hWnd = hParent;
    }
    return hWnd;
}

HWND DeepestAt(HWND hWnd, POINT ptScreen) {
    if (!::IsWindowVisible(hWnd)) {
        return nullptr;
    }
    for (;;) {
        POINT point = ptScreen;
        ::ScreenToClient(hWnd, &point);
        HWND hChild = ::ChildWindowFromPoint(hWnd, point);
        if (!hChild || hChild == hWnd) {
            return hChild;
        }
        hWnd = hChild;
    }
}

LRESULT CALLBACK DragProc(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
    const auto source = Sources().find(hWnd);
    if (source == Sources().end()) {
        return ::DefWindowProcA(hWnd, nMessage, wParam, lParam);
    }
    const WNDPROC pfnOwn = source->second.pfnOwn;
    CDragDropSource* const pSource = source->second.pSource;
    if (pSource && CDragSession::Handle(hWnd, pfnOwn, nMessage, wParam, lParam)) {
        return 0;
    }
    if (nMessage == WM_NCDESTROY) {
        CDragSession::SourceGoes(pSource, hWnd);
        Sources().erase(hWnd);
    }
    // The session may have called out, and with that lost the window or its source.
    return ::IsWindow(hWnd) ? ::CallWindowProcA(pfnOwn, hWnd, nMessage, wParam, lParam) : 0;
}

bool IsOurs(HWND hWnd) {
    return ::GetWindowLongPtrA(hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&DragProc);
}

} // namespace

namespace drag_windows {

void AddTarget(HWND hWnd, CDragDropTarget* pTarget) { Targets()[hWnd] = pTarget; }

void RemoveTarget(HWND hWnd, const CDragDropTarget* pTarget) {
    const auto target = Targets().find(hWnd);
    if (target != Targets().end() && target->second == pTarget) {
        Targets().erase(target);
    }
}

CDragDropTarget* TargetOf(HWND hWnd) {
    const auto target = Targets().find(hWnd);
    return target != Targets().end() && ::IsWindow(hWnd) ? target->second : nullptr;
}

void AddSource(HWND hWnd, CDragDropSource* pSource) {
    const auto [source, bNew] = Sources().try_emplace(hWnd, Source{pSource, nullptr});
    source->second.pSource = pSource;
    if (bNew) {
        source->second.pfnOwn = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DragProc)));
    }
}

void RemoveSource(HWND hWnd, const CDragDropSource* pSource) {
    const auto source = Sources().find(hWnd);
    if (source == Sources().end() || source->second.pSource != pSource) {
        return;
    }
    source->second.pSource = nullptr;
    if (!IsOurs(hWnd)) {
        return;
    }
    ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(source->second.pfnOwn));
    Sources().erase(source);
}

CDragDropSource* SourceOf(HWND hWnd) {
    const auto source = Sources().find(hWnd);
    return source != Sources().end() ? source->second.pSource : nullptr;
}

HWND WindowAt(HWND hFirst, POINT ptScreen) {
    HWND hFound = DeepestAt(TopLevelOf(hFirst), ptScreen);
    for (auto target = Targets().begin(); !hFound && target != Targets().end(); ++target) {
        hFound = DeepestAt(TopLevelOf(target->first), ptScreen);
    }
    return hFound;
}

HWND ParentOfChild(HWND hWnd) {
    const bool bChild = (::GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_CHILD) != 0;
    return bChild ? ::GetParent(hWnd) : nullptr;
}

} // namespace drag_windows
