#include <array>

#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr int LargestSide = 32767;

void Page(CRunner& run, CArguments& args) {
    const int nWidth = args.IntIn("W", 1, LargestSide);
    const int nHeight = args.IntIn("H", 1, LargestSide);
    const double dZoom = args.TakeWord("zoom") ? args.Double("Z") : 1.0;
    args.End();
    const bool bFits = dZoom > 0.0 && nWidth * dZoom >= 1.0 && nHeight * dZoom >= 1.0 &&
                       nWidth * dZoom <= LargestSide && nHeight * dZoom <= LargestSide;
    if (!bFits) {
        args.Fail("Z is out of range");
    }
    run.Stage().NewPage(nWidth, nHeight, dZoom);
}

void Scroll(CRunner& run, CArguments& args) {
    const CPoint point = args.Point("X Y");
    args.End();
    run.Stage().SetScroll(point);
}

void View(CRunner& run, CArguments& args) {
    const int nWidth = args.IntIn("W", 1, LargestSide);
    const int nHeight = args.IntIn("H", 1, LargestSide);
    args.End();
    run.Stage().SetViewSize(nWidth, nHeight);
}

void Base(CRunner& run, CArguments& args) {
    if (args.NextIs(TokenKind::Color)) {
        const COLORREF crBase = args.Color("#RRGGBB");
        args.End();
        run.Stage().SetBaseColor(crBase);
        return;
    }
    const bool bNone = args.TakeWord("none");
    const std::string file = bNone ? std::string() : args.Name("FILE");
    args.End();
    std::string error;
    if (!run.Stage().SetBaseFile(bNone ? nullptr : file.c_str(), error)) {
        throw CScenarioError(file + ": " + error);
    }
}

PictureOptions ReadOptions(CArguments& args) {
    PictureOptions options;
    while (!args.AtEnd()) {
        if (args.TakeWord("mask")) {
            args.OneOf("mask", {"ellipse"});
            options.ellipseMask = true;
        } else if (args.TakeWord("keep-proportions")) {
            options.keepProportions = true;
        } else if (args.TakeWord("mask-scale")) {
            options.maskScale = args.Int("N");
        } else if (args.TakeWord("offset")) {
            options.hasOffset = true;
            options.offset = args.Point("DX DY");
        } else {
            args.End();
        }
    }
    return options;
}

void PictureCommand(CRunner& run, CArguments& args) {
    const std::string name = args.Name("NAME");
    const bool bColor = args.NextIs(TokenKind::Color);
    const COLORREF crFill = bColor ? args.Color("#RRGGBB") : 0;
    const std::string file = bColor ? std::string() : args.Name("#RRGGBB or FILE");
    const CPoint point = args.Point("X Y");
    const int nWidth = args.IntIn("W", 1, LargestSide);
    const int nHeight = args.IntIn("H", 1, LargestSide);
    const PictureOptions options = ReadOptions(args);
    CStage& stage = run.Stage();
    std::string error = "no memory for the picture";
    const CImgNode* pNode =
        bColor ? stage.AddPicture(name, crFill, point.x, point.y, nWidth, nHeight, options)
               : stage.AddPictureFile(name, file.c_str(), point.x, point.y, nWidth, nHeight, options, error);
    if (!pNode) {
        throw CScenarioError((bColor ? name : file) + ": " + error);
    }
}

void Placeholder(CRunner& run, CArguments& args) {
    const std::string name = args.Name("NAME");
    const CPoint point = args.Point("X Y");
    const int nWidth = args.IntIn("W", 1, LargestSide);
    const int nHeight = args.IntIn("H", 1, LargestSide);
    args.End();
    if (!run.Stage().AddPlaceholder(name, point.x, point.y, nWidth, nHeight)) {
        throw CScenarioError(name + ": no memory for the placeholder");
    }
}

void Free(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.Node(args, "NAME");
    args.End();
    if (!run.Stage().FreeNode(pNode)) {
        throw CScenarioError("the node is on the page");
    }
}

void Exclude(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    args.End();
    run.Stage().Exclude(pNode);
}

constexpr std::array<CommandRow, 8> Rows = {{
    {"page", "page W H [zoom Z]", Page},
    {"scroll", "scroll X Y", Scroll},
    {"view", "view W H", View},
    {"base", "base FILE|#RRGGBB|none", Base},
    {"picture",
     "picture NAME #RRGGBB|FILE X Y W H [mask ellipse] [keep-proportions] [mask-scale N] [offset DX DY]",
     PictureCommand},
    {"placeholder", "placeholder NAME X Y W H", Placeholder},
    {"free", "free NAME", Free},
    {"exclude", "exclude NAME|none", Exclude},
}};

} // namespace

std::span<const CommandRow> StageCommands() { return Rows; }
