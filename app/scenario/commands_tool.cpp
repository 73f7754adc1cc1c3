#include <array>
#include <climits>

#include "image/picture_file.h"
#include "scenario/commands.h"
#include "scenario/error.h"
#include "scenario/operations.h"

namespace {

constexpr int FullStrength = 100; ///< percent

int TakeRedraw(CArguments& args) { return args.TakeWord("redraw") ? args.IntIn("0 or 1", 0, 1) : 1; }

void Tool(CRunner& run, CArguments& args) {
    std::string className;
    if (!args.TakeWord("none")) {
        className = args.Name("CLASS or none");
    }
    const Redraw redraw = TakeRedraw(args) == 1 ? Redraw::Yes : Redraw::No;
    args.End();
    if (!run.Stage().UseTool(className, redraw)) {
        throw CScenarioError("no tool of that class: " + className);
    }
}

void Select(CRunner& run, CArguments& args) {
    std::vector<std::string> names;
    if (!args.TakeWord("none")) {
        do {
            const std::string name = args.Name("NAME");
            if (!run.Stage().Node(name)) {
                throw CScenarioError("no node is called " + name);
            }
            names.push_back(name);
        } while (!args.AtEnd());
    }
    args.End();
    run.RequireTool();
    run.Stage().Select(names);
}

void SelectOnly(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    args.End();
    run.Say(run.ToolInterface<ISelectOnly>().SelectOnly(pNode));
}

void ServiceDuplicate(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    const int nAdd = args.Int("ADD");
    const bool bNoOut = args.TakeWord("no-out");
    args.End();
    CImgNode* pCopy = nullptr;
    std::int32_t nError = 0;
    const int nResult =
        run.ToolInterface<IToolLink>().DuplicateNode(pNode, bNoOut ? nullptr : &pCopy, nAdd, &nError);
    const std::string copy = pCopy ? run.Stage().Names().Of(pCopy) : "none";
    if (nError != 0) {
        run.Say(nResult, {{"error", std::to_string(nError)}, {"copy", copy}});
    } else {
        run.Say(nResult, {{"copy", copy}});
    }
}

void ServiceOnSelection(CRunner& run, CArguments& args) {
    CPoint point = args.Point("X Y");
    const bool bNoOut = args.TakeWord("no-out");
    args.End();
    std::int32_t nAnswer = 0;
    std::int32_t nError = 0;
    const int nResult =
        run.ToolInterface<IToolLink>().IsPointOnSelection(&point, bNoOut ? nullptr : &nAnswer, &nError);
    if (nError != 0) {
        run.SayWithError(nResult, nError);
    } else {
        run.Say(nResult, {{"answer", std::to_string(nAnswer)}});
    }
}

void ServiceMerge(CRunner& run, CArguments& args) {
    Picture picture;
    if (!args.TakeWord("none")) {
        const std::string file = args.Name("FILE");
        std::string error;
        if (!LoadPicture(file.c_str(), picture, error)) {
            throw CScenarioError(file + ": " + error);
        }
    }
    const int nRedraw = TakeRedraw(args);
    args.End();
    std::int32_t nError = 0;
    const int nResult = run.ToolInterface<IToolLink>().MergeIntoBaseImage(
        picture.image.Get(), picture.mask.Get(), FullStrength, nRedraw, &nError);
    run.SayWithError(nResult, nError);
}

void ServiceShadow(CRunner& run, CArguments& args) {
    CImgNode* pNode = run.NodeOrNone(args, "NAME or none");
    const int nOffsetX = args.Int("DX");
    const int nOffsetY = args.Int("DY");
    COLORREF crColor = args.Color("#RRGGBB");
    const int nSoftness = args.Int("SOFT");
    const int nTransparency = args.Int("TRANSP");
    args.End();
    std::int32_t nError = 0;
    const int nResult = run.ToolInterface<IToolLink>().CreateNodeShadow(pNode, nOffsetX, nOffsetY, &crColor,
                                                                        nSoftness, nTransparency, &nError);
    run.SayWithError(nResult, nError);
}

void Service(CRunner& run, CArguments& args) {
    switch (args.OneOf("the service",
                       {"merge", "duplicate", "on-selection", "shadow", "duplicate-scaled", "blend"})) {
    case 0: ServiceMerge(run, args); break;
    case 1: ServiceDuplicate(run, args); break;
    case 2: ServiceOnSelection(run, args); break;
    case 3: ServiceShadow(run, args); break;
    default: throw CNotBuilt("service");
    }
}

int MarkAttributes(CRunner& run, CArguments& args) {
    const int nId = args.IntIn("ID", 0, INT_MAX);
    args.End();
    return run.ToolInterface<IToolObjectOps>().RecordAttributeUndoForSelection(static_cast<UINT>(nId));
}

int MarkAttributesOf(CRunner& run, CArguments& args) {
    const int nId = args.IntIn("ID", 0, INT_MAX);
    CNodeRefList nodes;
    do {
        nodes.AddTail(run.Node(args, "NAME"));
    } while (!args.AtEnd());
    return run.ToolInterface<IToolObjectOps>().RecordAttributeUndo(nodes, static_cast<UINT>(nId));
}

int MarkPlain(CRunner& run, CArguments& args, int (IToolObjectOps::*pfnRecord)()) {
    args.End();
    return (run.ToolInterface<IToolObjectOps>().*pfnRecord)();
}

void Mark(CRunner& run, CArguments& args) {
    switch (args.OneOf("what to record", {"selection", "attributes", "attributes-of", "add-object"})) {
    case 0: run.Say(MarkPlain(run, args, &IToolObjectOps::RecordSelectionUndo)); break;
    case 1: run.Say(MarkAttributes(run, args)); break;
    case 2: run.Say(MarkAttributesOf(run, args)); break;
    default: run.Say(MarkPlain(run, args, &IToolObjectOps::RecordAddObjectUndo)); break;
    }
}

void Undo(CRunner& run, CArguments& args) {
    args.End();
    run.Say(run.Stage().Undo());
}

void Redo(CRunner& run, CArguments& args) {
    args.End();
    run.Say(run.Stage().Redo());
}

constexpr std::array<CommandRow, 8> Rows = {{
    {"tool", "tool CLASS|none [redraw 0|1]", Tool},
    {"select", "select NAME...|none", Select},
    {"select-only", "select-only NAME|none", SelectOnly},
    {"op", "op NAME|main:N|ops:N [ARG...]", RunOperation},
    {"service",
     "service duplicate NAME ADD | duplicate-scaled NAME S | on-selection X Y | shadow NAME DX DY #RRGGBB "
     "SOFT TRANSP | "
     "blend P | merge FILE [redraw 0|1]",
     Service},
    {"mark", "mark attributes ID | attributes-of ID NAME... | add-object | selection", Mark},
    {"undo", "undo", Undo},
    {"redo", "redo", Redo},
}};

} // namespace

std::span<const CommandRow> ToolCommands() { return Rows; }
