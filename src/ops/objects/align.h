// The seven alignments of the selected objects. Positions are document units; bounds include the frame.
#pragma once

#include "host/tool.h"

namespace align {
void Left(CTool& tool);
void Top(CTool& tool);
void Right(CTool& tool);
void Bottom(CTool& tool);
void Middle(CTool& tool);
void Center(CTool& tool);
void Centers(CTool& tool);

/// The reference object of an alignment, in client pixels and the order of the list: the first that is most
/// extreme. Rules: 0 smallest left, 1 smallest right, 2 smallest top, 3 smallest bottom, 4 largest right,
/// 6 largest bottom, 7 largest top, else largest left. Null for an empty list.
CImgNode* PickReference(CTool& tool, const CNodeRefList& nodes, int nRule);
} // namespace align
