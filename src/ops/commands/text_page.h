// What the tools of the text page share: showing the page, and handing a click on to whom it brings up.
#pragma once

#include <optional>

#include "host/tool.h"

namespace text_page {
/// Shows the page of text attributes. False when the host has none.
bool Show(CTool& tool);
/// The input of the current tool when that is another one; null when it is this, or lacks it.
IToolInput* OtherToolInput(CTool& tool);
/// A double-click shows the page, unless Ctrl is down, and goes on to the tool that is current by then: its
/// answer, or nothing when that is this tool.
std::optional<int> HandOverDblClick(CTool& tool, UINT nFlags, CPoint point);
} // namespace text_page
