#include <array>
#include <climits>

#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr int LargestText = 32767; ///< pixels
constexpr int StyleBold = 1;
constexpr int StyleItalic = 2;
constexpr int StyleUnderline = 4;
/// Beyond it a text's far edge could leave the numbers.
constexpr int FarthestText = 1'000'000'000;

TextEffect TakeEffect(CArguments& args) {
    constexpr std::array<TextEffect, 3> Effects = {TextEffect::Outline, TextEffect::Glow, TextEffect::Emboss};
    const int nEffect = args.OneOf("the effect", {"outline", "glow", "emboss"});
    return Effects[static_cast<std::size_t>(nEffect)];
}

TextOptions ReadOptions(CArguments& args) {
    TextOptions options;
    while (!args.AtEnd()) {
        if (args.TakeWord("font")) {
            options.font = args.Name("F");
        } else if (args.TakeWord("px")) {
            options.pixels = args.IntIn("N", 1, LargestText);
        } else if (args.TakeWord("bold")) {
            options.style |= StyleBold;
        } else if (args.TakeWord("italic")) {
            options.style |= StyleItalic;
        } else if (args.TakeWord("underline")) {
            options.style |= StyleUnderline;
        } else if (args.TakeWord("align")) {
            options.alignment = args.IntIn("align", 0, 2);
        } else if (args.TakeWord("color")) {
            options.color = args.Color("#RRGGBB");
        } else if (args.TakeWord("effect")) {
            options.effect = TakeEffect(args);
        } else if (args.TakeWord("off-page")) {
            options.offPage = true;
        } else {
            args.End();
        }
    }
    return options;
}

void Text(CRunner& run, CArguments& args) {
    const std::string name = args.Name("NAME");
    const std::string text = args.String("TEXT");
    const int nX = args.IntIn("X", -FarthestText, FarthestText);
    const int nY = args.IntIn("Y", -FarthestText, FarthestText);
    const TextOptions options = ReadOptions(args);
    if (!run.Stage().AddText(name, text, nX, nY, options)) {
        throw CScenarioError(name + ": no text object can be made of this text");
    }
}

void SetFont(CRunner& run, CArguments& args) {
    const std::string name = args.String("F");
    args.End();
    const CString font(name.data(), static_cast<int>(name.size()));
    run.Say(run.ToolInterface<ITextAttributeTarget>().SetFontName(font));
}

void SetColor(CRunner& run, CArguments& args) {
    const COLORREF crText = args.Color("#RRGGBB");
    args.End();
    run.Say(run.ToolInterface<ITextAttributeTarget>().SetColor(crText));
}

using NumberSetter = int (ITextAttributeTarget::*)(int);
void SetNumber(CRunner& run, CArguments& args, NumberSetter pfnSet) {
    const int nValue = args.Int("N");
    args.End();
    run.Say((run.ToolInterface<ITextAttributeTarget>().*pfnSet)(nValue));
}

void Attribute(CRunner& run, CArguments& args) {
    switch (args.OneOf("the attribute", {"font", "size", "align", "style", "color"})) {
    case 0: SetFont(run, args); break;
    case 1: SetNumber(run, args, &ITextAttributeTarget::SetFontSize); break;
    case 2: SetNumber(run, args, &ITextAttributeTarget::SetAlignment); break;
    case 3: SetNumber(run, args, &ITextAttributeTarget::SetStyle); break;
    default: SetColor(run, args); break;
    }
}

void Edit(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    const CPoint point = args.ClientPoint("X Y");
    args.End();
    run.Say(run.ToolInterface<ITextEditEntry>().EditTextNode(pNode, &point));
}

constexpr std::array<CommandRow, 3> Rows = {{
    {"text",
     "text NAME \"TEXT\" X Y [font \"F\"] [px N] [bold] [italic] [underline] [align 0|1|2] [color #RRGGBB] "
     "[effect outline|glow|emboss] [off-page]",
     Text},
    {"attr", "attr font \"F\" | size PT | align N | style BITS | color #RRGGBB", Attribute},
    {"edit", "edit NAME X Y", Edit},
}};

} // namespace

std::span<const CommandRow> TextCommands() { return Rows; }
