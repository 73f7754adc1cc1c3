// The page that the host's property area shows.
#pragma once

#include "host/kinds.h"
#include "host/panels.h"
#include "host/tool.h"
#include "ops/bus.h"

namespace host_page {

inline constexpr int ShadowPage = 2;

/// Whether the property area shows the shadow page.
inline bool IsShadowPageShowing(CTool& tool) {
    IPropertyArea* const pArea = bus::FindService<IPropertyArea>(tool, kind::PropertyArea);
    return pArea && pArea->GetPage() == ShadowPage;
}

/// Shows the page unless it is showing already. A missing property area is passed over.
inline void Show(CTool& tool, int nPage) {
    tool.ClassifySelection();
    IPropertyArea* const pArea = bus::FindService<IPropertyArea>(tool, kind::PropertyArea);
    if (pArea && pArea->GetPage() != nPage) {
        pArea->ShowPage(nPage);
    }
}

} // namespace host_page
