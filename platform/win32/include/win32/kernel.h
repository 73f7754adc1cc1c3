#pragma once

// Arithmetic, error codes, modules, memory blocks and time.

#include "win32/types.h"

constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_INSUFFICIENT_BUFFER = 122;
constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
constexpr DWORD ERROR_PROC_NOT_FOUND = 127;
constexpr DWORD ERROR_NOT_LOCKED = 158;
constexpr DWORD ERROR_NO_UNICODE_TRANSLATION = 1113;
constexpr DWORD ERROR_DLL_INIT_FAILED = 1114;
constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
constexpr DWORD ERROR_INVALID_MENU_HANDLE = 1401;
constexpr DWORD ERROR_CANNOT_FIND_WND_CLASS = 1407;
constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD ERROR_CLASS_DOES_NOT_EXIST = 1411;
constexpr DWORD ERROR_CLASS_HAS_WINDOWS = 1412;
constexpr DWORD ERROR_INVALID_INDEX = 1413;
constexpr DWORD ERROR_CLIPBOARD_NOT_OPEN = 1418;
constexpr DWORD ERROR_RESOURCE_DATA_NOT_FOUND = 1812;
constexpr DWORD ERROR_RESOURCE_NAME_NOT_FOUND = 1814;

/// The code of the last call that failed; a call that succeeds does not clear it.
DWORD GetLastError();
void SetLastError(DWORD code);

/// number * numerator / denominator in 64 bits, rounded to nearest, halves away from zero.
/// -1 when the denominator is 0 or the result does not fit 32 bits.
int MulDiv(int number, int numerator, int denominator);

constexpr DWORD DLL_PROCESS_DETACH = 0;
constexpr DWORD DLL_PROCESS_ATTACH = 1;
constexpr DWORD MAX_PATH = 260;

/// What a module may define for LoadLibraryA to call. The reason is one of the two above; FALSE refuses the
/// first.
extern "C" __attribute__((visibility("default"))) BOOL WINAPI DllMain(HINSTANCE module, DWORD reason,
                                                                      LPVOID reserved);

/// Opens the named module, or counts one more reference when it is loaded. A name with a slash is a path; a
/// bare name is looked for beside the calling module, then beside the executable. The module's `DllMain`,
/// where it exports one, is told DLL_PROCESS_ATTACH once; when it answers FALSE the module is closed again.
/// Null on failure: error 2 (no such file), 126 (it cannot be loaded), 1114 (it refused).
HMODULE LoadLibraryA(LPCSTR name);
/// Gives one reference back; at the last, DllMain is told DLL_PROCESS_DETACH and the module is closed.
BOOL FreeLibrary(HMODULE module);
/// Null and error 127 when the module exports no such name.
FARPROC GetProcAddress(HMODULE module, LPCSTR name);
/// The handle of a loaded module without counting a reference; a null name means the executable.
HMODULE GetModuleHandleA(LPCSTR name);
/// Copies the full path, cut to `size` with its closing zero; answers the length copied, 0 for a bad handle.
DWORD GetModuleFileNameA(HMODULE module, LPSTR path, DWORD size);

constexpr UINT GMEM_FIXED = 0x0000;
constexpr UINT GMEM_MOVEABLE = 0x0002;
constexpr UINT GMEM_ZEROINIT = 0x0040;
constexpr UINT GMEM_DDESHARE = 0x2000;
constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
constexpr UINT GPTR = GMEM_FIXED | GMEM_ZEROINIT;

/// A block of `size` bytes, below 2 GB, under a 32-bit handle, also for GMEM_FIXED; null when memory is
/// short.
HGLOBAL GlobalAlloc(UINT flags, SIZE_T size);
/// The block's bytes, counting one lock; null for a bad handle.
LPVOID GlobalLock(HGLOBAL block);
/// TRUE while locks remain. FALSE at the last (error 0) and when the block was not locked (error 158).
BOOL GlobalUnlock(HGLOBAL block);
/// Null on success, the handle itself when it is no block's.
HGLOBAL GlobalFree(HGLOBAL block);
SIZE_T GlobalSize(HGLOBAL block);
/// The handle of the block whose bytes start at the address; null and error 6 for any other address.
HGLOBAL GlobalHandle(LPCVOID bytes);

/// Milliseconds of the clock in force (see platform/clock.h).
DWORD GetTickCount();
