#include "afxdll_.h"

#include "seam.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace {

// Constant-initialised: classes are entered before any constructor of this library need have run.
constinit AFX_MODULE_STATE g_moduleState = {};

} // namespace

AFX_MODULE_STATE* AfxGetModuleState() { return &g_moduleState; }

void AfxClassInit(CRuntimeClass* pNewClass) {
    pNewClass->m_pNextClass = g_moduleState.m_classList.m_pHead;
    g_moduleState.m_classList.m_pHead = pNewClass;
}

namespace {

CRuntimeClass* FindClass(CRuntimeClass* pClass, LPCSTR lpszClassName) {
    while (pClass && std::strcmp(pClass->m_lpszClassName, lpszClassName) != 0) {
        pClass = pClass->m_pNextClass;
    }
    return pClass;
}

} // namespace

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName) {
    const AFX_MODULE_STATE& state = g_moduleState;
    if (CRuntimeClass* const pClass = FindClass(state.m_classList.GetHead(), lpszClassName)) {
        return pClass;
    }
    if (CRuntimeClass* const pClass = FindClass(state.m_pClassInit, lpszClassName)) {
        return pClass;
    }
    for (const CDynLinkLibrary* pDLL = state.m_libraryList.GetHead(); pDLL; pDLL = pDLL->m_pNextDLL) {
        if (CRuntimeClass* const pClass = FindClass(pDLL->m_classList.GetHead(), lpszClassName)) {
            return pClass;
        }
    }
    return nullptr;
}

void AfxRawStart() {
    AFX_MODULE_STATE& state = g_moduleState;
    // A module that holds resources alone is never initialised. The next start, which may well be inside the
    // start of another module, must not save the cleared lists over the program's.
    if (state.m_bRawStart) {
        return;
    }
    state.m_bRawStart = TRUE;
    state.m_pClassInit = state.m_classList.GetHead();
    state.m_pFactoryInit = state.m_factoryList.GetHead();
    state.m_classList.m_pHead = nullptr;
    state.m_factoryList.m_pHead = nullptr;
}

struct CEnteredLists {
    CRuntimeClass* pFirstClass = nullptr;
    COleObjectFactory* pFirstFactory = nullptr;
};

namespace {

// Takes what was entered since the raw start and puts the lists from before it back.
CEnteredLists TakeEntered() {
    AFX_MODULE_STATE& state = g_moduleState;
    if (!state.m_bRawStart) {
        return {};
    }
    const CEnteredLists entered = {state.m_classList.GetHead(), state.m_factoryList.GetHead()};
    state.m_bRawStart = FALSE;
    state.m_classList.m_pHead = state.m_pClassInit;
    state.m_factoryList.m_pHead = state.m_pFactoryInit;
    state.m_pClassInit = nullptr;
    state.m_pFactoryInit = nullptr;
    return entered;
}

} // namespace

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    const CEnteredLists entered = TakeEntered();
    if (afx::RefusesAttach()) {
        return FALSE;
    }
    state.hModule = hModule;
    state.hResource = hModule;
    // A module that stayed in memory comes back without entering its classes again: its record still has
    // them.
    if (!state.bInitialized) {
        state.pFirstSharedClass = entered.pFirstClass;
        state.pFirstSharedFactory = entered.pFirstFactory;
        state.bInitialized = TRUE;
    }
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized) {
        return;
    }
    for (CDynLinkLibrary* pDLL = g_moduleState.m_libraryList.GetHead(); pDLL;) {
        CDynLinkLibrary* const pNextDLL = pDLL->m_pNextDLL;
        if (bAll || pDLL->m_hModule == state.hModule) {
            delete pDLL;
        }
        pDLL = pNextDLL;
    }
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_classList{state.pFirstSharedClass},
      m_factoryList{state.pFirstSharedFactory}, m_pNextDLL(g_moduleState.m_libraryList.GetHead()) {
    g_moduleState.m_libraryList.m_pHead = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    CDynLinkLibrary** ppLink = &g_moduleState.m_libraryList.m_pHead;
    while (*ppLink && *ppLink != this) {
        ppLink = &(*ppLink)->m_pNextDLL;
    }
    if (*ppLink == this) {
        *ppLink = m_pNextDLL;
    }
}
