// What the panels were last told.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include <windows.h>

#include "trace/trace.h"

/// The arguments of the last call of each operation of the panels' interfaces.
class CToldRecord {
  public:
    using Operations = std::map<int, std::vector<trace::Value>>; ///< by operation number
    using Interfaces = std::map<std::string, Operations>;        ///< by GUID in text

    void Tell(const GUID& iid, int nOp, std::initializer_list<trace::Value> args);
    const Interfaces& All() const { return m_told; }

  private:
    Interfaces m_told;
};
