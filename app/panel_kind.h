// What a tool answers when it is asked for its panel kind.
#pragma once

class CListenerObject;

/// The bus kind of the page that the tool pairs with, or 0 for a tool that pairs with none. The operation
/// stands behind those that all tools share, at a place that differs by family, so it is called through the
/// family's own declaration.
int AskPanelKind(CListenerObject& tool);
