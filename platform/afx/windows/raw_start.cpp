// Stands in every extension module: the compiler's start-up code calls this before the module's constructors.
#include "afxdll_.h"

extern "C" BOOL WINAPI DllEntryPoint(HINSTANCE, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AfxRawStart();
    }
    return TRUE;
}
