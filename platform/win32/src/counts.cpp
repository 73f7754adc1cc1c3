#include "platform/counts.h"

#include "gdi/dc.h"
#include "gdi/objects.h"
#include "memory_blocks.h"
#include "menus.h"
#include "window_tree.h"

platform::LiveCounts platform::CountLive() {
    LiveCounts counts = {};
    counts.gdiObjects = win32::g_objects.Count() - win32::SharedObjects();
    counts.deviceContexts = win32::g_contexts.Count();
    counts.windows = win32::g_windows.Count();
    counts.menus = win32::g_menus.Count();
    counts.globalBlocks = win32::g_globalBlocks.Count();
    return counts;
}
