#include "memory_blocks.h"
#include "size_limits.h"

#include "platform/faults.h"

#include <cstdlib>
#include <new>

namespace win32 {

constinit CHandleTable<GlobalBlock, HandleKind::GlobalBlock> g_globalBlocks;

GlobalBlock::~GlobalBlock() { std::free(bytes); }

} // namespace win32

using win32::FailWith;
using win32::g_globalBlocks;
using win32::GlobalBlock;

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size) {
    const bool refused = size > win32::LargestBlock || platform::FaultTrips("record");
    std::unique_ptr<GlobalBlock> block(refused ? nullptr : new (std::nothrow) GlobalBlock);
    const SIZE_T room = size == 0 ? 1 : size;
    if (block) {
        block->bytes = flags & GMEM_ZEROINIT ? std::calloc(room, 1) : std::malloc(room);
        block->size = size;
    }
    const UINT_PTR handle = block && block->bytes ? g_globalBlocks.Add(std::move(block)) : 0;
    if (handle == 0) {
        FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    return reinterpret_cast<HGLOBAL>(handle);
}

LPVOID GlobalLock(HGLOBAL handle) {
    GlobalBlock* block = g_globalBlocks.Find(handle);
    if (!block) {
        FailWith(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    ++block->locks;
    return block->bytes;
}

BOOL GlobalUnlock(HGLOBAL handle) {
    GlobalBlock* block = g_globalBlocks.Find(handle);
    if (!block) {
        return FailWith(ERROR_INVALID_HANDLE);
    }
    if (block->locks == 0) {
        return FailWith(ERROR_NOT_LOCKED);
    }
    return --block->locks > 0 ? TRUE : FailWith(ERROR_SUCCESS);
}

HGLOBAL GlobalFree(HGLOBAL handle) {
    if (!g_globalBlocks.Remove(handle)) {
        FailWith(ERROR_INVALID_HANDLE);
        return handle;
    }
    return nullptr;
}

SIZE_T GlobalSize(HGLOBAL handle) {
    const GlobalBlock* block = g_globalBlocks.Find(handle);
    return block ? block->size : static_cast<SIZE_T>(FailWith(ERROR_INVALID_HANDLE));
}

HGLOBAL GlobalHandle(LPCVOID bytes) {
    const UINT_PTR handle =
        g_globalBlocks.HandleWhere([bytes](const GlobalBlock& b) { return b.bytes == bytes; });
    if (handle == 0) {
        FailWith(ERROR_INVALID_HANDLE);
    }
    return reinterpret_cast<HGLOBAL>(handle);
}
