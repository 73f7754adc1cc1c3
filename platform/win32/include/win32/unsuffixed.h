#pragma once

// The names without the letter of the character set. They are functions, so they hide no member of the same
// name.

#include "win32/gdi.h"
#include "win32/kernel.h"
#include "win32/menu.h"
#include "win32/text.h"
#include "win32/window.h"

/// Inlined always, so that the module that calls it is the one beside which the file is looked for.
[[gnu::always_inline]] inline HMODULE LoadLibrary(LPCSTR name) { return LoadLibraryA(name); }
inline HMENU LoadMenu(HINSTANCE module, LPCSTR name) { return LoadMenuA(module, name); }
inline HMODULE GetModuleHandle(LPCSTR name) { return GetModuleHandleA(name); }
inline DWORD GetModuleFileName(HMODULE module, LPSTR path, DWORD size) {
    return GetModuleFileNameA(module, path, size);
}
inline ATOM RegisterClass(const WNDCLASSA* windowClass) { return RegisterClassA(windowClass); }
inline BOOL GetClassInfo(HINSTANCE instance, LPCSTR name, LPWNDCLASSA windowClass) {
    return GetClassInfoA(instance, name, windowClass);
}
inline BOOL UnregisterClass(LPCSTR name, HINSTANCE instance) { return UnregisterClassA(name, instance); }
inline HWND CreateWindowEx(DWORD exStyle, LPCSTR className, LPCSTR name, DWORD style, int x, int y, int width,
                           int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID param) {
    return CreateWindowExA(exStyle, className, name, style, x, y, width, height, parent, menu, instance,
                           param);
}
inline BOOL SetWindowText(HWND window, LPCSTR text) { return SetWindowTextA(window, text); }
inline int GetWindowText(HWND window, LPSTR buffer, int size) { return GetWindowTextA(window, buffer, size); }
inline int GetWindowTextLength(HWND window) { return GetWindowTextLengthA(window); }
inline LONG GetWindowLong(HWND window, int index) { return GetWindowLongA(window, index); }
inline LONG SetWindowLong(HWND window, int index, LONG value) { return SetWindowLongA(window, index, value); }
inline LONG_PTR GetWindowLongPtr(HWND window, int index) { return GetWindowLongPtrA(window, index); }
inline LONG_PTR SetWindowLongPtr(HWND window, int index, LONG_PTR value) {
    return SetWindowLongPtrA(window, index, value);
}
inline DWORD GetClassLong(HWND window, int index) { return GetClassLongA(window, index); }
inline DWORD SetClassLong(HWND window, int index, LONG value) { return SetClassLongA(window, index, value); }
inline ULONG_PTR GetClassLongPtr(HWND window, int index) { return GetClassLongPtrA(window, index); }
inline ULONG_PTR SetClassLongPtr(HWND window, int index, LONG_PTR value) {
    return SetClassLongPtrA(window, index, value);
}
inline LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return SendMessageA(window, message, wParam, lParam);
}
inline LRESULT DefWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}
inline LRESULT CallWindowProc(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}
inline BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return PostMessageA(window, message, wParam, lParam);
}
inline BOOL GetMessage(LPMSG message, HWND window, UINT first, UINT last) {
    return GetMessageA(message, window, first, last);
}
inline BOOL PeekMessage(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
    return PeekMessageA(message, window, first, last, remove);
}
inline LRESULT DispatchMessage(const MSG* message) { return DispatchMessageA(message); }
inline HCURSOR LoadCursor(HINSTANCE instance, LPCSTR name) { return LoadCursorA(instance, name); }
inline int GetObject(HGDIOBJ object, int size, LPVOID out) { return GetObjectA(object, size, out); }
inline HFONT CreateFontIndirect(const LOGFONTA* font) { return CreateFontIndirectA(font); }
inline HFONT CreateFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                        DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                        DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR face) {
    return CreateFontA(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                       outPrecision, clipPrecision, quality, pitchAndFamily, face);
}
inline int GetTextFace(HDC dc, int size, LPSTR face) { return GetTextFaceA(dc, size, face); }
inline BOOL GetTextMetrics(HDC dc, LPTEXTMETRICA metrics) { return GetTextMetricsA(dc, metrics); }
inline BOOL GetTextExtentPoint32(HDC dc, LPCSTR text, int count, LPSIZE size) {
    return GetTextExtentPoint32A(dc, text, count, size);
}
inline BOOL GetTextExtentExPoint(HDC dc, LPCSTR text, int count, int maxExtent, LPINT fit, LPINT dx,
                                 LPSIZE size) {
    return GetTextExtentExPointA(dc, text, count, maxExtent, fit, dx, size);
}
inline BOOL TextOut(HDC dc, int x, int y, LPCSTR text, int count) { return TextOutA(dc, x, y, text, count); }
inline HDC CreateIC(LPCSTR driver, LPCSTR device, LPCSTR output, const DEVMODEA* init) {
    return CreateICA(driver, device, output, init);
}
