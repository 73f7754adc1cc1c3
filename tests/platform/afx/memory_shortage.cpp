#include "memory_shortage.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

bool g_isShort = false;
int g_nAllocations = 0;

} // namespace

testing_memory::CShortageScope::CShortageScope() { g_isShort = true; }
testing_memory::CShortageScope::~CShortageScope() { g_isShort = false; }

int testing_memory::CountAllocations() { return g_nAllocations; }

// All forms together: memory of one must be freed by its partner.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++g_nAllocations;
    return g_isShort ? nullptr : std::malloc(size != 0 ? size : 1);
}

void* operator new(std::size_t size) {
    ++g_nAllocations;
    void* const p = std::malloc(size != 0 ? size : 1);
    if (!p) {
        throw std::bad_alloc();
    }
    return p;
}

void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { std::free(p); }
