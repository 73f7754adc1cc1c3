#include "editor_model.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <utility>

namespace {

constexpr int AlignLeft = 0;
constexpr int AlignRight = 2;

std::vector<std::string> PartedAtLf(const std::string& text) {
    std::vector<std::string> pieces(1);
    for (const char c : text) {
        if (c == '\n') {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

std::string WithoutBlanksAround(const std::string& line) {
    const std::size_t nFirst = line.find_first_not_of(' ');
    return nFirst == std::string::npos ? "" : line.substr(nFirst, line.find_last_not_of(' ') - nFirst + 1);
}

std::string Bytes(const std::string& line, int nFirst, int nEnd) {
    return line.substr(static_cast<std::size_t>(nFirst), static_cast<std::size_t>(nEnd - nFirst));
}

std::ostream& operator<<(std::ostream& out, const ModelPlace& place) {
    return out << place.line << '.' << place.index;
}

} // namespace

std::string Shown(const std::string& text) {
    std::string shown;
    for (const char c : text) {
        char hex[5];
        std::snprintf(hex, sizeof hex, "\\x%02X", static_cast<unsigned char>(c));
        shown += c >= ' ' && c <= '~' ? std::string(1, c) : hex;
    }
    return shown;
}

bool EditorState::operator==(const EditorState& other) const {
    return lines == other.lines && caret == other.caret && selected == other.selected &&
           (!selected || (from == other.from && to == other.to)) && selecting == other.selecting &&
           ::EqualRect(&window, &other.window);
}

std::ostream& operator<<(std::ostream& out, const EditorState& state) {
    for (const std::string& line : state.lines) {
        out << '"' << Shown(line) << "\" ";
    }
    out << "caret " << state.caret << (state.selecting ? " selecting" : "");
    if (state.selected) {
        out << " selected " << state.from << " to " << state.to;
    }
    const RECT& rc = state.window;
    return out << " at " << rc.left << ' ' << rc.top << ' ' << rc.right << ' ' << rc.bottom;
}

CEditorModel::CEditorModel(bool bDoubleByte, POINT ptAnchor, const std::string& text, ModelFont font)
    : m_bDoubleByte(bDoubleByte), m_ptAnchor(ptAnchor), m_font(std::move(font)) {
    SetText(text);
}

EditorState CEditorModel::State() const {
    return {m_lines, m_caret, IsSelected(), m_from, m_to, m_bSelecting, m_window};
}

std::string CEditorModel::Text() const {
    std::string text;
    std::string breaks;
    for (const std::string& line : m_lines) {
        const std::string kept = WithoutBlanksAround(line);
        text += kept.empty() ? "" : breaks + kept;
        breaks = (kept.empty() ? breaks : "") + "\n";
    }
    return text;
}

std::string CEditorModel::SelectedText() const {
    if (!IsSelected()) {
        return "";
    }
    std::string text;
    for (int n = m_from.line; n <= m_to.line; ++n) {
        const int nFirst = n == m_from.line ? m_from.index + 1 : 0;
        const int nEnd = n == m_to.line ? m_to.index + 1 : Last(n) + 1;
        text += (n == m_from.line ? "" : "\n") + Bytes(Line(n), nFirst, nEnd);
    }
    return text;
}

// Lead bytes of code page 932.
bool CEditorModel::IsLeadByte(unsigned char ch) const {
    return m_bDoubleByte && ((ch >= 0x81 && ch <= 0x9F) || (ch >= 0xE0 && ch <= 0xFC));
}

bool CEditorModel::IsLead(const std::string& line, int nIndex) const {
    int n = 0;
    while (n < nIndex) {
        n += IsLeadByte(static_cast<unsigned char>(line[static_cast<std::size_t>(n)])) ? 2 : 1;
    }
    return n == nIndex && n < static_cast<int>(line.size()) &&
           IsLeadByte(static_cast<unsigned char>(line[static_cast<std::size_t>(n)]));
}

bool CEditorModel::HasOddPairs() const {
    for (const std::string& line : m_lines) {
        const std::vector<int> ends = line.empty() ? std::vector<int>() : m_font.extents(line);
        for (std::size_t n = 0; n + 1 < line.size(); ++n) {
            if (IsLead(line, static_cast<int>(n)) && ends[n] != ends[n + 1]) {
                return true;
            }
        }
    }
    return false;
}

int CEditorModel::WidthOf(const std::string& line) const {
    return line.empty() ? 0 : m_font.extents(line).back();
}

int CEditorModel::TextWidth() const {
    int nWidth = 0;
    for (const std::string& line : m_lines) {
        nWidth = std::max(nWidth, WidthOf(line));
    }
    return nWidth;
}

// The lines' rectangle in the view, without margins.
RECT CEditorModel::Area() const {
    const int nWidth = TextWidth();
    const int nLeft = m_nAlign == AlignLeft    ? m_ptAnchor.x
                      : m_nAlign == AlignRight ? m_ptAnchor.x - nWidth
                                               : m_ptAnchor.x - nWidth / 2;
    const int nTop = m_ptAnchor.y - m_font.height / 2;
    return {nLeft, nTop, nLeft + nWidth, nTop + Count() * m_font.height};
}

RECT CEditorModel::LineRect(int nLine) const {
    const int nWidth = WidthOf(Line(nLine));
    const int nRest = TextWidth() - nWidth;
    const int nLeft = m_font.blank + (m_nAlign == AlignLeft ? 0 : m_nAlign == AlignRight ? nRest : nRest / 2);
    const int nTop = 1 + nLine * m_font.height;
    return {nLeft, nTop, nLeft + nWidth, nTop + m_font.height};
}

int CEditorModel::Extent(const ModelPlace& place) const {
    return place.index < 0 ? 0 : m_font.extents(Line(place.line))[static_cast<std::size_t>(place.index)];
}

void CEditorModel::Refresh() {
    m_window = Area();
    ::InflateRect(&m_window, m_font.blank, 1);
    ++m_window.right;
    ++m_window.bottom;
}

ModelPlace CEditorModel::HitTest(POINT point) const {
    ModelPlace hit{Count() - 1, -1};
    for (int n = 0; n < Count() - 1; ++n) {
        const RECT rc = LineRect(n);
        if (n == 0 ? point.y <= rc.bottom : point.y >= rc.top && point.y < rc.bottom) {
            hit.line = n;
            break;
        }
    }
    const std::string& line = Line(hit.line);
    const std::vector<int> ends = line.empty() ? std::vector<int>() : m_font.extents(line);
    const int nX = point.x - LineRect(hit.line).left;
    int nBegin = 0;
    for (const int nEnd : ends) {
        if (nX <= nBegin + (nEnd - nBegin) / 2) {
            break;
        }
        nBegin = nEnd;
        ++hit.index;
    }
    const bool bBetween = hit.index != -1 && hit.index != Last(hit.line);
    hit.index += bBetween && IsLead(line, hit.index) ? 1 : 0;
    return hit;
}

bool CEditorModel::IsOnSelection(POINT point) const {
    const int nHalf = m_font.blank / 2;
    for (int n = m_from.line; IsSelected() && n <= m_to.line; ++n) {
        RECT rc = LineRect(n);
        const int nLeft = rc.left;
        rc.left = n == m_from.line ? nLeft + Extent(m_from) : rc.left - nHalf;
        rc.right = n == m_to.line ? nLeft + Extent(m_to) : rc.right + nHalf;
        if (::PtInRect(&rc, point)) {
            return true;
        }
    }
    return false;
}

void CEditorModel::SetText(const std::string& text) {
    m_lines = PartedAtLf(text);
    m_starting = text;
    m_caret = m_from = m_to = ModelPlace{};
    Refresh();
}

void CEditorModel::SetFont(ModelFont font) {
    m_font = std::move(font);
    Refresh();
}

void CEditorModel::SetAlignment(int nAlign) {
    const RECT area = Area();
    m_ptAnchor.x = nAlign == AlignLeft    ? area.left
                   : nAlign == AlignRight ? area.right
                                          : area.left + (area.right - area.left) / 2;
    m_ptAnchor.y = area.top + m_font.height / 2;
    m_nAlign = nAlign;
    Refresh();
}

void CEditorModel::Select(int nLine1, int nIndex1, int nLine2, int nIndex2) {
    ModelPlace from{std::clamp(nLine1, 0, Count() - 1), nIndex1};
    ModelPlace to{std::clamp(nLine2, 0, Count() - 1), nIndex2};
    if (from.line > to.line) {
        std::swap(from, to);
    }
    from.index = std::clamp(from.index, -1, Last(from.line));
    to.index = std::clamp(to.index, -1, Last(to.line));
    m_from = std::min(from, to);
    m_to = std::max(from, to);
}

void CEditorModel::ClearSelection() { m_from = m_to = ModelPlace{}; }

int CEditorModel::Absolute(const ModelPlace& place) const {
    int nPlace = place.index;
    for (int n = 0; n < place.line; ++n) {
        nPlace += Last(n) + 2;
    }
    return nPlace;
}

ModelPlace CEditorModel::FromAbsolute(int nPlace) const {
    ModelPlace place{0, nPlace};
    while (place.index > Last(place.line)) {
        place.index -= Last(place.line) + 2;
        ++place.line;
    }
    return place;
}

// Puts the text in the place of the bytes between the two.
void CEditorModel::Insert(const ModelPlace& from, const ModelPlace& to, const std::string& text) {
    const std::string head = Bytes(Line(from.line), 0, from.index + 1);
    const std::string tail = Bytes(Line(to.line), to.index + 1, Last(to.line) + 1);
    const std::vector<std::string> pieces = PartedAtLf(head + text + tail);
    m_lines.erase(m_lines.begin() + from.line, m_lines.begin() + to.line + 1);
    m_lines.insert(m_lines.begin() + from.line, pieces.begin(), pieces.end());
}

void CEditorModel::Replace(const std::string& text, bool bRedraw) {
    if (IsSelected()) {
        const int nFrom = Absolute(m_from);
        const int nTo = Absolute(m_to);
        const int nCaret = Absolute(m_caret);
        const int nBehind = nFrom + static_cast<int>(text.size());
        Insert(m_from, m_to, text);
        m_caret = FromAbsolute(nCaret < nFrom ? nCaret : nCaret < nTo ? nBehind : nCaret - nTo + nBehind);
        ClearSelection();
    } else {
        Insert(m_caret, m_caret, text);
    }
    if (bRedraw) {
        Refresh();
    }
}

bool CEditorModel::RemoveSelection() {
    const bool bSelected = IsSelected();
    if (bSelected) {
        Replace("", true);
    }
    return bSelected;
}

void CEditorModel::MoveInLine(int nIndex) {
    const bool bRight = nIndex > m_caret.index;
    nIndex = std::clamp(nIndex, -1, Last());
    if (bRight && nIndex != Last() && IsLead(Current(), nIndex)) {
        ++nIndex;
    } else if (!bRight && nIndex >= 0 && IsLead(Current(), nIndex)) {
        --nIndex;
    }
    m_caret.index = nIndex;
}

void CEditorModel::Key(int nKey) {
    if (m_bSelecting) {
        return;
    }
    switch (nKey) {
    case VK_BACK: Backspace(); return;
    case VK_RETURN: Enter(); return;
    case VK_DELETE: Delete(); return;
    case VK_ESCAPE:
        SetText(m_starting);
        End();
        return;
    default: break;
    }
    ClearSelection();
    switch (nKey) {
    case VK_END: m_caret.index = Last(); break;
    case VK_HOME: m_caret.index = -1; break;
    case VK_LEFT: Left(); break;
    case VK_RIGHT: Right(); break;
    case VK_UP: GoByLines(-1); break;
    default: GoByLines(1); break;
    }
}

void CEditorModel::Backspace() {
    if (RemoveSelection() || AtStart()) {
        return;
    }
    ModelPlace before = m_caret;
    if (m_caret.index == -1) {
        before = {m_caret.line - 1, Last(m_caret.line - 1)};
    } else {
        const bool bTwo = m_caret.index >= 1 && IsLead(Current(), m_caret.index - 1);
        before.index -= bTwo ? 2 : 1;
    }
    Insert(before, m_caret, "");
    m_caret = before;
    Refresh();
}

void CEditorModel::Enter() {
    RemoveSelection();
    Insert(m_caret, m_caret, "\n");
    m_caret = {m_caret.line + 1, -1};
    Refresh();
}

void CEditorModel::Delete() {
    if (RemoveSelection() || AtEnd()) {
        return;
    }
    ModelPlace behind = m_caret;
    if (m_caret.index == Last()) {
        behind = {m_caret.line + 1, -1};
    } else {
        const bool bTwo = m_caret.index + 2 <= Last() && IsLead(Current(), m_caret.index + 1);
        behind.index += bTwo ? 2 : 1;
    }
    Insert(m_caret, behind, "");
    Refresh();
}

void CEditorModel::Left() {
    if (m_caret.index > -1) {
        MoveInLine(m_caret.index - 1);
    } else if (!AtStart()) {
        m_caret = {m_caret.line - 1, Last(m_caret.line - 1)};
    }
}

void CEditorModel::Right() {
    if (m_caret.index < Last()) {
        MoveInLine(m_caret.index + 1);
    } else if (!AtEnd()) {
        m_caret = {m_caret.line + 1, -1};
    }
}

void CEditorModel::GoByLines(int nDirection) {
    const int nTarget = m_caret.line + nDirection;
    if (nTarget < 0 || nTarget >= Count()) {
        return;
    }
    const int nIndex = m_caret.index;
    const int nBefore = nIndex > 1 ? Extent({m_caret.line, nIndex - 1}) : 0;
    const int nBehind = nIndex == -1 ? 0 : Extent({m_caret.line, std::min(nIndex + 1, Last())});
    const RECT rc = LineRect(m_caret.line);
    const int nMiddle = (rc.top + rc.bottom) / 2;
    m_caret = HitTest({rc.left + nBefore + (nBehind - nBefore) / 2, nMiddle + nDirection * m_font.height});
}

void CEditorModel::Copy() {
    const RECT rc = LineRect(m_from.line);
    if (m_bSelecting || IsLeadPending() || !IsSelected() ||
        !IsOnSelection({rc.left + Extent(m_from), rc.top})) {
        return;
    }
    clipboard = "";
    for (const char c : SelectedText()) {
        *clipboard += c == '\n' ? "\r\n" : std::string(1, c);
    }
}

void CEditorModel::Paste() {
    if (m_bSelecting || IsLeadPending()) {
        return;
    }
    if (IsSelected()) {
        Replace("", !clipboard);
    }
    if (clipboard) {
        const RECT rc = LineRect(m_caret.line);
        Drop({rc.left + Extent(m_caret), (rc.top + rc.bottom) / 2}, *clipboard, true);
    }
}

void CEditorModel::Type(unsigned char ch) {
    if (m_bSelecting) {
        return;
    }
    if (!m_lead && IsLeadByte(ch)) {
        m_lead = static_cast<char>(ch);
        return;
    }
    if (ch == VK_BACK || ch == VK_RETURN || ch == VK_ESCAPE) {
        return;
    }
    RemoveSelection();
    std::string piece = m_lead ? std::string(1, *m_lead) : "";
    piece += ch == '\t' || ch == '\n' ? ' ' : static_cast<char>(ch);
    m_lead.reset();
    Insert(m_caret, m_caret, piece);
    Refresh();
    MoveInLine(m_caret.index + 1);
}

void CEditorModel::Press(POINT point) {
    const RECT client{0, 0, m_window.right - m_window.left, m_window.bottom - m_window.top};
    if (!::PtInRect(&client, point)) {
        End();
        return;
    }
    m_bSelecting = true;
    m_caret = m_anchor = HitTest(point);
    m_from = m_to = m_caret;
}

void CEditorModel::MouseMove(POINT point) {
    if (m_bSelecting) {
        const ModelPlace hit = HitTest(point);
        Select(m_anchor.line, m_anchor.index, hit.line, hit.index);
    }
}

void CEditorModel::End() {
    m_bSelecting = false;
    m_bEnded = true;
}

int CEditorModel::Hover(POINT point, bool bCopies, bool bText) {
    if (!std::exchange(m_bHovering, true)) {
        m_saved = m_caret;
    }
    if (!bText || IsOnSelection(point)) {
        return 0;
    }
    m_caret = HitTest(point);
    m_bDropMoves = !bCopies;
    return bCopies ? 1 : 2;
}

void CEditorModel::Leave() {
    if (std::exchange(m_bHovering, false)) {
        m_caret = m_saved;
    }
}

bool CEditorModel::Drop(POINT point, const std::string& text, bool bText) {
    Leave();
    if (!bText || IsOnSelection(point)) {
        return false;
    }
    m_caret = HitTest(point);
    if (m_bDropMoves) {
        Replace("", false);
    } else {
        ClearSelection();
    }
    std::string kept = text;
    std::erase(kept, '\r');
    Replace(kept, true);
    return true;
}
