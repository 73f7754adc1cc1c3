#include <array>

#include "scenario/commands.h"

namespace {

constexpr std::array<CommandRow, 2> Rows = {{
    {"shadow-mode", "shadow-mode N", nullptr},
    {"frame", "frame apply FILE | apply-to FILE NAME... | remove | query", nullptr},
}};

} // namespace

std::span<const CommandRow> LaterCommands() { return Rows; }
