#pragma once

#include <windows.h>

namespace win32 {

/// Notes in the synchronous key state that this key message was taken or dispatched; other messages change
/// nothing.
void NoteKeyMessage(UINT message, WPARAM key);
void ResetKeys();

} // namespace win32
