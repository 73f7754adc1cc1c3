// Allocations that fail.
#pragma once

/// While it lives, so many allocations succeed and the following fail.
class [[nodiscard]] CAllocationsScope {
  public:
    explicit CAllocationsScope(int nLeft);
    ~CAllocationsScope();
    CAllocationsScope(const CAllocationsScope&) = delete;
    CAllocationsScope& operator=(const CAllocationsScope&) = delete;
};
