#pragma once

#include "handles.h"

namespace win32 {

struct GlobalBlock {
    GlobalBlock() = default;
    GlobalBlock(const GlobalBlock&) = delete;
    GlobalBlock& operator=(const GlobalBlock&) = delete;
    ~GlobalBlock();

    void* bytes = nullptr;
    SIZE_T size = 0;
    unsigned locks = 0;
};

extern CHandleTable<GlobalBlock, HandleKind::GlobalBlock> g_globalBlocks;

} // namespace win32
