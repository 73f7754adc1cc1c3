#include "richedit/format_runs.h"

#include <algorithm>

namespace win32 {

size_t CFormatRuns::IndexAt(LONG position) const {
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), position,
                                         [](LONG p, const Run& run) { return p < run.start; });
    return static_cast<size_t>(behind - m_runs.begin()) - 1;
}

DWORD CFormatRuns::MixedIn(LONG from, LONG to) const {
    DWORD mixed = 0;
    for (size_t first = IndexAt(from), i = first + 1; i < m_runs.size() && m_runs[i].start < to; ++i) {
        mixed |= FormatDifference(m_runs[first].format, m_runs[i].format);
    }
    return mixed;
}

// The index of the run that starts here from now on; at the text's end, the number of runs.
size_t CFormatRuns::Split(LONG position) {
    if (position >= m_length) {
        return m_runs.size();
    }
    const size_t index = IndexAt(position);
    if (m_runs[index].start == position) {
        return index;
    }
    const Run rest = {position, m_runs[index].format};
    m_runs.insert(m_runs.begin() + static_cast<ptrdiff_t>(index) + 1, rest);
    return index + 1;
}

// Unites equal neighbours among the runs from `first` up to `last`, and with those beside them.
void CFormatRuns::Join(size_t first, size_t last) {
    const auto begin = m_runs.begin() + static_cast<ptrdiff_t>(first > 0 ? first - 1 : 0);
    const auto end = m_runs.begin() + static_cast<ptrdiff_t>(std::min(last + 1, m_runs.size()));
    const auto same = [](const Run& a, const Run& b) { return FormatDifference(a.format, b.format) == 0; };
    m_runs.erase(std::unique(begin, end, same), end);
}

void CFormatRuns::Replace(LONG from, LONG to, LONG length, const CHARFORMATA& format) {
    const Run added = {from, format};
    const size_t first = Split(from);
    const size_t last = Split(to);
    const auto place = m_runs.erase(m_runs.begin() + static_cast<ptrdiff_t>(first),
                                    m_runs.begin() + static_cast<ptrdiff_t>(last));
    const LONG growth = length - (to - from);
    std::for_each(place, m_runs.end(), [growth](Run& run) { run.start += growth; });
    m_length += growth;
    if (length > 0) {
        m_runs.insert(place, added);
    }
    Join(first, first + 1);
}

void CFormatRuns::Change(LONG from, LONG to, const CHARFORMATA& change) {
    const size_t first = Split(from);
    const size_t last = Split(to);
    for (size_t i = first; i < last; ++i) {
        ApplyFormat(m_runs[i].format, change);
    }
    Join(first, last);
}

} // namespace win32
