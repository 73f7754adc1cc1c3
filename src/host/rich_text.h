// The rich-text record: how a text travels to the text engine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

#include <windows.h>

/// Effect bits of a run.
namespace rich_text_effect {
inline constexpr std::uint32_t Bold = 1;
inline constexpr std::uint32_t Italic = 2;
inline constexpr std::uint32_t Underline = 4;
inline constexpr std::uint32_t StrikeOut = 8;
inline constexpr std::uint32_t Outline = 16;
} // namespace rich_text_effect

/// The value of an HGLOBAL, which fits 32 bits.
using RichTextBlock = std::uint32_t;

/// A stretch of text in one format. Sizes are pixels at the display's resolution.
struct QXRICHEDITRUN {
    std::int32_t nHeight; ///< character height
    std::int32_t nAscent; ///< of the run's font; so the descent
    std::int32_t nDescent;
    std::int32_t nBaseline; ///< minus the baseline offset
    std::uint8_t nCharSet;
    std::uint8_t padding[3];   ///< 0
    std::uint32_t dwEffects;   ///< rich_text_effect bits
    std::uint32_t nKerning;    ///< kerning threshold; readers accept 0
    std::int32_t nSpacing;     ///< extra space between characters; readers accept 0
    char szFace[32];           ///< zero-terminated
    RichTextBlock hText;       ///< the run's text, zero-terminated, lines parted by CR LF
    std::uint32_t reserved[2]; ///< 0
};
static_assert(sizeof(QXRICHEDITRUN) == 76);
static_assert(offsetof(QXRICHEDITRUN, nCharSet) == 16 && offsetof(QXRICHEDITRUN, dwEffects) == 20);
static_assert(offsetof(QXRICHEDITRUN, szFace) == 32 && offsetof(QXRICHEDITRUN, hText) == 64);

/// The head of a record. The runs stand directly behind it, and 80 bytes of 0 behind them: 76 n + 128 bytes
/// in one fixed GlobalAlloc block. Layout and flag values are 0 in what the editor exports, and readers
/// accept that.
struct QXRICHEDITINFO {
    std::uint32_t cbHeader; ///< 128
    std::uint32_t nRuns;
    std::uint32_t zero;
    std::uint32_t reserved;
    double dLayout1;
    double dLayout2;
    std::int32_t nFlag1;
    std::int32_t bFlag1; ///< 1 when nFlag1 is not 0
    std::int32_t nFlag2;
    std::int32_t bFlag3;
};
static_assert(sizeof(QXRICHEDITINFO) == 48 && offsetof(QXRICHEDITINFO, nFlag1) == 32);

inline constexpr std::uint32_t RichTextHeaderSize = 128;

constexpr std::size_t RichTextRecordSize(std::uint32_t nRuns) {
    return sizeof(QXRICHEDITRUN) * nRuns + RichTextHeaderSize;
}

/// The record's runs, `nRuns` of them.
inline QXRICHEDITRUN* RichTextRuns(QXRICHEDITINFO* pInfo) {
    return reinterpret_cast<QXRICHEDITRUN*>(pInfo + 1);
}
inline const QXRICHEDITRUN* RichTextRuns(const QXRICHEDITINFO* pInfo) {
    return reinterpret_cast<const QXRICHEDITRUN*>(pInfo + 1);
}

/// How the last handle of a rich-text record lets go of it.
struct CHandleKiller {
    /// Frees every run's text block, then the record; null does nothing.
    static void Kill(QXRICHEDITINFO* pInfo);
};

/// A counted handle of a record; the last one to go frees it by the killer. An empty handle holds none.
template <class TYPE, class KILLER>
class CHandle {
  public:
    CHandle() = default;
    /// Takes the record over, with a count of 1. Without memory for the holder the record is freed and the
    /// handle is empty.
    explicit CHandle(TYPE* pRecord) : m_pHolder(pRecord ? new (std::nothrow) Holder{pRecord, 1} : nullptr) {
        if (!m_pHolder) {
            KILLER::Kill(pRecord);
        }
    }
    CHandle(const CHandle& other) : m_pHolder(other.m_pHolder) {
        if (m_pHolder) {
            ++m_pHolder->nCount;
        }
    }
    CHandle& operator=(const CHandle& other) {
        CHandle copy(other);
        Holder* const pHolder = m_pHolder;
        m_pHolder = copy.m_pHolder;
        copy.m_pHolder = pHolder;
        return *this;
    }
    ~CHandle() { Release(m_pHolder); }

    /// The record, or null; it stays the handle's.
    TYPE* Get() const { return m_pHolder ? m_pHolder->pRecord : nullptr; }
    TYPE* operator->() const { return Get(); }
    bool IsEmpty() const { return m_pHolder == nullptr; }

  private:
    struct Holder {
        TYPE* pRecord;
        int nCount;
    };

    // Never inlined: with two copies in one function the compiler warns of a use that the count rules out.
    [[gnu::noinline]] static void Release(Holder* pHolder) {
        if (pHolder && --pHolder->nCount == 0) {
            KILLER::Kill(pHolder->pRecord);
            delete pHolder;
        }
    }

    Holder* m_pHolder = nullptr;
};
