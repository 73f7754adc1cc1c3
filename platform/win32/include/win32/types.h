#pragma once

// The basic types: 32-bit where the C interface says 32 bits, pointer-sized where it says pointer-sized.

#include <cstddef>
#include <cstdint>
#include <cstring>

#define CALLBACK
#define WINAPI
#define APIENTRY WINAPI
#define PASCAL
#define CONST const
#define VOID void

typedef int BOOL;
typedef char CHAR;
typedef unsigned char BYTE;
typedef unsigned char UCHAR;
typedef short SHORT;
typedef unsigned short WORD;
typedef unsigned short USHORT;
typedef int INT;
typedef unsigned int UINT;
typedef std::int32_t LONG;
typedef std::uint32_t ULONG;
typedef std::uint32_t DWORD;
typedef float FLOAT;
typedef std::int64_t LONGLONG;
typedef std::uint64_t ULONGLONG;

typedef std::intptr_t INT_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef std::uintptr_t DWORD_PTR;
typedef std::size_t SIZE_T;

typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef WORD ATOM;
typedef DWORD COLORREF;

typedef void* PVOID;
typedef void* LPVOID;
typedef const void* LPCVOID;
typedef char* LPSTR;
typedef char* LPTSTR;
typedef const char* LPCSTR;
typedef const char* LPCTSTR;
typedef char TCHAR;
typedef BYTE* LPBYTE;
typedef WORD* LPWORD;
typedef DWORD* LPDWORD;
typedef LONG* LPLONG;
typedef int* LPINT;
typedef BOOL* LPBOOL;

// Macros, because picture libraries' headers define the same names the same way where they are missing.
#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

// Handles are opaque; their values are 32 bits wide and come from checked tables.
typedef void* HANDLE;
typedef void* HGDIOBJ;
typedef HANDLE HGLOBAL;
typedef struct HWND__* HWND;
typedef struct HDC__* HDC;
typedef struct HPEN__* HPEN;
typedef struct HBRUSH__* HBRUSH;
typedef struct HBITMAP__* HBITMAP;
typedef struct HFONT__* HFONT;
typedef struct HRGN__* HRGN;
typedef struct HPALETTE__* HPALETTE;
typedef struct HMENU__* HMENU;
typedef struct HICON__* HICON;
typedef struct HICON__* HCURSOR;
typedef struct HINSTANCE__* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef struct HRSRC__* HRSRC;
// Of the one type that may be cast to any other function's.
typedef void(WINAPI* FARPROC)();

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT, *LPPOINT;

typedef struct tagSIZE {
    LONG cx;
    LONG cy;
} SIZE, *LPSIZE;

/// Left and top belong to the rectangle, right and bottom do not.
typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT, *LPRECT;
typedef const RECT* LPCRECT;

typedef struct tagMSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
} MSG, *LPMSG;

typedef struct _GUID {
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
} GUID, IID, CLSID;
typedef const GUID& REFGUID;
typedef const IID& REFIID;
typedef const CLSID& REFCLSID;
static_assert(sizeof(GUID) == 16);

inline BOOL IsEqualGUID(REFGUID a, REFGUID b) { return std::memcmp(&a, &b, sizeof(GUID)) == 0; }
inline bool operator==(REFGUID a, REFGUID b) { return IsEqualGUID(a, b) != FALSE; }

constexpr WORD LOWORD(ULONG_PTR value) { return static_cast<WORD>(value & 0xFFFF); }
constexpr WORD HIWORD(ULONG_PTR value) { return static_cast<WORD>((value >> 16) & 0xFFFF); }
constexpr BYTE LOBYTE(ULONG_PTR value) { return static_cast<BYTE>(value & 0xFF); }
constexpr BYTE HIBYTE(ULONG_PTR value) { return static_cast<BYTE>((value >> 8) & 0xFF); }
constexpr WORD MAKEWORD(ULONG_PTR low, ULONG_PTR high) {
    return static_cast<WORD>((low & 0xFF) | ((high & 0xFF) << 8));
}
/// The bits of the two halves; signed, as a coordinate pair in an LPARAM is.
constexpr LONG MAKELONG(ULONG_PTR low, ULONG_PTR high) {
    return static_cast<LONG>(static_cast<DWORD>(low & 0xFFFF) | (static_cast<DWORD>(high & 0xFFFF) << 16));
}
constexpr LPARAM MAKELPARAM(ULONG_PTR low, ULONG_PTR high) {
    return static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
constexpr WPARAM MAKEWPARAM(ULONG_PTR low, ULONG_PTR high) {
    return static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high)));
}
constexpr LRESULT MAKELRESULT(ULONG_PTR low, ULONG_PTR high) { return MAKELPARAM(low, high); }

/// A COLORREF is 0x00BBGGRR.
constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr BYTE GetRValue(COLORREF color) { return static_cast<BYTE>(color); }
constexpr BYTE GetGValue(COLORREF color) { return static_cast<BYTE>(color >> 8); }
constexpr BYTE GetBValue(COLORREF color) { return static_cast<BYTE>(color >> 16); }
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

/// A resource number travels in the place of a name: a pointer below 65536.
inline LPCSTR MAKEINTRESOURCEA(UINT_PTR id) { return reinterpret_cast<LPCSTR>(id & 0xFFFF); }
inline LPCSTR MAKEINTRESOURCE(UINT_PTR id) { return MAKEINTRESOURCEA(id); }
inline bool IS_INTRESOURCE(LPCSTR name) { return (reinterpret_cast<UINT_PTR>(name) >> 16) == 0; }
