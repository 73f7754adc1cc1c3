#include "host/buffer.h"

#include <cstdlib>
#include <cstring>
#include <vector>

#include "buffer/buffer_host.h"
#include "platform/faults.h"
#include "platform/pixels.h"

namespace {

std::uint32_t g_nLockCount = 0;

constexpr int MaxSide = 32767;
/// More than one picture ever has; a small file or a short script could promise it.
constexpr std::size_t MaxPixels = std::size_t{1} << 27;

struct Header {
    std::uint32_t nGeneration;
    std::int32_t nLocks;
    std::int16_t nWidth;
    std::int16_t nHeight;
    std::int32_t nUnit;
};
static_assert(sizeof(Header) == 16, "pixels keep malloc's alignment");

std::uint8_t* Pixels(Header* pHeader) { return reinterpret_cast<std::uint8_t*>(pHeader + 1); }

std::size_t ByteCount(const Header& header) {
    return static_cast<std::size_t>(header.nWidth) * static_cast<std::size_t>(header.nHeight) *
           static_cast<std::size_t>(header.nUnit);
}

/// Handles to buffers. A handle is a slot number and the slot's generation, which changes with each buffer in
/// it, so that a stale handle fails. Freed slots are taken again oldest first, which keeps generations from
/// coming round quickly.
class CHandleTable {
  public:
    /// 0 when all slots are in use.
    HBUF32 Add(Header* pHeader);
    Header* Find(HBUF32 hBuf) const;
    /// Takes the slot out of use; the memory stays the caller's.
    void Remove(HBUF32 hBuf);
    std::size_t Count() const { return m_nCount; }

  private:
    static constexpr unsigned SlotBits = 21;
    static constexpr std::uint32_t SlotMask = (1U << SlotBits) - 1;
    static constexpr std::uint32_t LastGeneration = (1U << (31 - SlotBits)) - 1;
    static constexpr std::uint32_t NoSlot = SlotMask;

    static std::uint64_t FreeEntry(std::uint32_t nGeneration, std::uint32_t nNext) {
        return static_cast<std::uint64_t>(nGeneration) << 32 | static_cast<std::uint64_t>(nNext) << 1 | 1;
    }
    static std::uint32_t GenerationOf(std::uint64_t nEntry) {
        return static_cast<std::uint32_t>(nEntry >> 32);
    }
    static std::uint32_t NextOf(std::uint64_t nEntry) { return static_cast<std::uint32_t>(nEntry) >> 1; }
    std::uint32_t TakeSlot();

    std::vector<std::uint64_t> m_entries; ///< a header's address, or with bit 0 set a free slot
    std::uint32_t m_nFirstFree = NoSlot;
    std::uint32_t m_nLastFree = NoSlot;
    std::size_t m_nCount = 0;
};

std::uint32_t CHandleTable::TakeSlot() {
    if (m_nFirstFree == NoSlot) {
        if (m_entries.size() >= NoSlot) {
            return NoSlot;
        }
        m_entries.push_back(FreeEntry(1, NoSlot));
        return static_cast<std::uint32_t>(m_entries.size() - 1);
    }
    const std::uint32_t nSlot = m_nFirstFree;
    m_nFirstFree = NextOf(m_entries[nSlot]);
    if (m_nFirstFree == NoSlot) {
        m_nLastFree = NoSlot;
    }
    return nSlot;
}

HBUF32 CHandleTable::Add(Header* pHeader) {
    const std::uint32_t nSlot = TakeSlot();
    if (nSlot == NoSlot) {
        return 0;
    }
    pHeader->nGeneration = GenerationOf(m_entries[nSlot]);
    m_entries[nSlot] = reinterpret_cast<std::uintptr_t>(pHeader);
    ++m_nCount;
    return static_cast<HBUF32>(pHeader->nGeneration << SlotBits | nSlot);
}

Header* CHandleTable::Find(HBUF32 hBuf) const {
    const std::uint32_t nHandle = static_cast<std::uint32_t>(hBuf);
    const std::uint32_t nSlot = nHandle & SlotMask;
    if (nSlot >= m_entries.size() || (m_entries[nSlot] & 1) != 0) {
        return nullptr;
    }
    Header* pHeader = reinterpret_cast<Header*>(static_cast<std::uintptr_t>(m_entries[nSlot]));
    return pHeader->nGeneration == nHandle >> SlotBits ? pHeader : nullptr;
}

void CHandleTable::Remove(HBUF32 hBuf) {
    const Header* pHeader = Find(hBuf);
    const std::uint32_t nSlot = static_cast<std::uint32_t>(hBuf) & SlotMask;
    const std::uint32_t nGeneration = pHeader->nGeneration == LastGeneration ? 1 : pHeader->nGeneration + 1;
    m_entries[nSlot] = FreeEntry(nGeneration, NoSlot);
    if (m_nLastFree == NoSlot) {
        m_nFirstFree = nSlot;
    } else {
        m_entries[m_nLastFree] = FreeEntry(GenerationOf(m_entries[m_nLastFree]), nSlot);
    }
    m_nLastFree = nSlot;
    --m_nCount;
}

CHandleTable& Table() {
    static CHandleTable table;
    return table;
}

bool IsSize(int nWidth, int nHeight) {
    const auto side = [](int nSide) { return nSide >= 1 && nSide <= MaxSide; };
    return side(nWidth) && side(nHeight) &&
           static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight) <= MaxPixels;
}

