// What the program does for its command line.
#pragma once

#include <iosfwd>

/// Carries out one call of `pradix`. Answers the exit status: 0, 1 for an expectation that does not hold, 2
/// for everything that cannot be carried out.
int RunProgram(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err);
