#include <array>
#include <climits>

#include "image/view_host.h"
#include "platform/pixels.h"
#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr int LargestSide = 32767;
/// More would be a slip that fills the machine's memory.
constexpr double MostPixels = 1 << 27;
/// A page's base image has three bytes a pixel; a view's window, its cache and the page below its marks have
/// four each.
constexpr double PageBytes = 3.0;
constexpr double ViewBytes = 12.0;

double PixelsOf(const CSize& size) { return static_cast<double>(size.cx) * size.cy; }

bool IsArea(double dWidth, double dHeight) {
    return dWidth >= 1.0 && dHeight >= 1.0 && dWidth <= LargestSide && dHeight <= LargestSide &&
           dWidth * dHeight <= MostPixels;
}

/// "W H" of something that has pixels.
CSize TakeSize(CArguments& args) {
    const int nWidth = args.IntIn("W", 1, LargestSide);
    const int nHeight = args.IntIn("H", 1, LargestSide);
    if (!IsArea(nWidth, nHeight)) {
        args.Fail("W by H is too large");
    }
    return CSize(nWidth, nHeight);
}

/// "X Y W H" of something that lies on the page.
CRect TakeRect(CArguments& args) {
    const CPoint point = args.Point("X Y");
    const CSize size = TakeSize(args);
    if (point.x > INT_MAX - size.cx || point.y > INT_MAX - size.cy) {
        args.Fail("X Y W H is out of range");
    }
    return CRect(point, size);
}

void Page(CRunner& run, CArguments& args) {
    const CSize size = TakeSize(args);
    const double dZoom = args.TakeWord("zoom") ? args.Double("Z") : 1.0;
    args.End();
    if (!IsArea(size.cx * dZoom, size.cy * dZoom)) {
        args.Fail("Z is out of range");
    }
    if (PixelsOf(size) * (PageBytes + ViewBytes * dZoom * dZoom) > platform::MostPixelBytes) {
        args.Fail("W by H has too many pixels");
    }
    if (!run.Stage().NewPage(size.cx, size.cy, dZoom)) {
        throw CScenarioError("no memory for the page");
    }
}

void Scroll(CRunner& run, CArguments& args) {
    const CPoint point = args.Point("X Y");
    args.End();
    run.Stage().SetScroll(point);
}

void View(CRunner& run, CArguments& args) {
    const CSize size = TakeSize(args);
    args.End();
    const CSize now = CViewHost::ClientSize(*run.Stage().Desk().View());
    if (platform::PixelBytesTaken() + ViewBytes * (PixelsOf(size) - PixelsOf(now)) >
        platform::MostPixelBytes) {
        args.Fail("W by H has too many pixels");
    }
    if (!run.Stage().SetViewSize(size.cx, size.cy)) {
        throw CScenarioError("no memory for the view");
    }
}

void Base(CRunner& run, CArguments& args) {
    if (args.NextIs(TokenKind::Color)) {
        const COLORREF crBase = args.Color("#RRGGBB");
        args.End();
        if (!run.Stage().SetBaseColor(crBase)) {
            throw CScenarioError("no memory for the base image");
        }
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
    const CRect rect = TakeRect(args);
    const PictureOptions options = ReadOptions(args);
    CStage& stage = run.Stage();
    std::string error = "no memory for the picture";
    const CImgNode* pNode =
        bColor ? stage.AddPicture(name, crFill, rect.left, rect.top, rect.Width(), rect.Height(), options)
               : stage.AddPictureFile(name, file.c_str(), rect.left, rect.top, rect.Width(), rect.Height(),
                                      options, error);
    if (!pNode) {
        throw CScenarioError((bColor ? name : file) + ": " + error);
    }
}

void Placeholder(CRunner& run, CArguments& args) {
    const std::string name = args.Name("NAME");
    const CRect rect = TakeRect(args);
    args.End();
    if (!run.Stage().AddPlaceholder(name, rect.left, rect.top, rect.Width(), rect.Height())) {
        throw CScenarioError(name + ": no memory for the placeholder");
    }
}

void Free(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.Node(args, "NAME");
    args.End();
    if (!run.Stage().FreeNode(pNode)) {
        throw CScenarioError("the node is on the page, or may come back to it when the open editor ends");
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
