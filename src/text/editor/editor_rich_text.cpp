#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

#include "ops/saturate.h"
#include "text/editor/inplace_editor.h"
#include "text/editor/rich_text_export.h"

namespace {

constexpr BYTE DefaultCharSet = 1;

CHARFORMAT FaceAndSize(const CString& strFace, int nTwips) {
    CHARFORMAT format{};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_FACE | CFM_SIZE;
    format.yHeight = nTwips;
    std::strncpy(format.szFaceName, strFace, sizeof(format.szFaceName) - 1);
    return format;
}

bool IsBareReturn(CRichEditCtrl& control, int nLine) {
    constexpr int LargestRead = std::numeric_limits<WORD>::max();
    const int nLength = control.LineLength(control.LineIndex(nLine));
    const int nRead = std::min(nLength + 1, LargestRead);
    std::vector<char> bytes(std::max<std::size_t>(static_cast<std::size_t>(nRead), sizeof(WORD)));
    return control.GetLine(nLine, bytes.data(), nRead) == 1 && bytes[0] == '\r';
}

} // namespace

CHandle<QXRICHEDITINFO, CHandleKiller> CInplaceEditor::m_fnGetRichText(double dScale) try {
    const double dPixels = m_nFontSize * dScale;
    const int nTwips = m_fnPix2Twip(std::isnan(dPixels) ? 0 : Truncated(dPixels));
    PrepareRichEdit(nTwips);
    DropEmptyLastLines();
    m_richEdit.SetSel(0, -1);
    if (m_richEdit.GetSelText().IsEmpty()) {
        return {};
    }
    CHARFORMAT format = FaceAndSize(m_strFontName, nTwips);
    m_richEdit.SetSelectionCharFormat(format);
    QXRICHEDITINFO* pInfo = nullptr;
    ExportRichText(m_richEdit, m_fnGetDispdpi(), &pInfo);
    return CHandle<QXRICHEDITINFO, CHandleKiller>(pInfo);
} catch (const std::bad_alloc&) {
    return {};
}

void CInplaceEditor::PrepareRichEdit(int nTwips) {
    CHARFORMAT format = FaceAndSize(m_strFontName, nTwips);
    format.dwMask |= CFM_CHARSET;
    format.bCharSet = DefaultCharSet;
    m_richEdit.SetDefaultCharFormat(format);
    m_richEdit.SetSel(0, -1);
    m_richEdit.Clear();
    CString strText;
    for (POSITION position = m_lines.Begin(); position;) {
        strText += TrimmedBlanks(m_lines.Next(position));
        if (position) {
            strText += "\r\n";
        }
    }
    m_richEdit.SetWindowText(strText);
}

// From the last line up to the first one with a text.
void CInplaceEditor::DropEmptyLastLines() {
    for (int nLine = m_richEdit.GetLineCount() - 1; nLine >= 0 && IsBareReturn(m_richEdit, nLine); --nLine) {
        m_richEdit.SetSel(std::max(m_richEdit.LineIndex(nLine) - 1, 0), -1);
        m_richEdit.ReplaceSel("");
    }
}
