#include <array>

#include "dump.h"
#include "image/page_render.h"
#include "image/picture_file.h"
#include "platform/surface.h"
#include "scenario/commands.h"
#include "scenario/editor_export.h"
#include "scenario/error.h"
#include "scenario/expect.h"

namespace {

void DumpCommand(CRunner& run, CArguments& args) {
    do {
        const std::string name = args.Name("the dump");
        Json json;
        if (!Dump(run.Stage(), name, Records::Take, json)) {
            args.Fail("no dump is called " + name);
        }
        run.Print(name + " " + JsonText(json));
    } while (!args.AtEnd());
}

void SaveShot(const platform::Surface& surface, const CRect& rect, const std::string& file) {
    static_assert(sizeof(DWORD) == sizeof(std::uint32_t));
    const DWORD* pPixels =
        surface.pixels + static_cast<std::ptrdiff_t>(rect.top) * surface.stride + rect.left;
    std::string error;
    if (!SavePng(file.c_str(), pPixels, rect.Width(), rect.Height(), surface.stride, error)) {
        throw CScenarioError(file + ": " + error);
    }
}

void Shot(CRunner& run, CArguments& args) {
    const std::string file = args.Name("FILE.png");
    run.Stage().Paint();
    platform::Surface surface;
    if (!platform::LockSurface(run.Stage().Desk().View()->m_hWnd, &surface)) {
        throw CScenarioError("the view has no pixels");
    }
    const CRect rcView(0, 0, surface.width, surface.height);
    CRect rect = rcView;
    if (!args.AtEnd()) {
        const CPoint point = args.Point("X Y");
        const int nWidth = args.IntIn("W", 1, 32767);
        const int nHeight = args.IntIn("H", 1, 32767);
        rect = CRect(point.x, point.y, point.x + nWidth, point.y + nHeight);
    }
    args.End();
    const bool bInside =
        rect.left >= 0 && rect.top >= 0 && rect.right <= rcView.right && rect.bottom <= rcView.bottom;
    if (!bInside) {
        args.Fail("the rectangle reaches out of the view");
    }
    SaveShot(surface, rect, file);
}

void Render(CRunner& run, CArguments& args) {
    const std::string file = args.Name("FILE.png");
    const double dScale = args.TakeWord("scale") ? args.Double("S") : 1.0;
    args.End();
    std::string error;
    if (!RenderToFile(run.Stage(), file, dScale, error)) {
        throw CScenarioError(error);
    }
}

void Export(CRunner& run, CArguments& args) {
    const int nWhat = args.OneOf("what", {"richtext", "mask", "image", "base", "source-base"});
    if (nWhat < 3) {
        constexpr CommandHandler Exports[] = {ExportRichText, ExportTextMask, ExportTextImage};
        Exports[nWhat](run, args);
        return;
    }
    const std::string file = args.Name("FILE");
    args.End();
    const CVorDoc& doc = *run.Stage().Desk().Document();
    const HBUF32 hImage = nWhat == 3 ? doc.GetBaseImage() : doc.m_fnGetSrcBaseImage();
    std::string error;
    if (!hImage) {
        throw CScenarioError("the page has no such image");
    }
    if (!SaveBufferPng(file.c_str(), hImage, error)) {
        throw CScenarioError(file + ": " + error);
    }
}

void Echo(CRunner& run, CArguments& args) {
    std::string line;
    while (!args.AtEnd()) {
        line += (line.empty() ? "" : " ") + args.Any("TEXT").text;
    }
    run.Print(line);
}

constexpr std::array<CommandRow, 6> Rows = {{
    {"dump",
     "dump page|selection|undo|panels|calls|trace|cursor|input|editor|clipboard|tool|menu|nodes|resources "
     "...",
     DumpCommand},
    {"shot", "shot FILE.png [X Y W H]", Shot},
    {"render", "render FILE.png [scale S]", Render},
    {"export", "export richtext FILE [scale S] | mask FILE | image FILE | base FILE | source-base FILE",
     Export},
    {"expect", "expect PATH OP VALUE | expect pixel X Y ==|!= #RRGGBB [tolerance N]", Expect},
    {"echo", "echo TEXT", Echo},
}};

} // namespace

bool RenderToFile(CStage& stage, const std::string& file, double dScale, std::string& error) {
    RenderedPage page;
    if (!RenderPage(*stage.Desk().Document(), dScale, page)) {
        error = "the page cannot be rendered at that scale";
        return false;
    }
    if (!SavePng(file.c_str(), page.pixels.get(), page.width, page.height, page.width, error)) {
        error = file + ": " + error;
        return false;
    }
    return true;
}

std::span<const CommandRow> LookCommands() { return Rows; }
