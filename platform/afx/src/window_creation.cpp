#include "afxapp.h"
#include "afxwnd.h"

#include "window_creation.h"

#include <array>
#include <cstdio>

namespace afx {

namespace {

CCreationScope* g_pCreation = nullptr;

} // namespace

CCreationScope::CCreationScope(CWnd* pWnd) : m_pWnd(pWnd), m_pOuter(g_pCreation) { g_pCreation = this; }

CCreationScope::~CCreationScope() { g_pCreation = m_pOuter; }

CWnd* CCreationScope::Bind(HWND hWnd) {
    if (!g_pCreation || !g_pCreation->m_pWnd) {
        return nullptr;
    }
    CWnd* const pWnd = g_pCreation->m_pWnd;
    if (!pWnd->Attach(hWnd)) {
        return nullptr;
    }
    g_pCreation->m_pWnd = nullptr;
    return pWnd;
}

} // namespace afx

namespace {

bool IsFrameworkClass(const CREATESTRUCT& cs) {
    WNDCLASSA windowClass;
    return cs.lpszClass && ::GetClassInfoA(cs.hInstance, cs.lpszClass, &windowClass) &&
           windowClass.lpfnWndProc == &AfxWndProc;
}

HWND CreateFrom(const CREATESTRUCT& cs) {
    return ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                             cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
}

} // namespace

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCT cs = {
        lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
        x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs)) {
        return GiveUp(nullptr);
    }
    return IsFrameworkClass(cs) ? CreateOwn(cs) : CreateForeign(cs);
}

BOOL CWnd::GiveUp(HWND hWnd) {
    if (hWnd) {
        ::DestroyWindow(hWnd);
    }
    PostNcDestroy();
    return FALSE;
}

BOOL CWnd::CreateOwn(const CREATESTRUCT& cs) {
    const afx::CCreationScope creation(this);
    const HWND hWnd = CreateFrom(cs);
    // A bound object may have gone with its window already: from here on only an unbound one is touched.
    if (creation.IsBound()) {
        return hWnd != nullptr;
    }
    return GiveUp(hWnd);
}

BOOL CWnd::CreateForeign(const CREATESTRUCT& cs) {
    const afx::CCreationScope nothingToBind(nullptr);
    const HWND hWnd = CreateFrom(cs);
    if (hWnd && TakeOver(hWnd)) {
        return TRUE;
    }
    return GiveUp(hWnd);
}

namespace {

HMENU MenuOfChild(UINT nID) { return reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)); }

} // namespace

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    MenuOfChild(nID), lpParam);
}

BOOL CWnd::Create(LPCSTR lpszClassName, LPCSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, lpParam);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass) {
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(nullptr, IDC_ARROW));
    }
    return cs.lpszClass != nullptr;
}

LPCSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    // Equal values make an equal name, so a class is registered once. The longest name is 89 bytes.
    static std::array<char, 96> name;
    const HINSTANCE hInstance = AfxGetInstanceHandle();
    std::snprintf(name.data(), name.size(), "Afx:%p:%x:%p:%p:%p", static_cast<void*>(hInstance), nClassStyle,
                  static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    WNDCLASSA windowClass = {};
    if (::GetClassInfoA(hInstance, name.data(), &windowClass)) {
        return name.data();
    }
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = &AfxWndProc;
    windowClass.hInstance = hInstance;
    windowClass.hIcon = hIcon;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.lpszClassName = name.data();
    return ::RegisterClassA(&windowClass) != 0 ? name.data() : nullptr;
}
