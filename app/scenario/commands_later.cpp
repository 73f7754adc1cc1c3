#include <array>

#include "scenario/commands.h"

namespace {

constexpr std::array<CommandRow, 9> Rows = {{
    {"text",
     "text NAME \"TEXT\" X Y [font \"F\"] [px N] [bold] [italic] [underline] [align 0|1|2] [color #RRGGBB] "
     "[effect outline|glow|emboss] [off-page]",
     nullptr},
    {"component", "component FILE (NAME X Y W H #RRGGBB|none [mask ellipse])...", nullptr},
    {"display", "display B C T", nullptr},
    {"node-display", "node-display NAME|none B C T", nullptr},
    {"shadow",
     "shadow count | apply DX DY #RRGGBB SOFT TRANSP | offset MASK X Y | color #RRGGBB | soft N | "
     "transparency N | remove",
     nullptr},
    {"shadow-mode", "shadow-mode N", nullptr},
    {"frame", "frame apply FILE | apply-to FILE NAME... | remove | query", nullptr},
    {"attr", "attr font \"F\" | size PT | align N | style BITS | color #RRGGBB", nullptr},
    {"edit", "edit NAME X Y", nullptr},
}};

} // namespace

std::span<const CommandRow> LaterCommands() { return Rows; }
