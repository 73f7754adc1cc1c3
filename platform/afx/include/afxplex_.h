#pragma once

// Blocks of equal elements, chained: the storage of the lists.

#include <windows.h>

#include <cstddef>

/// The head of one block; its elements follow it in the same allocation.
struct alignas(std::max_align_t) CPlex {
    CPlex* pNext;

    void* data() { return this + 1; }

    /// A block of `nMax` elements of `cbElement` bytes at the head of the chain; null, the chain unchanged,
    /// when memory is short.
    static CPlex* Create(CPlex*& pHead, UINT nMax, UINT cbElement);
    /// Frees this block and all behind it.
    void FreeDataChain();
};
