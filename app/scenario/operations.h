// The operations that the command `op` reaches.
#pragma once

#include "scenario/arguments.h"
#include "scenario/runner.h"

/// Carries out `op NAME|main:N|ops:N [ARG...]` on the current tool.
void RunOperation(CRunner& run, CArguments& args);
