#pragma once

#include <windows.h>

namespace platform {

/// Sets one key's state as GetAsyncKeyState (hardware) or GetKeyState (as of the last message) tells it.
/// Virtual keys outside 0 to 255 are ignored.
void SetAsyncKey(int vk, bool down);
void SetSyncKey(int vk, bool down);
/// Moves the pointer (screen pixels) without a message.
void SetPointer(POINT screen);
/// Posts WM_KEYDOWN or WM_KEYUP: the asynchronous state changes now, the other when the message is taken from
/// the queue. Neither changes when the posting fails.
bool PostKey(HWND window, UINT message, WPARAM vk, LPARAM lParam);
/// The posted messages that wait; paint and timer messages, made on demand, do not count.
size_t QueuedMessages();
/// Empties the queue and both key states.
void ResetInput();
/// The IDC_ number of a cursor from LoadCursorA; 0 for any other.
unsigned CursorId(HCURSOR cursor);

} // namespace platform
