// The host's state as JSON. Keys stand in a fixed order; text is UTF-8 from the system code page; what is
// absent is null.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "stage.h"

using Json = nlohmann::ordered_json;

/// Whether a dump keeps the record of calls for the next look or ends it.
enum class Records { Keep, Take };

/// Writes one dump into `json`; false for a name that is no dump's. `trace` and `calls` hold what was
/// recorded since they were last taken.
bool Dump(CStage& stage, const std::string& name, Records records, Json& json);
/// One line of text.
std::string JsonText(const Json& json);
/// The text as JSON, in quotes.
std::string QuotedText(const CString& text);
/// "#RRGGBB".
std::string ColorText(COLORREF color);
