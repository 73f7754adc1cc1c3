#pragma once

namespace testing_memory {

/// While one lives, allocations that may answer null do.
class [[nodiscard]] CShortageScope {
  public:
    CShortageScope();
    ~CShortageScope();
    CShortageScope(const CShortageScope&) = delete;
    CShortageScope& operator=(const CShortageScope&) = delete;
};

/// Allocations of every kind since the program's start.
int CountAllocations();

} // namespace testing_memory
