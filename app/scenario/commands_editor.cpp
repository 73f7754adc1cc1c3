#include <array>

#include "editor_binding.h"
#include "scenario/commands.h"
#include "scenario/editor_operations.h"

namespace {

void NewEditor(CRunner& run, CArguments& args) {
    const CPoint ptAnchor = args.ClientPoint("X Y");
    const std::string text = args.String("TEXT");
    const Show show = args.TakeWord("hidden") ? Show::Later : Show::Now;
    args.End();
    RequireEditorCalls(run);
    run.Say(run.Stage().NewEditor(ptAnchor, text, show));
}

void DestroyEditor(CRunner& run, CArguments& args) {
    args.End();
    run.Say(run.Stage().DestroyEditor());
}

void Editor(CRunner& run, CArguments& args) {
    if (args.TakeWord("new")) {
        NewEditor(run, args);
    } else if (args.TakeWord("destroy")) {
        DestroyEditor(run, args);
    } else {
        RunEditorOperation(run, args);
    }
}

void Convert(CRunner& run, CArguments& args) {
    const int nWhat = args.OneOf("the conversion", {"pt2px", "px2pt", "px2twip", "twip2px", "dpi"});
    const EditorCalls& calls = RequireEditorCalls(run);
    if (nWhat == 4) {
        args.End();
        run.Say(calls.m_fnGetDispdpi());
        return;
    }
    const int nValue = args.Int("N");
    args.End();
    int (*const conversions[])(int) = {calls.m_fnConvertFontPointToPixel,
                                       calls.m_fnConvertFontPixelToNearestPoint, calls.m_fnPix2Twip,
                                       calls.m_fnTwip2Pix};
    run.Say(conversions[nWhat](nValue));
}

constexpr std::array<CommandRow, 2> Rows = {{
    {"editor", "editor new X Y \"TEXT\" [hidden] | editor OPERATION ARG... | editor destroy", Editor},
    {"convert", "convert pt2px|px2pt|px2twip|twip2px N | convert dpi", Convert},
}};

} // namespace

std::span<const CommandRow> EditorCommands() { return Rows; }
