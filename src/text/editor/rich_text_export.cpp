#include "text/editor/rich_text_export.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "ops/drawing.h"
#include "ops/saturate.h"
#include "text/editor/font_units.h"

namespace {

constexpr int ProbePointSize = 10; // Tenths of a point.
constexpr UINT SymbolCodePage = 2;
constexpr UINT SymbolFontCodePage = 437;

constexpr DWORD KeptEffects = CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE | CFE_STRIKEOUT;
static_assert(KeptEffects == (rich_text_effect::Bold | rich_text_effect::Italic |
                              rich_text_effect::Underline | rich_text_effect::StrikeOut));

/// Bytes of one format, from `nFirst` up to, not with, `nEnd`.
struct Stretch {
    CHARFORMAT format;
    LONG nFirst;
    LONG nEnd;
};

/// Remembers selection and format, hides the selection, and puts all three back.
class [[nodiscard]] CQuietSelectionScope {
  public:
    explicit CQuietSelectionScope(CRichEditCtrl& control) : m_control(control) {
        m_control.GetSel(m_selection);
        m_control.GetSelectionCharFormat(m_format);
        m_control.HideSelection(TRUE, FALSE);
    }
    ~CQuietSelectionScope() {
        m_control.SetSel(m_selection);
        m_control.HideSelection(FALSE, FALSE);
        m_control.SetSelectionCharFormat(m_format);
    }
    CQuietSelectionScope(const CQuietSelectionScope&) = delete;
    CQuietSelectionScope& operator=(const CQuietSelectionScope&) = delete;

