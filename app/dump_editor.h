// Dumps of the open editor and of the clipboard.
#pragma once

#include "dump.h"

/// The open editor, or null. Rectangles are client pixels of the view.
Json EditorJson(CStage& stage);
/// The clipboard's text, or null.
Json ClipboardJson(CStage& stage);
