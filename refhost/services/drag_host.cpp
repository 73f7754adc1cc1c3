#include "services/drag_host.h"

#include "services/drag_session.h"

int DropText(HWND hWnd, POINT point, const std::string& text, UINT nFormat, DWORD dwKeyState, DWORD dwSource,
             int nPhase, DWORD* pdwEffect) {
    CDragSession::Offer offer;
    offer.strText = text.c_str();
    offer.nFormat = nFormat;
    offer.dwKeyState = dwKeyState;
    offer.point = point;
    offer.dwSource = dwSource;
    DWORD dwEffect = drop_effect::None;
    const int nAnswer = nPhase == drop_phase::Drop
                            ? CDragSession::Drop(hWnd, offer, drop_effect::Copy | drop_effect::Move, dwEffect)
                            : CDragSession::Ask(hWnd, nPhase, offer, dwEffect);
    if (pdwEffect) {
        *pdwEffect = dwEffect;
    }
    return nAnswer;
}

void LeaveDrop(HWND hWnd) { CDragSession::Leave(hWnd); }

DWORD LastDragEffect() { return CDragSession::LastEffect(); }

unsigned DragCount() { return CDragSession::Count(); }
