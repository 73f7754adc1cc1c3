#include "ops/cursors.h"

#include "ops/canvas.h"

void ShowCursor(CListenerObject& seeker, int nCursorId) {
    const CCanvas canvas(seeker);
    if (!canvas) {
        return;
    }
    HCURSOR hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(nCursorId));
    SetCursor(hCursor);
    SetClassLongPtrA(canvas.View().m_hWnd, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(hCursor));
}
