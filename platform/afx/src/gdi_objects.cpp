#include "afxgdi.h"

#include "handle_map.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNCREATE(CPen, CGdiObject)
IMPLEMENT_DYNCREATE(CBrush, CGdiObject)
IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)
IMPLEMENT_DYNCREATE(CFont, CGdiObject)

namespace {

// The tables are never torn down: objects of static life leave them as the process ends.
auto& Map() {
    static auto& map = *new afx::CHandleMap<CGdiObject, &CGdiObject::m_hObject>;
    return map;
}

} // namespace

// A temporary object is of the type that was asked for.
namespace {

template <class TYPE>
auto& Temporary() {
    static auto& objects = *new afx::CTempObjects<TYPE, &CGdiObject::m_hObject>;
    return objects;
}

} // namespace

// A handle's own object counts only where it is of the type asked for.
namespace {

template <class TYPE>
TYPE* ObjectOf(HGDIOBJ hObject) {
    if (!hObject) {
        return nullptr;
    }
    if (TYPE* const pOwn = dynamic_cast<TYPE*>(Map().Lookup(hObject))) {
        return pOwn;
    }
    return Temporary<TYPE>().FromHandle(hObject);
}

} // namespace

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) { return ObjectOf<CGdiObject>(hObject); }

CPen* CPen::FromHandle(HPEN hPen) { return ObjectOf<CPen>(hPen); }

CBrush* CBrush::FromHandle(HBRUSH hBrush) { return ObjectOf<CBrush>(hBrush); }

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap) { return ObjectOf<CBitmap>(hBitmap); }

CFont* CFont::FromHandle(HFONT hFont) { return ObjectOf<CFont>(hFont); }

void CGdiObject::DeleteTempMap() {
    Temporary<CGdiObject>().FreeAll();
    Temporary<CPen>().FreeAll();
    Temporary<CBrush>().FreeAll();
    Temporary<CBitmap>().FreeAll();
    Temporary<CFont>().FreeAll();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    ASSERT(m_hObject == nullptr);
    return Map().Attach(hObject, this);
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject) {
    if (Attach(hObject)) {
        return TRUE;
    }
    ::DeleteObject(hObject);
    return FALSE;
}

HGDIOBJ CGdiObject::Detach() { return Map().Detach(this); }

BOOL CGdiObject::DeleteObject() { return m_hObject && ::DeleteObject(Detach()); }

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return AttachNew(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCSTR lpszFacename) {
    return AttachNew(::CreateFontA(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                   cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                   nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCSTR lpszFaceName, CDC* pDC) {
    const HDC hDC = pDC ? pDC->m_hDC : ::GetDC(nullptr);
    constexpr int TenthsInAnInch = 720;
    const int nHeight = -MulDiv(nPointSize, ::GetDeviceCaps(hDC, LOGPIXELSY), TenthsInAnInch);
    if (!pDC) {
        ::ReleaseDC(nullptr, hDC);
    }
    return AttachNew(
        ::CreateFontA(nHeight, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, lpszFaceName));
}
