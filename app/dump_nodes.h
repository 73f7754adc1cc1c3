// Dumps of nodes.
#pragma once

#include "dump.h"

Json PageJson(CStage& stage);
/// Every live node of the document, also off the page, by id.
Json NodesJson(CStage& stage);
/// A node's name; null for none and for one that is gone.
Json NameJson(CStage& stage, const CImgNode* pNode);
Json RectJson(const RECT& rect);
