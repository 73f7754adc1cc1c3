// Dumps of what the module called on the host.
#pragma once

#include <vector>

#include "dump.h"

/// Rows as the trace shows them.
Json TraceJson(CStage& stage, const std::vector<trace::Row>& rows);
/// Rows of bus objects, with `kind` for `on`.
Json CallsJson(CStage& stage, const std::vector<trace::Row>& rows);
/// The last arguments of each operation, by interface and operation number.
Json PanelsJson(CStage& stage);
