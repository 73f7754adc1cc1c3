#include <array>

#include "scenario/commands.h"

namespace {

struct DisplayArguments {
    int nBrightness;
    int nContrast;
    int nTransparency;
};

DisplayArguments TakeDisplay(CArguments& args) {
    const int nBrightness = args.Int("B");
    const int nContrast = args.Int("C");
    const int nTransparency = args.Int("T");
    args.End();
    return {nBrightness, nContrast, nTransparency};
}

void Display(CRunner& run, CArguments& args) {
    const DisplayArguments values = TakeDisplay(args);
    run.Say(run.ToolInterface<ISelectionDisplay>().SetSelectionDisplay(values.nBrightness, values.nContrast,
                                                                       values.nTransparency));
}

void NodeDisplay(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    const DisplayArguments values = TakeDisplay(args);
    std::int32_t nError = 0;
    const int nResult = run.ToolInterface<INodeDisplay>().SetNodeDisplay(
        pNode, values.nBrightness, values.nContrast, values.nTransparency, &nError);
    run.SayWithError(nResult, nError);
}

int ShadowApply(CArguments& args, IShadowSettings& settings) {
    const int nOffsetX = args.Int("DX");
    const int nOffsetY = args.Int("DY");
    const COLORREF crColor = args.Color("#RRGGBB");
    const int nSoftness = args.Int("SOFT");
    const int nTransparency = args.Int("TRANSP");
    args.End();
    return settings.ApplyShadow(nOffsetX, nOffsetY, &crColor, nSoftness, nTransparency);
}

int ShadowOffset(CArguments& args, IShadowSettings& settings) {
    const int nMask = args.Int("MASK");
    const int nX = args.Int("X");
    const int nY = args.Int("Y");
    args.End();
    return settings.SetOffset(nMask, nX, nY);
}

int ShadowColor(CArguments& args, IShadowSettings& settings) {
    const COLORREF crColor = args.Color("#RRGGBB");
    args.End();
    return settings.SetColor(&crColor);
}

template <int (IShadowSettings::*pfnSet)(int)>
int ShadowNumber(CArguments& args, IShadowSettings& settings) {
    const int nValue = args.Int("N");
    args.End();
    return (settings.*pfnSet)(nValue);
}

template <int (IShadowSettings::*pfnAsk)()>
int ShadowPlain(CArguments& args, IShadowSettings& settings) {
    args.End();
    return (settings.*pfnAsk)();
}

void Shadow(CRunner& run, CArguments& args) {
    using Handler = int (*)(CArguments&, IShadowSettings&);
    constexpr Handler Settings[] = {ShadowPlain<&IShadowSettings::GetCount>,
                                    ShadowApply,
                                    ShadowOffset,
                                    ShadowColor,
                                    ShadowNumber<&IShadowSettings::SetSoftness>,
                                    ShadowNumber<&IShadowSettings::SetTransparency>,
                                    ShadowPlain<&IShadowSettings::RemoveShadows>};
    const int nWhat =
        args.OneOf("the setting", {"count", "apply", "offset", "color", "soft", "transparency", "remove"});
    IShadowSettings& settings = run.ToolInterface<IShadowSettings>();
    run.Say(Settings[nWhat](args, settings));
}

constexpr std::array<CommandRow, 3> Rows = {{
    {"display", "display B C T", Display},
    {"node-display", "node-display NAME|none B C T", NodeDisplay},
    {"shadow",
     "shadow count | apply DX DY #RRGGBB SOFT TRANSP | offset MASK X Y | color #RRGGBB | soft N | "
     "transparency N | remove",
     Shadow},
}};

} // namespace

std::span<const CommandRow> SettingsCommands() { return Rows; }
