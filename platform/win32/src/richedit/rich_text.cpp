#include "richedit/rich_text.h"

#include <algorithm>
#include <limits>

namespace win32 {

constexpr size_t LongestText = std::numeric_limits<LONG>::max();

namespace {

std::string WithFullLineEnds(std::string_view text) {
    std::string full;
    full.reserve(text.size());
    while (!text.empty()) {
        const size_t length = std::min(text.find_first_of("\r\n"), text.size());
        full += text.substr(0, length);
        text.remove_prefix(length);
        if (!text.empty()) {
            full += "\r\n";
            text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
        }
    }
    return full;
}

} // namespace

std::string_view CRichText::SelectedText() const {
    return std::string_view(m_text).substr(static_cast<size_t>(m_selection.cpMin),
                                           static_cast<size_t>(m_selection.cpMax - m_selection.cpMin));
}

void CRichText::Select(LONG from, LONG to) {
    const LONG end = to == -1 ? Length() : std::clamp(to, 0, Length());
    const LONG start = std::clamp(from, 0, Length());
    m_selection = {std::min(start, end), std::max(start, end)};
    m_insertionSet = false;
}

bool CRichText::IsInsideLineEnd(LONG position) const {
    return position > 0 && position < Length() && m_text[static_cast<size_t>(position)] == '\n';
}

// An empty range goes before the line end that it lies in.
CHARRANGE CRichText::WithWholeLineEnds(CHARRANGE range) const {
    const LONG from = IsInsideLineEnd(range.cpMin) ? range.cpMin - 1 : range.cpMin;
    if (range.cpMin == range.cpMax) {
        return {from, from};
    }
    return {from, IsInsideLineEnd(range.cpMax) ? range.cpMax + 1 : range.cpMax};
}

// Everything is made ready before the first change, so that short memory changes nothing.
bool CRichText::Replace(CHARRANGE range, std::string_view text, const CHARFORMATA& format) {
    const std::string full = WithFullLineEnds(text);
    const size_t removed = static_cast<size_t>(range.cpMax - range.cpMin);
    if (full.size() > LongestText - (m_text.size() - removed)) {
        return false;
    }
    const auto added = static_cast<size_t>(std::count(full.begin(), full.end(), '\n'));
    m_lineStarts.reserve(m_lineStarts.size() + added);
    m_runs.Reserve();
    m_text.replace(static_cast<size_t>(range.cpMin), removed, full);
    m_runs.Replace(range.cpMin, range.cpMax, static_cast<LONG>(full.size()), format);
    ReplaceLineStarts(range, full);
    const LONG behind = range.cpMin + static_cast<LONG>(full.size());
    Select(behind, behind);
    return true;
}

void CRichText::ReplaceLineStarts(CHARRANGE range, const std::string& text) {
    const auto first = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), range.cpMin);
    const auto last = std::upper_bound(first, m_lineStarts.end(), range.cpMax);
    const LONG growth = static_cast<LONG>(text.size()) - (range.cpMax - range.cpMin);
    std::for_each(last, m_lineStarts.end(), [growth](LONG& start) { start += growth; });
    auto place = m_lineStarts.erase(first, last);
    place = m_lineStarts.insert(place, static_cast<size_t>(std::count(text.begin(), text.end(), '\n')), 0);
    for (size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 1)) {
        *place++ = range.cpMin + static_cast<LONG>(i) + 1;
    }
}

bool CRichText::SetText(std::string_view text) {
    if (!Replace({0, Length()}, text, m_default)) {
        return false;
    }
    Select(0, 0);
    return true;
}

bool CRichText::ReplaceSelection(std::string_view text) {
    return Replace(WithWholeLineEnds(m_selection), text, InsertionFormat());
}

CHARFORMATA CRichText::InsertionFormat() const {
    if (m_insertionSet || m_text.empty()) {
        return m_insertionSet ? m_insertion : m_default;
    }
    return m_runs.At(IsSelectionEmpty() ? std::max(m_selection.cpMin - 1, 0) : m_selection.cpMin);
}

CHARFORMATA CRichText::SelectionFormat() const {
    CHARFORMATA format = InsertionFormat();
    if (!IsSelectionEmpty()) {
        format.dwMask &= ~m_runs.MixedIn(m_selection.cpMin, m_selection.cpMax);
    }
    return format;
}

void CRichText::ChangeSelectionFormat(const CHARFORMATA& change) {
    if (!IsSelectionEmpty()) {
        ChangeFormat(m_selection.cpMin, m_selection.cpMax, change);
        return;
    }
    m_insertion = InsertionFormat();
    ApplyFormat(m_insertion, change);
    m_insertionSet = true;
}

void CRichText::ChangeWholeFormat(const CHARFORMATA& change) {
    if (!m_text.empty()) {
        ChangeFormat(0, Length(), change);
    }
}

void CRichText::ChangeFormat(LONG from, LONG to, const CHARFORMATA& change) {
    m_runs.Reserve();
    m_runs.Change(from, to, change);
}

LONG CRichText::LineStart(LONG line) const {
    return line >= 0 && line < LineCount() ? m_lineStarts[static_cast<size_t>(line)] : -1;
}

LONG CRichText::LineAt(LONG position) const {
    const auto behind = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), position);
    return static_cast<LONG>(behind - m_lineStarts.begin()) - 1;
}

std::string_view CRichText::Line(LONG line) const {
    const LONG lineEndBytes = 2;
    const LONG start = LineStart(line);
    const LONG end = line + 1 < LineCount() ? LineStart(line + 1) - lineEndBytes : Length();
    return std::string_view(m_text).substr(static_cast<size_t>(start), static_cast<size_t>(end - start));
}

} // namespace win32
