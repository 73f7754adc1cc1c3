#include "text/editor/font_units.h"
#include "text/editor/inplace_editor.h"

namespace {

constexpr int DefaultDpi = 96;

// The display's vertical resolution in pixels an inch; 0 when it cannot be asked.
int AskDpi() {
    HDC hDC = CreateICA("DISPLAY", nullptr, nullptr, nullptr);
    if (!hDC) {
        return 0;
    }
    const int nDpi = GetDeviceCaps(hDC, LOGPIXELSY);
    DeleteDC(hDC);
    return nDpi;
}

// Toward zero; -1, as MulDiv tells it, when the result does not fit 32 bits.
int Scaled(int nValue, int nFactor, int nDivisor) {
    const long long nResult = 1LL * nValue * nFactor / nDivisor;
    return nResult == static_cast<int>(nResult) ? static_cast<int>(nResult) : -1;
}

} // namespace

int CInplaceEditor::m_fnGetDispdpi() {
    const int nDpi = AskDpi();
    return nDpi != 0 ? nDpi : DefaultDpi;
}

int CInplaceEditor::m_fnConvertFontPointToPixel(int nPoints) {
    const int nDpi = AskDpi();
    return nDpi != 0 ? MulDiv(nPoints, nDpi, PointsPerInch) : 0;
}

int CInplaceEditor::m_fnConvertFontPixelToNearestPoint(int nPixels) {
    const int nDpi = AskDpi();
    return nDpi != 0 ? MulDiv(nPixels, PointsPerInch, nDpi) : 0;
}

int CInplaceEditor::m_fnPix2Twip(int nPixels) { return Scaled(nPixels, TwipsPerInch, m_fnGetDispdpi()); }

int CInplaceEditor::m_fnTwip2Pix(int nTwips) { return Scaled(nTwips, m_fnGetDispdpi(), TwipsPerInch); }

int CInplaceEditor::m_fnGetFontSizeInPoint() {
    HDC hDC = ::GetDC(m_hWnd);
    if (!hDC) {
        return 0;
    }
    const int nDpi = GetDeviceCaps(hDC, LOGPIXELSY);
    ::ReleaseDC(m_hWnd, hDC);
    return MulDiv(m_nFontSize, PointsPerInch, nDpi);
}
