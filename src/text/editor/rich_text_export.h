// From a rich-edit control to the rich-text record.
#pragma once

#include <afxcmn.h>

#include "host/rich_text.h"

/// Results of ExportRichText.
namespace rich_text_export {
inline constexpr int Done = 0;
inline constexpr int OutOfMemory = 8;
inline constexpr int NoText = 10;
} // namespace rich_text_export

/// Describes the control's text by a run for each stretch of one format, sizes in pixels at `nDpi` pixels an
/// inch. `*ppInfo` receives the record, the caller's to give to CHandleKiller, or null when the answer is not
/// Done. The control's selection and the format of it stand afterwards as before. Metrics are 0 where no font
/// or device context can be had.
int ExportRichText(CRichEditCtrl& control, int nDpi, QXRICHEDITINFO** ppInfo);
