// Rich-text records for tests.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "host/rich_text.h"

namespace rich_text_help {

inline RichTextBlock TextBlock(const std::string& text) {
    HGLOBAL hBlock = ::GlobalAlloc(GMEM_FIXED, text.size() + 1);
    std::memcpy(::GlobalLock(hBlock), text.c_str(), text.size() + 1);
    ::GlobalUnlock(hBlock);
    return static_cast<RichTextBlock>(reinterpret_cast<UINT_PTR>(hBlock));
}

/// A record of as many runs as texts, in Arial of that height; CHandleKiller frees it.
inline QXRICHEDITINFO* Record(const std::vector<std::string>& texts, int nHeight = 12) {
    const auto nRuns = static_cast<std::uint32_t>(texts.size());
    HGLOBAL hBlock = ::GlobalAlloc(GPTR, RichTextRecordSize(nRuns));
    auto* pInfo = static_cast<QXRICHEDITINFO*>(::GlobalLock(hBlock));
    pInfo->cbHeader = RichTextHeaderSize;
    pInfo->nRuns = nRuns;
    for (std::uint32_t i = 0; i < nRuns; ++i) {
        QXRICHEDITRUN& run = RichTextRuns(pInfo)[i];
        run.nHeight = nHeight;
        run.nAscent = 11;
        run.nDescent = 3;
        std::strcpy(run.szFace, "Arial");
        run.hText = TextBlock(texts[i]);
    }
    return pInfo;
}

} // namespace rich_text_help
