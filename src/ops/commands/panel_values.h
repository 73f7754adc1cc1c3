// Showing a selection's attributes in the host's panels.
#pragma once

#include "host/img_node_list.h"

class CListenerObject;

namespace panel_values {

/// The text values of the selected objects, to the page's text attribute panel. False when the page has none.
bool ShowText(CListenerObject& page, const CImgNodeList& selection);
/// The display values, once per selected object; -1 from where the objects differ. A page without a display
/// panel is skipped.
void ShowDisplay(CListenerObject& page, const CImgNodeList& selection);
/// The shadow values. A page without a shadow panel is skipped.
void ShowShadow(CListenerObject& page, const CImgNodeList& selection);
/// Whether the selection has a frame that can be removed. False when the page has no frame panel.
bool ShowFrame(CListenerObject& page, const CImgNodeList& selection);

} // namespace panel_values
