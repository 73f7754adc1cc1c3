#include "host/buffer.h"

#include <cstdlib>
#include <cstring>

#include "buffer/buffer_host.h"
#include "buffer/handle_table.h"
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

CHandleTable<Header>& Table() {
    static CHandleTable<Header> table;
    return table;
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
    if ((nBits != 8 && nBits != 24 && nBits != 32) || !buffer_host::IsSize(nWidth, nHeight)) {
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

bool IsSize(int nWidth, int nHeight) {
    const auto side = [](int nSide) { return nSide >= 1 && nSide <= MaxSide; };
    return side(nWidth) && side(nHeight) &&
           static_cast<std::size_t>(nWidth) * static_cast<std::size_t>(nHeight) <= MaxPixels;
}

OwnPixels::OwnPixels(int nUnit, int nWidth, int nHeight) {
    const View wanted{nullptr, nWidth, nHeight, nUnit};
    if (!IsSize(nWidth, nHeight)) {
        return;
    }
    const std::size_t nBytes = wanted.RowBytes() * static_cast<std::size_t>(nHeight) + ReadablePadding;
    memory = platform::MakePixels((nBytes + sizeof(DWORD) - 1) / sizeof(DWORD));
    if (memory) {
        view = wanted;
        view.pixels = reinterpret_cast<std::uint8_t*>(memory.get());
    }
}

std::size_t BufferCount() { return Table().Count(); }

std::uint32_t LockCount() { return g_nLockCount; }

} // namespace buffer_host
