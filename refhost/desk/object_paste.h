// How objects from the clipboard come on the desk's page.
#pragma once

#include "clipboard/object_bytes.h"

class CDesk;

/// Moves the objects with their companions so that the top-left of their joint bounds, frames included, is at
/// the document point. No picture is moved beyond 32 bits.
void MoveGroupsTo(const NodeGroups& groups, const CPoint& ptDoc);
/// Puts the objects at the head of the page, which owns them from then on, in their order and the excluded
/// node back in front of them; selects and shows them. The current tool records one step before and tells
/// everybody concerned after it.
void PasteGroups(CDesk& desk, NodeGroups groups);
