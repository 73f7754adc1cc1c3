// The tools that the host knows by class: their names, and the property page that each pairs with.
#pragma once

#include <array>
#include <string>

#include "host/tool_ids.h"

class CListenerObject;

/// A tool class with what this host adds to it.
struct ToolRow {
    ToolIdentity identity;
    bool bPanelAsShown; ///< the tool takes whichever page is showing, not that of its class
    int nPropertyKind;  ///< the page that is the class's property object; 0 for none
};

inline constexpr std::size_t ToolCount = 11;

/// The eleven tools in the order in which the module makes them.
const std::array<ToolRow, ToolCount>& ToolCatalog();
/// The row of a class name or class GUID, or null.
const ToolRow* FindToolRow(const std::string& name);
const ToolRow* FindToolRow(const GUID& classId);
/// The row of a tool, by the class GUID that it answers; null for a listener that is no tool.
const ToolRow* FindToolRow(CListenerObject* pTool);
