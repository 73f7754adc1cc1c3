#pragma once

// Extension modules: their classes and resources join those of the program that loads them.

#include "afxwnd.h"

class CDynLinkLibrary;
class CWinApp;
/// Class factories are only handed on.
class COleObjectFactory;

/// A list by its first element; the elements hold the links.
template <class TYPE>
struct CTypedSimpleList {
    TYPE m_pHead;

    TYPE GetHead() const { return m_pHead; }
    BOOL IsEmpty() const { return m_pHead == nullptr; }
};

/// What a process knows of itself and of its extension modules. Nothing in it is owned.
struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    /// The classes entered since the raw start of the module being loaded; else the program's.
    CTypedSimpleList<CRuntimeClass*> m_classList;
    CTypedSimpleList<COleObjectFactory*> m_factoryList;
    /// The lists as they were before that raw start.
    CRuntimeClass* m_pClassInit;
    COleObjectFactory* m_pFactoryInit;
    /// True from a raw start until a module is initialised as an extension.
    BOOL m_bRawStart;
    CTypedSimpleList<CDynLinkLibrary*> m_libraryList;
};

AFX_MODULE_STATE* AfxGetModuleState();

/// An extension module's own record, a zeroed global of it.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

/// The raw start-up hook, run before a module's static constructors: saves and clears the class and factory
/// lists, so that what the module enters stands alone. The framework installs it in the loader.
void AfxRawStart();

/// Moves what the module has entered since its raw start from the module state into its record. FALSE, with
/// the lists as they were before the raw start, on failure.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);

/// Deletes the module's library records (with `bAll`, every module's): its classes and resources are found no
/// more.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// An initialised extension module's place in the chain of libraries, newest first. Made with `new` and owned
/// by the chain: AfxTermExtensionModule deletes it.
class CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    CTypedSimpleList<CRuntimeClass*> m_classList;
    CTypedSimpleList<COleObjectFactory*> m_factoryList;
    CDynLinkLibrary* m_pNextDLL;
};
