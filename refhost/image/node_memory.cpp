#include "host/img_node.h"

#include <new>

#include "platform/faults.h"

// The two stand apart from all code that makes or destroys nodes: the compiler, seeing only one of them
// expanded there, would take them for a mismatch.

void* CImgNode::operator new(std::size_t nSize) noexcept {
    return platform::FaultTrips("node") ? nullptr : ::operator new(nSize, std::nothrow);
}

void CImgNode::operator delete(void* pNode) noexcept { ::operator delete(pNode); }