  private:
    CRichEditCtrl& m_control;
    CHARRANGE m_selection{};
    CHARFORMAT m_format{};
};

int Pixels(LONG nTwips, int nDpi) { return Saturated(1LL * nTwips * nDpi / TwipsPerInch); }

bool IsSameFormat(const CHARFORMAT& a, const CHARFORMAT& b) {
    return a.dwEffects == b.dwEffects && a.yHeight == b.yHeight && a.yOffset == b.yOffset &&
           a.crTextColor == b.crTextColor && a.bCharSet == b.bCharSet &&
           a.bPitchAndFamily == b.bPitchAndFamily &&
           std::strncmp(a.szFaceName, b.szFaceName, sizeof(a.szFaceName)) == 0;
}

CString FaceOf(const CHARFORMAT& format) {
    return CString(format.szFaceName,
                   static_cast<int>(strnlen(format.szFaceName, sizeof(format.szFaceName))));
}

bool IsSymbolFont(CDC& dc, const CHARFORMAT& format) {
    CFont font;
    if (!font.CreatePointFont(ProbePointSize, FaceOf(format), &dc)) {
        return false;
    }
    const CSelectObjectScope select(dc, font);
    return GetTextCharsetInfo(dc, nullptr, 0) == SYMBOL_CHARSET;
}

UINT CodePageOf(CDC& dc, const CHARFORMAT& format) {
    if (format.bCharSet == SYMBOL_CHARSET) {
        return SymbolCodePage;
    }
    CHARSETINFO info{};
    const auto charset = static_cast<UINT_PTR>(format.bCharSet);
    if (TranslateCharsetInfo(reinterpret_cast<DWORD*>(charset), &info, TCI_SRCCHARSET)) {
        return info.ciACP;
    }
    return format.bCharSet != DEFAULT_CHARSET && IsSymbolFont(dc, format) ? SymbolFontCodePage : GetACP();
}

// One character after the other, because the control tells a format only of what is selected.
std::vector<Stretch> StretchesOf(CRichEditCtrl& control, CDC& dc) {
    CString strText;
    control.GetWindowText(strText);
    std::vector<Stretch> stretches;
    UINT nCodePage = 0;
    const LONG nLength = strText.GetLength();
    const LPCSTR pszText = strText;
    for (LONG nAt = 0; nAt < nLength; nAt = stretches.back().nEnd) {
        CHARFORMAT format{};
        control.SetSel(nAt, nAt + 1);
        control.GetSelectionCharFormat(format);
        if (stretches.empty() || !IsSameFormat(stretches.back().format, format)) {
            stretches.push_back({format, nAt, nAt});
            nCodePage = CodePageOf(dc, format);
        }
        const LONG nBytes = IsDBCSLeadByteEx(nCodePage, static_cast<BYTE>(pszText[nAt])) ? 2 : 1;
        stretches.back().nEnd = std::min(nAt + nBytes, nLength);
    }
    return stretches;
}

// The block stays locked for life: what stands for it is its address.
QXRICHEDITINFO* NewRecord(std::uint32_t nRuns) {
    const HGLOBAL hRecord = GlobalAlloc(GPTR, RichTextRecordSize(nRuns));
    auto* const pInfo = static_cast<QXRICHEDITINFO*>(hRecord ? GlobalLock(hRecord) : nullptr);
    if (pInfo) {
        pInfo->cbHeader = RichTextHeaderSize;
        pInfo->nRuns = nRuns;
    }
    return pInfo;
}

/// The selected text with its zero in a new block, the caller's; null when memory is out.
HGLOBAL SelectedText(CRichEditCtrl& control) {
    CHARRANGE selection{};
    control.GetSel(selection);
    const HGLOBAL hText = GlobalAlloc(GPTR, static_cast<SIZE_T>(selection.cpMax - selection.cpMin) + 1);
    if (hText) {
        control.GetSelText(static_cast<LPSTR>(GlobalLock(hText)));
        GlobalUnlock(hText);
    }
    return hText;
}

// The height as it is stored, so it is a cell's, unlike that of the editor's own font.
void MeasureRun(CDC& dc, QXRICHEDITRUN& run) {
    const auto has = [&run](std::uint32_t dwEffect) { return (run.dwEffects & dwEffect) != 0; };
    CFont font;
    if (!font.CreateFont(run.nHeight, 0, 0, 0, has(rich_text_effect::Bold) ? FW_BOLD : FW_NORMAL,
                         has(rich_text_effect::Italic), has(rich_text_effect::Underline),
                         has(rich_text_effect::StrikeOut), run.nCharSet, 0, 0, 0, 0, run.szFace)) {
        return;
    }
    const CSelectObjectScope select(dc, font);
    TEXTMETRICA metrics{};
    if (GetTextMetricsA(dc, &metrics)) {
        run.nAscent = metrics.tmAscent;
        run.nDescent = metrics.tmDescent;
    }
}

bool FillRun(CRichEditCtrl& control, CDC& dc, const Stretch& stretch, int nDpi, QXRICHEDITRUN& run) {
    const CHARFORMAT& format = stretch.format;
    run.nHeight = Pixels(format.yHeight, nDpi);
    run.nBaseline = -Pixels(format.yOffset, nDpi);
    run.nCharSet = format.bCharSet;
    run.dwEffects = format.dwEffects & KeptEffects;
    std::memcpy(run.szFace, format.szFaceName, sizeof(run.szFace) - 1);
    MeasureRun(dc, run);
    control.SetSel(stretch.nFirst, stretch.nEnd);
    const HGLOBAL hText = SelectedText(control);
    run.hText = static_cast<RichTextBlock>(reinterpret_cast<UINT_PTR>(hText));
    return hText != nullptr;
}

} // namespace

int ExportRichText(CRichEditCtrl& control, int nDpi, QXRICHEDITINFO** ppInfo) try {
    *ppInfo = nullptr;
    const CQuietSelectionScope quiet(control);
    if (control.GetTextLength() == 0) {
        return rich_text_export::NoText;
    }
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const std::vector<Stretch> stretches = StretchesOf(control, dc);
    QXRICHEDITINFO* const pInfo = NewRecord(static_cast<std::uint32_t>(stretches.size()));
    for (std::size_t i = 0; pInfo && i < stretches.size(); ++i) {
        if (!FillRun(control, dc, stretches[i], nDpi, RichTextRuns(pInfo)[i])) {
            CHandleKiller::Kill(pInfo);
            return rich_text_export::OutOfMemory;
        }
    }
    *ppInfo = pInfo;
    return pInfo ? rich_text_export::Done : rich_text_export::OutOfMemory;
} catch (const std::bad_alloc&) {
    return rich_text_export::OutOfMemory;
}
