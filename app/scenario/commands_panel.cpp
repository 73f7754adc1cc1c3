#include <array>

#include "desk/tool_catalog.h"
#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr int ShadowPage = 2;

std::string ToolClass(CArguments& args) {
    const std::string name = args.Name("CLASS");
    if (!FindToolRow(name)) {
        args.Fail("no tool class is called " + name);
    }
    return name;
}

void Handover(CRunner& run, CArguments& args) {
    const int nKind = args.Int("KIND");
    const int nPage = args.Int("VALUE");
    const std::string className = args.TakeWord("none") ? std::string() : ToolClass(args);
    args.End();
    if (nKind != kind::ObjectPage && nKind != kind::TextPage) {
        args.Fail("KIND is neither 7 nor 12");
    }
    run.Stage().Desk().SetHandover(nKind, nPage, className);
}

void Panel(CRunner& run, CArguments& args) {
    constexpr PanelChoice Choices[] = {PanelChoice::Auto,     PanelChoice::Object,
                                       PanelChoice::Text,     PanelChoice::ObjectAndText,
                                       PanelChoice::Composed, PanelChoice::Missing};
    const int nChoice = args.OneOf("the page", {"auto", "7", "12", "7+12", "6", "missing"});
    args.End();
    run.Stage().Desk().ShowPanel(Choices[nChoice]);
}

void PageShown(CRunner& run, CArguments& args) {
    const int nPage = args.TakeWord("shadow") ? ShadowPage : args.Int("N");
    args.End();
    run.Stage().Desk().Panels().nPageShown = nPage;
}

void Property(CRunner& run, CArguments& args) {
    constexpr int Kinds[] = {kind::ObjectPage, kind::TextPage, kind::ComposedPage, 0};
    const ToolRow* pRow = FindToolRow(ToolClass(args));
    const int nKind = Kinds[args.OneOf("the page", {"7", "12", "6", "none"})];
    args.End();
    run.Stage().Desk().SetPropertyKind(pRow->identity.classId, nKind);
}

void SetShadowRange(CPanelValues& values, CArguments& args) {
    if (args.TakeWord("none")) {
        values.rangeX.reset();
        values.rangeY.reset();
        return;
    }
    const int nXMin = args.Int("XMIN");
    const int nXMax = args.Int("XMAX");
    const int nYMin = args.Int("YMIN");
    const int nYMax = args.Int("YMAX");
    values.rangeX = PanelRange{nXMin, nXMax};
    values.rangeY = PanelRange{nYMin, nYMax};
}

void SetShadowDefaults(CPanelValues& values, CArguments& args) {
    values.bTextShadow = !args.TakeWord("off");
    if (!values.bTextShadow) {
        return;
    }
    values.nShadowX = args.Int("DX");
    values.nShadowY = args.Int("DY");
    values.nShadowSoftness = args.Int("SOFT");
    values.nShadowTransparency = args.Int("TRANSP");
    values.crShadow = args.Color("#RRGGBB");
}

void SetText(CPanelValues& values, CArguments& args) {
    values.fontName = args.String("FONT");
    values.nFontPoints = args.Int("PT");
    values.nAlignment = args.Int("ALIGN");
    values.nStyle = args.Int("STYLE");
    values.crText = args.Color("#RRGGBB");
}

void SetClipboard(CPanelValues& values, CArguments& args) {
    values.bRealClipboard = args.TakeWord("real");
    if (values.bRealClipboard) {
        return;
    }
    values.nCanCopy = args.Int("CANCOPY");
    values.nCanPaste = args.Int("CANPASTE");
    values.nClipboardResult = args.Int("RESULT");
}

// The values are changed as a whole or, when an argument is bad, not at all.
void PanelSet(CRunner& run, CArguments& args) {
    CPanelValues values = run.Stage().Desk().Panels();
    switch (args.OneOf("the setting", {"shadow-range", "shadow-defaults", "transparency", "text", "size-snap",
                                       "clipboard"})) {
    case 0: SetShadowRange(values, args); break;
    case 1: SetShadowDefaults(values, args); break;
    case 2: values.nTransparency = args.Int("N"); break;
    case 3: SetText(values, args); break;
    case 4: values.nSizeSnap = args.TakeWord("none") ? 0 : args.IntIn("N", 1, 32767); break;
    default: SetClipboard(values, args); break;
    }
    args.End();
    run.Stage().Desk().Panels() = values;
}

void FitToPlaceholder(CRunner& run, CArguments& args) {
    const CImgNode* pNode = run.Node(args, "NAME");
    const bool bFits = args.IntIn("0 or 1", 0, 1) == 1;
    args.End();
    run.Stage().Desk().PageObjects().SetFitsToPlaceHolder(pNode->m_nId, bFits);
}

constexpr std::array<CommandRow, 6> Rows = {{
    {"handover", "handover KIND VALUE CLASS|none", Handover},
    {"panel", "panel auto|7|12|7+12|6|missing", Panel},
    {"page-shown", "page-shown N|shadow", PageShown},
    {"property", "property CLASS 7|12|6|none", Property},
    {"panel-set",
     "panel-set shadow-range XMIN XMAX YMIN YMAX|none | shadow-defaults DX DY SOFT TRANSP #RRGGBB|off | "
     "transparency N | "
     "text \"FONT\" PT ALIGN STYLE #RRGGBB | size-snap N|none | clipboard CANCOPY CANPASTE RESULT|real",
     PanelSet},
    {"fit-to-placeholder", "fit-to-placeholder NAME 0|1", FitToPlaceholder},
}};

} // namespace

std::span<const CommandRow> PanelCommands() { return Rows; }
