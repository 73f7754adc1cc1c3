#include "host/vor_view.h"

#include <cmath>

#include "image/display_cache.h"
#include "image/node_host.h"
#include "image/view_host.h"
#include "trace/trace.h"

namespace {

ViewMap MapOf(const CVorView& view) { return {view.m_dZoom, view.m_ptScroll}; }

/// Whether the rectangle's outline holds the point, its right and bottom edges included.
bool OutlineHolds(const RECT& rect, const CPoint& point) {
    const double left = rect.left;
    const double top = rect.top;
    const double right = rect.right;
    const double bottom = rect.bottom;
    CTxPoint corners[4] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    CTxPoint tested{static_cast<double>(point.x), static_cast<double>(point.y)};
    return PtInBound(tested, corners) != 0;
}

bool IsZoom(double dZoom) { return std::isfinite(dZoom) && dZoom > 0.0; }

} // namespace

BEGIN_MESSAGE_MAP(CVorView, CView)
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

CVorView::CVorView() : m_pCache(std::make_unique<CDisplayCache>()) {}

CVorView::~CVorView() = default;

void CVorView::ViewPointToDoc(const CPoint& ptClient, CPoint& ptDoc) { ptDoc = MapOf(*this).ToDoc(ptClient); }

void CVorView::DocPointToView(const CPoint& ptDoc, CPoint& ptClient) {
    ptClient = MapOf(*this).ToClient(ptDoc);
}

void CVorView::ViewRectToDoc(const CRect& rcClient, CRect& rcDoc) {
    rcDoc = MapOf(*this).RectToDoc(rcClient);
}

void CVorView::DocRectToView(const CRect& rcDoc, CRect& rcClient) {
    rcClient = MapOf(*this).RectToClient(rcDoc);
}

void CVorView::RepaintViewRect(const CRect& rcClient, int nErase) {
    if (trace::IsOn()) {
        trace::Call("view", "RepaintViewRect", {rcClient, static_cast<long long>(nErase)});
    }
    if (!m_hWnd) {
        return;
    }
    const trace::CQuietScope quiet;
    InvalidateRect(&rcClient, nErase == 1);
    UpdateWindow();
}

CImgNode* CVorView::m_fnNodeUnderPt(CPoint& ptClient) {
    const CVorDoc* pDoc = GetVorDoc();
    if (!pDoc) {
        return nullptr;
    }
    CPoint ptDoc;
    ViewPointToDoc(ptClient, ptDoc);
    CNodeBookkeeping::NodesAtPoint(*pDoc, ptDoc, m_pCache->m_hits);
    for (CImgNode* pNode : m_pCache->m_hits) {
        if (pNode->PtInMask(ptDoc) != 0) {
            return pNode;
        }
    }
    return nullptr;
}

CImgNode* CVorView::m_fnSelectedNodeBoundaryUnderPt(CPoint& ptClient) {
    CVorDoc* pDoc = GetVorDoc();
    if (!pDoc) {
        return nullptr;
    }
    const CImgNodeList& selection = *pDoc->GetActList();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        CImgNode* pNode = selection.GetNext(position);
        if (OutlineHolds(MapOf(*this).RectToClient(CNodeBookkeeping::NodeRect(*pNode)), ptClient)) {
            return pNode;
        }
    }
    return nullptr;
}

void CVorView::m_fnFlushCacheRect(CRect& rcClient) {
    if (trace::IsOn()) {
        trace::Call("view", "FlushCacheRect", {rcClient});
    }
    const trace::CQuietScope quiet;
    m_pCache->Compose(GetVorDoc(), MapOf(*this), rcClient);
    if (m_hWnd) {
        InvalidateRect(&rcClient, FALSE);
    }
}

HBITMAP CVorView::m_fnGetDisplayCache(CRect& rcClient) {
    if (trace::IsOn()) {
        trace::Call("view", "GetDisplayCache", {rcClient});
    }
    return m_pCache->CopyOut(rcClient);
}

void CVorView::m_fnUpdateDisplayCache(CPoint& ptClient, HBITMAP hBitmap) {
    if (trace::IsOn()) {
        trace::Call("view", "UpdateDisplayCache", {ptClient});
    }
    m_pCache->CopyIn(ptClient, hBitmap);
}

void CVorView::OnDraw(CDC* pDC) {
    CRect rcClip;
    pDC->GetClipBox(&rcClip);
    m_pCache->Paint(pDC->m_hDC, rcClip);
}

/// The cache covers the whole client area, so nothing is erased.
BOOL CVorView::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void CVorView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    CViewHost::FitCache(*this, cx, cy);
}

void CViewHost::SetRecomposedHook(CVorView& view, RecomposedHook hook) {
    view.m_pCache->m_hook = std::move(hook);
}

bool CViewHost::SetClientSize(CVorView& view, int nWidth, int nHeight) {
    return SetAll(view, nWidth, nHeight, view.m_dZoom, view.m_ptScroll);
}

bool CViewHost::SetZoom(CVorView& view, double dZoom) {
    if (!IsZoom(dZoom)) {
        return false;
    }
    view.m_dZoom = dZoom;
    RecomposeAll(view);
    return true;
}

void CViewHost::SetScroll(CVorView& view, const CPoint& ptDoc) {
    view.m_ptScroll = ptDoc;
    RecomposeAll(view);
}

bool CViewHost::SetAll(CVorView& view, int nWidth, int nHeight, double dZoom, const CPoint& ptDoc) {
    if (!IsZoom(dZoom)) {
        return false;
    }
    view.m_dZoom = dZoom;
    view.m_ptScroll = ptDoc;
    if (ClientSize(view) == CSize(nWidth, nHeight)) {
        RecomposeAll(view);
        return true;
    }
    // The cache first: so the tool's answer to it is not silenced with the window's messages.
    FitCache(view, nWidth, nHeight);
    if (view.m_hWnd) {
        const trace::CQuietScope quiet;
        view.SetWindowPos(nullptr, 0, 0, nWidth, nHeight, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        view.InvalidateRect(nullptr, FALSE);
    }
    return ClientSize(view) == CSize(nWidth, nHeight);
}

bool CViewHost::FitCache(CVorView& view, int nWidth, int nHeight) {
    if (ClientSize(view) == CSize(nWidth, nHeight)) {
        return true;
    }
    if (!view.m_pCache->Resize(nWidth, nHeight)) {
        return false;
    }
    RecomposeAll(view);
    return true;
}

void CViewHost::RecomposeAll(CVorView& view) {
    const CSize size = ClientSize(view);
    {
        const trace::CQuietScope quiet;
        view.m_pCache->Compose(view.GetVorDoc(), MapOf(view), CRect(0, 0, size.cx, size.cy));
        if (view.m_hWnd) {
            view.InvalidateRect(nullptr, FALSE);
        }
    }
    // What the current tool does in answer is its own and stands in the record.
    if (view.m_pCache->m_hook) {
        view.m_pCache->m_hook(view);
    }
}

CSize CViewHost::ClientSize(const CVorView& view) { return view.m_pCache->Size(); }

bool CViewHost::CachePixel(const CVorView& view, int x, int y, DWORD& pixel) {
    const PixelTarget& pixels = view.m_pCache->Pixels();
    if (x < 0 || y < 0 || x >= pixels.width || y >= pixels.height) {
        return false;
    }
    pixel = pixels.Row(y)[x];
    return true;
}
