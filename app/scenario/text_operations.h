// The operations on text objects that the command `op` reaches.
#pragma once

#include "host/tool.h"
#include "host/tool_interfaces.h"
#include "scenario/arguments.h"
#include "scenario/runner.h"

/// Each takes its arguments, calls the current tool and prints the answer: a node by its name, null and
/// nothing as `none`. A new node is off the page and belongs to the document.
namespace text_operations {

void SayNothing(CRunner& run);

void CreateTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops);
void RecolorTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops);
void ReplaceTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops);
void RebuildTextNodeInPlace(CRunner& run, CArguments& args, IToolObjectOps& ops);
void CopyNodeLook(CRunner& run, CArguments& args, IToolObjectOps& ops);

void OnObjectHook(CRunner& run, CArguments& args, CTool& tool);
void EditTextAt(CRunner& run, CArguments& args, CTool& tool);
void RemoveTextEffect(CRunner& run, CArguments& args, CTool& tool);
void OnNodeResized(CRunner& run, CArguments& args, CTool& tool);
void ResizeTextNode(CRunner& run, CArguments& args, CTool& tool);
/// Of the text tool alone; an error for another one.
void EditTextNode(CRunner& run, CArguments& args, CTool& tool);

} // namespace text_operations
