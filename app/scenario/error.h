// How a scenario ends before its last line.
#pragma once

#include <stdexcept>
#include <string>

/// The line cannot be carried out: status 2. The text is without the file's name; it becomes one line, cut
/// when it is very long.
struct CScenarioError : std::runtime_error {
    explicit CScenarioError(const std::string& text);
};

/// The line is known, but what it drives does not exist yet: status 2.
struct CNotBuilt : CScenarioError {
    explicit CNotBuilt(const std::string& what) : CScenarioError("not built yet: " + what) {}
};

/// An expectation that does not hold: status 1.
struct CExpectationFailed : std::runtime_error {
    using std::runtime_error::runtime_error;
};
