// What the open editor exports, in files.
#pragma once

#include "scenario/arguments.h"
#include "scenario/runner.h"

/// `FILE [scale S]`: the rich-text record's form in a file; no bytes at all for an empty text.
void ExportRichText(CRunner& run, CArguments& args);
/// `FILE`: the image or the mask of the text as a PNG. Throws when the editor has none to give.
void ExportTextImage(CRunner& run, CArguments& args);
void ExportTextMask(CRunner& run, CArguments& args);
