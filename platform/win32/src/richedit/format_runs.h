#pragma once

// The formats of a text's bytes: runs of one format, neighbours always different.

#include "richedit/char_format.h"

#include <vector>

namespace win32 {

class CFormatRuns {
  public:
    /// The format at a position inside the text; in logarithmic time.
    const CHARFORMATA& At(LONG position) const { return m_runs[IndexAt(position)].format; }
    /// The CFM_ bits of what is not the same from `from` up to `to`, which lie in the text.
    DWORD MixedIn(LONG from, LONG to) const;

    /// Room for one Replace or Change, which then cannot fail.
    void Reserve() { m_runs.reserve(m_runs.size() + 3); }
    /// Puts `length` bytes of the format in the place of those from `from` up to `to`.
    void Replace(LONG from, LONG to, LONG length, const CHARFORMATA& format);
    void Change(LONG from, LONG to, const CHARFORMATA& change);

  private:
    struct Run {
        LONG start;
        CHARFORMATA format;
    };

    size_t IndexAt(LONG position) const;
    size_t Split(LONG position);
    void Join(size_t first, size_t last);

    std::vector<Run> m_runs;
    LONG m_length = 0;
};

} // namespace win32
