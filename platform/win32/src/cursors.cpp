#include "handles.h"

#include "platform/input.h"

#include <algorithm>
#include <array>
#include <utility>

namespace win32 {

// A shared cursor's slot is its place in this list, from 1 on.
constexpr std::array<WORD, 10> SystemCursors = {32512, 32513, 32514, 32515, 32642,
                                                32643, 32644, 32645, 32646, 32648};

namespace {

HCURSOR g_cursor = nullptr;

HCURSOR SystemCursor(WORD id) {
    const auto found = std::find(SystemCursors.begin(), SystemCursors.end(), id);
    if (found == SystemCursors.end()) {
        return nullptr;
    }
    const unsigned slot = static_cast<unsigned>(found - SystemCursors.begin()) + 1;
    return reinterpret_cast<HCURSOR>(HandleValue(HandleKind::Cursor, slot, 1));
}

} // namespace

} // namespace win32

using namespace win32;

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
    const HCURSOR cursor =
        !instance && IS_INTRESOURCE(name) ? SystemCursor(LOWORD(reinterpret_cast<UINT_PTR>(name))) : nullptr;
    if (!cursor) {
        FailWith(ERROR_INVALID_PARAMETER);
    }
    return cursor;
}

unsigned platform::CursorId(HCURSOR cursor) {
    const auto found = std::find_if(SystemCursors.begin(), SystemCursors.end(),
                                    [cursor](WORD id) { return SystemCursor(id) == cursor; });
    return found == SystemCursors.end() ? 0 : *found;
}

HCURSOR SetCursor(HCURSOR cursor) { return std::exchange(g_cursor, cursor); }

HCURSOR GetCursor() { return g_cursor; }
