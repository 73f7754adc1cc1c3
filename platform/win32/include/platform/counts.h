#pragma once

namespace platform {

/// What lives now. Stock objects, system colour brushes and a memory context's own 1 by 1 bitmap do not
/// count.
struct LiveCounts {
    unsigned gdiObjects;
    unsigned deviceContexts;
    unsigned windows;
    unsigned menus;
    unsigned globalBlocks;
};

LiveCounts CountLive();

} // namespace platform
