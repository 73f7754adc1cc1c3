// The object commands of the context menu and the keyboard. Points are client pixels.
#pragma once

#include "host/tool.h"

namespace commands {
/// To and from the host's object clipboard; its answer, or 0 without one.
int Copy(CTool& tool, CPoint point);
int Paste(CTool& tool, CPoint point, int nFlag);
/// Takes the selected objects with their companions off the page. Nothing is recorded and nothing is freed;
/// the companions' links stay.
void Delete(CTool& tool);
/// Takes the shadows off the selected objects and frees them. Nothing is recorded; the settings stay.
void RemoveShadows(CTool& tool);
/// Opens the text object under the point in the editor of the tool that the text page brings up.
void EditTextAt(CTool& tool, CPoint point);
/// Takes the effects off the selected texts, when the object under the point is selected.
void RemoveTextEffect(CTool& tool, CPoint point);
} // namespace commands
