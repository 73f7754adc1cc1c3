// The eleven tools of the category.
#pragma once

#include <array>

class CObjectTool;

/// Makes one tool; null when it cannot be made. The caller owns it.
using ToolMaker = CObjectTool* (*)();

/// The makers, in the order in which the host receives the tools.
extern const std::array<ToolMaker, 11> ToolMakers;
