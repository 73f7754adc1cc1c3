#include <array>

#include "scenario/commands.h"

namespace {

constexpr std::array<CommandRow, 6> Rows = {{
    {"component", "component FILE (NAME X Y W H #RRGGBB|none [mask ellipse])...", nullptr},
    {"display", "display B C T", nullptr},
    {"node-display", "node-display NAME|none B C T", nullptr},
    {"shadow",
     "shadow count | apply DX DY #RRGGBB SOFT TRANSP | offset MASK X Y | color #RRGGBB | soft N | "
     "transparency N | remove",
     nullptr},
    {"shadow-mode", "shadow-mode N", nullptr},
    {"frame", "frame apply FILE | apply-to FILE NAME... | remove | query", nullptr},
}};

} // namespace

std::span<const CommandRow> LaterCommands() { return Rows; }
