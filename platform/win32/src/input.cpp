#include "input_state.h"

#include "platform/input.h"

#include <bitset>

namespace win32 {

constexpr int KeyCount = 256;
constexpr SHORT KeyIsDown = static_cast<SHORT>(0x8000);

namespace {

std::bitset<KeyCount> g_asyncKeys;
std::bitset<KeyCount> g_syncKeys;
POINT g_pointer = {0, 0};

bool IsKey(WPARAM key) { return key < KeyCount; }

void SetKey(std::bitset<KeyCount>& keys, WPARAM key, bool down) {
    if (IsKey(key)) {
        keys[key] = down;
    }
}

SHORT StateOf(const std::bitset<KeyCount>& keys, int key) {
    return IsKey(static_cast<WPARAM>(key)) && keys[static_cast<size_t>(key)] ? KeyIsDown : 0;
}

} // namespace

void NoteKeyMessage(UINT message, WPARAM key) {
    if (message == WM_KEYDOWN || message == WM_KEYUP) {
        SetKey(g_syncKeys, key, message == WM_KEYDOWN);
    }
}

void ResetKeys() {
    g_asyncKeys.reset();
    g_syncKeys.reset();
}

} // namespace win32

using namespace win32;

void platform::SetAsyncKey(int vk, bool down) { SetKey(g_asyncKeys, static_cast<WPARAM>(vk), down); }

void platform::SetSyncKey(int vk, bool down) { SetKey(g_syncKeys, static_cast<WPARAM>(vk), down); }

void platform::SetPointer(POINT screen) { g_pointer = screen; }

SHORT GetAsyncKeyState(int key) { return StateOf(g_asyncKeys, key); }

SHORT GetKeyState(int key) { return StateOf(g_syncKeys, key); }

BOOL GetCursorPos(LPPOINT point) {
    if (!point) {
        return FALSE;
    }
    *point = g_pointer;
    return TRUE;
}

BOOL SetCursorPos(int x, int y) {
    g_pointer = {x, y};
    return TRUE;
}
