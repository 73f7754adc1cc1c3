#include <array>

#include "scenario/commands.h"

namespace {

constexpr std::array<CommandRow, 3> Rows = {{
    {"component", "component FILE (NAME X Y W H #RRGGBB|none [mask ellipse])...", nullptr},
    {"shadow-mode", "shadow-mode N", nullptr},
    {"frame", "frame apply FILE | apply-to FILE NAME... | remove | query", nullptr},
}};

} // namespace

std::span<const CommandRow> LaterCommands() { return Rows; }
