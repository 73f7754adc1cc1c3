#include "afxdoc.h"
#include "afxgdi.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
END_MESSAGE_MAP()

CView::~CView() {
    if (m_pDocument) {
        m_pDocument->RemoveView(this);
    }
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass) {
        const HBRUSH hbrWindow = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW), hbrWindow);
    }
    return cs.lpszClass != nullptr;
}

void CView::OnUpdate(CView*, LPARAM, CObject*) { Invalidate(TRUE); }

int CView::OnCreate(LPCREATESTRUCT lpcs) {
    if (CWnd::OnCreate(lpcs) == -1) {
        return -1;
    }
    const auto* const pContext = static_cast<const CCreateContext*>(lpcs->lpCreateParams);
    if (pContext && pContext->m_pCurrentDoc) {
        pContext->m_pCurrentDoc->AddView(this);
    }
    return 0;
}

void CView::OnPaint() {
    CPaintDC dc(this);
    if (dc.m_hDC) {
        OnDraw(&dc);
    }
}
