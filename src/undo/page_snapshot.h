// A page as it was, and putting it back: objects with their groups, the host's values, the selection.
#pragma once

#include <cstdint>

#include "host/tool.h"

class CCanvas;
class CRefresh;

/// The page's top-level objects from front to back and the value that the host keeps for each, and its
/// selection in the order of selection. Nodes are not owned. Companions are not kept: whatever rebuilds them
/// may free them.
struct PageSnapshot {
    CList<std::int32_t, std::int32_t> values;
    CNodeRefList objects;
    CNodeRefList selection;
};

/// Replaces the snapshot. The canvas has a document. Without the host's table there are no values.
void CapturePage(CTool& tool, const CCanvas& canvas, PageSnapshot& page);
void CopyPage(const PageSnapshot& from, PageSnapshot& to);
/// Puts objects and selection back, each object with the companions that it has now, and fills the host's
/// table again.
void WriteBackPage(CTool& tool, const CCanvas& canvas, const PageSnapshot& page);

/// Two snapshots that change places at each step: what the next step puts back, and what the last one did.
struct PageSwap {
    PageSnapshot previous;
    PageSnapshot restore;

    /// Replaces both by the tool's page as it is; without a document they are empty.
    void Capture(CTool& tool);
    /// Puts the saved page back and keeps the live one. Adds the selection's outline before and after to the
    /// area.
    void Exchange(CTool& tool, const CCanvas& canvas, CRefresh& area);
};

/// The two halves that concern the order alone.
void CaptureObjects(const CCanvas& canvas, CNodeRefList& objects);
void WriteBackObjects(const CCanvas& canvas, const CNodeRefList& objects);
