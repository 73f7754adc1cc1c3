// What a scenario expects of the host's state.
#pragma once

#include "dump.h"
#include "scenario/runner.h"

/// Carries out `expect`. Throws CExpectationFailed when it does not hold, CScenarioError when it cannot be
/// told.
void Expect(CRunner& run, CArguments& args);
/// What a path names in a fresh dump, or in the last answer (`last`, `last.NAME`): null for what is not
/// there. Throws CScenarioError for an unknown dump and a malformed path.
Json Resolve(CRunner& run, const std::string& path);
/// Whether `found OP value` holds, OP one of == != < <= > >= contains. Throws CScenarioError for another.
bool Holds(const Json& found, const std::string& op, const Json& value);
