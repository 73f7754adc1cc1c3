// The exported operations of the open editor.
#pragma once

#include "scenario/arguments.h"
#include "scenario/runner.h"

class CInplaceEditor;
struct EditorCalls;

/// The open editor, or the operations of the loaded module's editors; both throw when there is none.
CInplaceEditor& RequireEditor(CRunner& run);
const EditorCalls& RequireEditorCalls(CRunner& run);
/// Carries out `editor OPERATION ARG...` on the open editor.
void RunEditorOperation(CRunner& run, CArguments& args);
