// The start and the end of the module.
#include "ops/resource_module.h"

#include <new>

#include <afxext.h>

namespace {

AFX_EXTENSION_MODULE g_extensionModule = {};

BOOL Attach(HINSTANCE hInstance) {
    if (!AfxInitExtensionModule(g_extensionModule, hInstance)) {
        return FALSE;
    }
    SetResourceModule(::LoadLibraryA("PradixRC.dll"));
    // The record joins the framework's resource chain and belongs to it; a module without one works all the
    // same.
    static_cast<void>(new CDynLinkLibrary(g_extensionModule));
    return TRUE;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        return Attach(hInstance);
    }
    if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_extensionModule);
    }
    return TRUE;
}
