#include "text/rich_text_reader.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "image/output_file.h"

namespace {

constexpr int LargestSize = 32767;

HGLOBAL BlockOf(RichTextBlock hText) { return reinterpret_cast<HGLOBAL>(static_cast<UINT_PTR>(hText)); }

class [[nodiscard]] CLockScope {
  public:
    explicit CLockScope(HGLOBAL hBlock) : m_hBlock(hBlock), m_pBytes(::GlobalLock(hBlock)) {}
    ~CLockScope() {
        if (m_pBytes) {
            ::GlobalUnlock(m_hBlock);
        }
    }
    CLockScope(const CLockScope&) = delete;
    CLockScope& operator=(const CLockScope&) = delete;
    const char* Bytes() const { return static_cast<const char*>(m_pBytes); }

  private:
    HGLOBAL m_hBlock;
    void* m_pBytes;
};

/// The runs that the record's block has room for; 0 when it is no block or shorter than a header.
std::uint32_t RoomForRuns(const QXRICHEDITINFO* pInfo) {
    HGLOBAL hRecord = pInfo ? ::GlobalHandle(pInfo) : nullptr;
    const std::size_t nSize = hRecord ? ::GlobalSize(hRecord) : 0;
    return nSize < RichTextHeaderSize
               ? 0
               : static_cast<std::uint32_t>((nSize - RichTextHeaderSize) / sizeof(QXRICHEDITRUN));
}

bool IsWhole(const QXRICHEDITINFO* pInfo) {
    HGLOBAL hRecord = pInfo ? ::GlobalHandle(pInfo) : nullptr;
    return hRecord && ::GlobalSize(hRecord) >= RichTextHeaderSize && pInfo->cbHeader == RichTextHeaderSize &&
           pInfo->nRuns <= RoomForRuns(pInfo);
}

/// The bytes up to the first zero; false when there is none.
bool ReadZeroTerminated(const char* pBytes, std::size_t nRoom, std::string& text) {
    const void* pZero = pBytes ? std::memchr(pBytes, 0, nRoom) : nullptr;
    if (!pZero) {
        return false;
    }
    text.assign(pBytes, static_cast<const char*>(pZero));
    return true;
}

bool ReadBlock(RichTextBlock hText, std::string& text) {
    const CLockScope lock(BlockOf(hText));
    return lock.Bytes() && ReadZeroTerminated(lock.Bytes(), ::GlobalSize(BlockOf(hText)), text);
}

bool IsSize(std::int32_t nValue) { return nValue >= 0 && nValue <= LargestSize; }

bool ReadRun(const QXRICHEDITRUN& from, RichTextRun& run) {
    if (!IsSize(from.nHeight) || !IsSize(from.nAscent) || !IsSize(from.nDescent)) {
        return false;
    }
    run.nHeight = from.nHeight;
    run.nAscent = from.nAscent;
    run.nDescent = from.nDescent;
    run.bBold = (from.dwEffects & rich_text_effect::Bold) != 0;
    run.bItalic = (from.dwEffects & rich_text_effect::Italic) != 0;
    run.bUnderline = (from.dwEffects & rich_text_effect::Underline) != 0;
    run.nCharSet = from.nCharSet;
    return ReadZeroTerminated(from.szFace, sizeof(from.szFace), run.face) && ReadBlock(from.hText, run.text);
}

} // namespace

void CHandleKiller::Kill(QXRICHEDITINFO* pInfo) {
    HGLOBAL hRecord = pInfo ? ::GlobalHandle(pInfo) : nullptr;
    if (!hRecord) {
        return;
    }
    const std::uint32_t nRoom = RoomForRuns(pInfo);
    const std::uint32_t nRuns = nRoom != 0 ? std::min(pInfo->nRuns, nRoom) : 0;
    for (std::uint32_t i = 0; i < nRuns; ++i) {
        ::GlobalFree(BlockOf(RichTextRuns(pInfo)[i].hText));
    }
    ::GlobalFree(hRecord);
}

bool ReadRichText(const QXRICHEDITINFO* pInfo, std::vector<RichTextRun>& runs) {
    runs.clear();
    if (!IsWhole(pInfo)) {
        return false;
    }
    runs.resize(pInfo->nRuns);
    for (std::uint32_t i = 0; i < pInfo->nRuns; ++i) {
        if (!ReadRun(RichTextRuns(pInfo)[i], runs[i])) {
            runs.clear();
            return false;
        }
    }
    return true;
}

bool RichTextToBytes(const QXRICHEDITINFO* pInfo, std::string& bytes) {
    bytes.clear();
    if (!pInfo) {
        return true;
    }
    std::vector<RichTextRun> runs;
    if (!ReadRichText(pInfo, runs)) {
        return false;
    }
    bytes.assign(reinterpret_cast<const char*>(pInfo), RichTextRecordSize(pInfo->nRuns));
    for (const RichTextRun& run : runs) {
        bytes.append(run.text.c_str(), run.text.size() + 1);
    }
    return true;
}

bool SaveRichText(const char* pszFile, const QXRICHEDITINFO* pInfo) {
    std::string bytes;
    if (!RichTextToBytes(pInfo, bytes)) {
        return false;
    }
    COutputFile file(pszFile);
    return file.Stream() && std::fwrite(bytes.data(), 1, bytes.size(), file.Stream()) == bytes.size() &&
           file.Commit();
}
