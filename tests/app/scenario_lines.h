// Runs lines of a scenario and keeps what the program says.
#pragma once

#include <sstream>
#include <string>

#include "scenario/runner.h"

/// The outcome of a run: exit status, standard output, standard error.
struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Runs the text as the file `t.scn`.
inline Outcome RunLines(const std::string& lines) {
    std::istringstream in(lines);
    std::ostringstream out;
    std::ostringstream err;
    const int nStatus = CRunner(out, err).Run(in, "t.scn");
    return {nStatus, out.str(), err.str()};
}
