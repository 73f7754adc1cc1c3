// What the host asks of the undo library beyond the contract.
#pragma once

#include <cstddef>

namespace undo_host {

/// The undo events alive in the process, recorded or not.
std::size_t EventCount();

} // namespace undo_host