/// A buffer's memory, cleared or not; null when there is none, or no room for more pixels.
Header* Allocate(int nUnit, int nWidth, int nHeight, bool bClear) {
    Header header{0, 0, static_cast<std::int16_t>(nWidth), static_cast<std::int16_t>(nHeight), nUnit};
    if (!platform::TakePixelBytes(ByteCount(header))) {
        return nullptr;
    }
    const std::size_t nBytes = sizeof(Header) + ByteCount(header) + buffer_host::ReadablePadding;
    void* pMemory = bClear ? std::calloc(1, nBytes) : std::malloc(nBytes);
    if (!pMemory) {
        platform::ReturnPixelBytes(ByteCount(header));
        return nullptr;
    }
    Header* pHeader = static_cast<Header*>(pMemory);
    *pHeader = header;
    std::memset(Pixels(pHeader) + ByteCount(header), 0, buffer_host::ReadablePadding);
    return pHeader;
}

void Release(Header* pHeader) {
    platform::ReturnPixelBytes(ByteCount(*pHeader));
    std::free(pHeader);
}

HBUF32 Enter(Header* pHeader) {
    const HBUF32 hBuf = pHeader ? Table().Add(pHeader) : 0;
    if (hBuf == 0 && pHeader) {
        Release(pHeader);
    }
    return hBuf;
}

} // namespace

int buf32Alloc(HBUF32* phBuf, int nBits, int nWidth, int nHeight, int nFill, int* pReserved) {
    if (pReserved) {
        *pReserved = 0;
    }
    if (!phBuf) {
        return 0;
    }
    *phBuf = 0;
    if ((nBits != 8 && nBits != 24 && nBits != 32) || !IsSize(nWidth, nHeight)) {
        return 0;
    }
    if (platform::FaultTrips("buffer")) {
        return 0;
    }
    *phBuf = Enter(Allocate(nBits / 8, nWidth, nHeight, nFill == 1));
    return *phBuf != 0;
}

void* buf32Lock(HBUF32 hBuf, int /*nMode*/) {
    Header* pHeader = Table().Find(hBuf);
    if (!pHeader) {
        return nullptr;
    }
    ++pHeader->nLocks;
    ++g_nLockCount;
    return Pixels(pHeader);
}

int buf32Unlock(HBUF32 hBuf) {
    Header* pHeader = Table().Find(hBuf);
    if (!pHeader || pHeader->nLocks == 0) {
        return 0;
    }
    --pHeader->nLocks;
    return 1;
}

int buf32Free(HBUF32 hBuf) {
    Header* pHeader = Table().Find(hBuf);
    if (!pHeader) {
        return 0;
    }
    Table().Remove(hBuf);
    Release(pHeader);
    return 1;
}

HBUF32 buf32DupBuf(HBUF32 hBuf) {
    Header* pHeader = Table().Find(hBuf);
    if (!pHeader || platform::FaultTrips("buffer")) {
        return 0;
    }
    Header* pCopy = Allocate(pHeader->nUnit, pHeader->nWidth, pHeader->nHeight, false);
    if (pCopy) {
        std::memcpy(Pixels(pCopy), Pixels(pHeader), ByteCount(*pHeader));
    }
    return Enter(pCopy);
}

int buf32GetWHU(HBUF32 hBuf, int* pnWidth, int* pnHeight, int* pnUnit) {
    const Header* pHeader = Table().Find(hBuf);
    if (!pHeader) {
        return 0;
    }
    if (pnWidth) {
        *pnWidth = pHeader->nWidth;
    }
    if (pnHeight) {
        *pnHeight = pHeader->nHeight;
    }
    if (pnUnit) {
        *pnUnit = pHeader->nUnit;
    }
    return 1;
}

namespace buffer_host {

View Look(HBUF32 hBuf) {
    Header* pHeader = Table().Find(hBuf);
    if (!pHeader) {
        return {};
    }
    return {Pixels(pHeader), pHeader->nWidth, pHeader->nHeight, pHeader->nUnit};
}

std::size_t BufferCount() { return Table().Count(); }

std::uint32_t LockCount() { return g_nLockCount; }

} // namespace buffer_host
