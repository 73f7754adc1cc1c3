#include "scenario/text_operations.h"

#include <optional>

#include "host/kinds.h"
#include "host/tool_ids.h"
#include "image/node_host.h"
#include "scenario/error.h"
#include "text/tools/text_tool.h"

namespace text_operations {

namespace {

CString ToCString(const std::string& bytes) { return {bytes.data(), static_cast<int>(bytes.size())}; }

void SayNode(CRunner& run, CImgNode* pNode) {
    run.Stage().Adopt(pNode);
    run.Say(pNode ? run.Stage().Names().Of(pNode) : "none");
}

/// A node of another type is handed over all the same: the tool looks at the type before anything else.
CTextNode* TextOrNone(CRunner& run, CArguments& args) {
    return static_cast<CTextNode*>(run.NodeOrNone(args, "NODE"));
}

using Replacing = int (IToolObjectOps::*)(CTextNode*, CTextNode*, int);

/// The tool deletes the rebuilt node when it has taken it.
void Replace(CRunner& run, CArguments& args, IToolObjectOps& ops, Replacing pfnReplace) {
    CTextNode* pOld = TextOrNone(run, args);
    CTextNode* pRebuilt = TextOrNone(run, args);
    const int nRedraw = args.Int("N");
    args.End();
    const bool bExcluded = pRebuilt && run.Stage().Desk().ExcludedNode() == pRebuilt;
    const int nResult = (ops.*pfnReplace)(pOld, pRebuilt, nRedraw);
    if (bExcluded && !CNodeBookkeeping::IsLive(pRebuilt)) {
        run.Stage().Exclude(nullptr);
    }
    run.Say(nResult);
}

void AtPoint(CRunner& run, CArguments& args, CTool& tool, void (CTool::*pfnOp)(CPoint)) {
    const CPoint point = args.ClientPoint("X Y");
    args.End();
    (tool.*pfnOp)(point);
    SayNothing(run);
}

void WithNode(CRunner& run, CArguments& args, CTool& tool, void (CTool::*pfnOp)(CImgNode*)) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    (tool.*pfnOp)(pNode);
    SayNothing(run);
}

} // namespace

void SayNothing(CRunner& run) { run.Say("none"); }

void CreateTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    const CString text = ToCString(args.String("TEXT"));
    const CString font = ToCString(args.String("FONT"));
    const COLORREF crText = args.Color("#RRGGBB");
    const int nPixels = args.Int("PX");
    const int nAlignment = args.Int("ALIGN");
    const int nStyle = args.Int("STYLE");
    args.End();
    SayNode(run, ops.CreateTextNode(text, font, crText, nPixels, nAlignment, nStyle));
}

void RecolorTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CTextNode* pNode = TextOrNone(run, args);
    const COLORREF crText = args.Color("#RRGGBB");
    args.End();
    SayNode(run, ops.RecolorTextNode(pNode, crText));
}

void ReplaceTextNode(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    Replace(run, args, ops, &IToolObjectOps::ReplaceTextNode);
}

void RebuildTextNodeInPlace(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    Replace(run, args, ops, &IToolObjectOps::RebuildTextNodeInPlace);
}

void CopyNodeLook(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pSource = run.NodeOrNone(args, "SOURCE");
    CImgNode* pTarget = run.NodeOrNone(args, "TARGET");
    args.End();
    run.Say(ops.CopyNodeLook(pSource, pTarget));
}

void OnObjectHook(CRunner& run, CArguments& args, CTool& tool) {
    WithNode(run, args, tool, &CTool::OnObjectHook);
}

void EditTextAt(CRunner& run, CArguments& args, CTool& tool) {
    AtPoint(run, args, tool, &CTool::m_fnEditTextAt);
}

void RemoveTextEffect(CRunner& run, CArguments& args, CTool& tool) {
    AtPoint(run, args, tool, &CTool::m_fnRemoveTextEffect);
}

void OnNodeResized(CRunner& run, CArguments& args, CTool& tool) {
    WithNode(run, args, tool, &CTool::OnNodeResized);
}

// Every tool that a host receives has this operation behind the common ones.
void ResizeTextNode(CRunner& run, CArguments& args, CTool& tool) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    std::optional<RECT> rect;
    if (!args.TakeWord("none")) {
        rect = args.Rect("RECT");
    }
    const int nHandle = args.Int("HANDLE");
    args.End();
    auto& objectTool = static_cast<CObjectTool&>(static_cast<CListenerObject&>(tool));
    SayNode(run, objectTool.ResizeTextNode(pNode, rect ? &*rect : nullptr, nHandle));
}

void EditTextNode(CRunner& run, CArguments& args, CTool& tool) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    const CPoint point = args.Point("X Y");
    args.End();
    int nIsText = 0;
    tool.IsKindOf(CategoryId, tool_kind::Text, &nIsText, nullptr);
    if (nIsText != 1) {
        throw CScenarioError("the current tool has no operation EditTextNode");
    }
    auto& textTool = static_cast<CTextTool&>(static_cast<CListenerObject&>(tool));
    run.Say(textTool.EditTextNode(pNode, point.x, point.y));
}

} // namespace text_operations
