#include "scenario/operations.h"

#include <array>
#include <climits>
#include <span>

#include "host/tool.h"
#include "panel_kind.h"
#include "scenario/error.h"
#include "scenario/text_operations.h"

namespace {

using MainHandler = void (*)(CRunner&, CArguments&, CTool&);
using OpsHandler = void (*)(CRunner&, CArguments&, IToolObjectOps&);
using text_operations::SayNothing;

/// One operation by number and name; no handler for one whose subject does not exist yet.
template <class Handler>
struct OperationRow {
    int nNumber;
    const char* pszName;
    Handler pfnRun;
};

void SayRect(CRunner& run, long long nResult, const RECT& rect) {
    run.Say(nResult, {{"rect", RectText(rect)}});
}

/// The shapes of operations: no argument, a number, a node, a node or none with a rectangle coming out, and
/// so on.
template <int (IToolObjectOps::*pfnOp)()>
void Plain(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    args.End();
    run.Say((ops.*pfnOp)());
}

template <int (IToolObjectOps::*pfnOp)(int)>
void OneNumber(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    const int nValue = args.Int("N");
    args.End();
    run.Say((ops.*pfnOp)(nValue));
}

template <int (IToolObjectOps::*pfnOp)(CImgNode*)>
void OneNode(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    run.Say((ops.*pfnOp)(pNode));
}

template <int (IToolObjectOps::*pfnOp)(RECT*)>
void RectOut(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    args.End();
    RECT rect{};
    const int nResult = (ops.*pfnOp)(&rect);
    SayRect(run, nResult, rect);
}

template <int (IToolObjectOps::*pfnOp)(const RECT*)>
void RectIn(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    if (args.TakeWord("none")) {
        args.End();
        run.Say((ops.*pfnOp)(nullptr));
        return;
    }
    const RECT rect = args.Rect("RECT");
    args.End();
    run.Say((ops.*pfnOp)(&rect));
}

template <int (IToolObjectOps::*pfnOp)(CNodeRefList&)>
void List(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CNodeRefList nodes;
    run.Nodes(args, "LIST", nodes);
    args.End();
    run.Say((ops.*pfnOp)(nodes));
}

/// Operations 35 and 36 answer the rectangle itself, so the result is its presence.
template <RECT* (IToolObjectOps::*pfnOp)(RECT*, CImgNode*)>
void RectOfNode(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    RECT rect{};
    const RECT* pAnswer = (ops.*pfnOp)(&rect, pNode);
    SayRect(run, pAnswer == &rect ? 1 : 0, rect);
}

void OnToolActivate(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CListenerObject* pOther = args.TakeWord("none") ? nullptr : run.ToolNamed(args);
    const int nActivate = args.Int("ACTIVATE");
    const int nRedraw = args.Int("REDRAW");
    args.End();
    run.Say(ops.OnToolActivate(pOther, nActivate, nRedraw));
}

void SetSelection(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CNodeRefList nodes;
    run.Nodes(args, "LIST", nodes);
    const int nToggle = args.Int("N");
    args.End();
    run.Say(ops.SetSelection(nodes, nToggle));
}

void GetNodesRect(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CNodeRefList nodes;
    run.Nodes(args, "LIST", nodes);
    args.End();
    RECT rect{};
    const int nResult = ops.GetNodesRect(nodes, &rect);
    SayRect(run, nResult, rect);
}

void GetNodeMarkArea(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    RECT rect{};
    const int nResult = ops.GetNodeMarkArea(pNode, &rect);
    SayRect(run, nResult, rect);
}

void ShowNodeFrame(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    const int nShow = args.Int("N");
    args.End();
    run.Say(ops.ShowNodeFrame(pNode, nShow));
}

void RefreshNodeShadow(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    const int nRedraw = args.Int("N");
    args.End();
    run.Say(ops.RefreshNodeShadow(pNode, nRedraw));
}

void RecordAttributeUndoForSelection(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    const int nId = args.IntIn("ID", 0, INT_MAX);
    args.End();
    run.Say(ops.RecordAttributeUndoForSelection(static_cast<UINT>(nId)));
}

void RecordAttributeUndo(CRunner& run, CArguments& args, IToolObjectOps& ops) {
    CNodeRefList nodes;
    run.Nodes(args, "LIST", nodes);
    const int nId = args.IntIn("ID", 0, INT_MAX);
    args.End();
    run.Say(ops.RecordAttributeUndo(nodes, static_cast<UINT>(nId)));
}

constexpr std::array<OperationRow<OpsHandler>, 38> Ops = {{
    {1, "OnToolActivate", OnToolActivate},
    {2, "ClearSelection", Plain<&IToolObjectOps::ClearSelection>},
    {3, "DeselectAll", OneNumber<&IToolObjectOps::DeselectAll>},
    {4, "AddToSelection", List<&IToolObjectOps::AddToSelection>},
    {5, "SetSelection", SetSelection},
    {6, "ShowSelectionMarks", OneNumber<&IToolObjectOps::ShowSelectionMarks>},
    {7, "RefreshNodeShadow", RefreshNodeShadow},
    {8, "FlushSelectionArea", Plain<&IToolObjectOps::FlushSelectionArea>},
    {9, "RedrawSelectionArea", Plain<&IToolObjectOps::RedrawSelectionArea>},
    {10, "GetSelectionRect", RectOut<&IToolObjectOps::GetSelectionRect>},
    {11, "GetSelectionOutlineRect", RectOut<&IToolObjectOps::GetSelectionOutlineRect>},
    {12, "FlushViewRect", RectIn<&IToolObjectOps::FlushViewRect>},
    {13, "RedrawRect", RectIn<&IToolObjectOps::RedrawRect>},
    {14, "KeepNodeInView", OneNode<&IToolObjectOps::KeepNodeInView>},
    {15, "GetNodesRect", GetNodesRect},
    {16, "GetNodeMarkArea", GetNodeMarkArea},
    {17, "ClassifySelection", Plain<&IToolObjectOps::ClassifySelection>},
    {18, "CreateTextNode", text_operations::CreateTextNode},
    {19, "RecolorTextNode", text_operations::RecolorTextNode},
    {20, "ReplaceTextNode", text_operations::ReplaceTextNode},
    {21, "RebuildTextNodeInPlace", text_operations::RebuildTextNodeInPlace},
    {22, "SyncAttributePanels", Plain<&IToolObjectOps::SyncAttributePanels>},
    {23, "SetSharedValue", OneNumber<&IToolObjectOps::SetSharedValue>},
    {24, "CopyNodeLook", text_operations::CopyNodeLook},
    {25, "HookNode", OneNode<&IToolObjectOps::HookNode>},
    {26, "RecordSelectionUndo", Plain<&IToolObjectOps::RecordSelectionUndo>},
    {27, "RecordAttributeUndoForSelection", RecordAttributeUndoForSelection},
    {28, "RecordAttributeUndo", RecordAttributeUndo},
    {29, "RecordAddObjectUndo", Plain<&IToolObjectOps::RecordAddObjectUndo>},
    {30, "NotifyObjectsChanged", Plain<&IToolObjectOps::NotifyObjectsChanged>},
    {31, "NotifyObjectsRedrawn", Plain<&IToolObjectOps::NotifyObjectsRedrawn>},
    {32, "ClassifyNodes", List<&IToolObjectOps::ClassifyNodes>},
    {33, "SyncToolPanel", Plain<&IToolObjectOps::SyncToolPanel>},
    {34, "ShowNodeFrame", ShowNodeFrame},
    {35, "GetNodeRectOf", RectOfNode<&IToolObjectOps::GetNodeRectOf>},
    {36, "GetNodeMarkAreaOf", RectOfNode<&IToolObjectOps::GetNodeMarkAreaOf>},
    {37, "CanRunCommand", Plain<&IToolObjectOps::CanRunCommand>},
    {38, "MakePlaceholderFrame", nullptr},
}};

template <int (CTool::*pfnOp)()>
void MainPlain(CRunner& run, CArguments& args, CTool& tool) {
    args.End();
    run.Say((tool.*pfnOp)());
}

template <void (CTool::*pfnOp)()>
void MainCommand(CRunner& run, CArguments& args, CTool& tool) {
    args.End();
    (tool.*pfnOp)();
    SayNothing(run);
}

template <void (CTool::*pfnOp)(CPoint)>
void MainAtPoint(CRunner& run, CArguments& args, CTool& tool) {
    const CPoint point = args.Point("X Y");
    args.End();
    (tool.*pfnOp)(point);
    SayNothing(run);
}

template <int (CTool::*pfnOp)(CImgNode*, RECT*)>
void MainRectOfNode(CRunner& run, CArguments& args, CTool& tool) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    RECT rect{};
    const int nResult = (tool.*pfnOp)(pNode, &rect);
    SayRect(run, nResult, rect);
}

template <int (CTool::*pfnOp)(CImgNode*)>
void MainNode(CRunner& run, CArguments& args, CTool& tool) {
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    run.Say((tool.*pfnOp)(pNode));
}

template <int (CTool::*pfnOp)(CPoint*, CImgNode*)>
void MainHit(CRunner& run, CArguments& args, CTool& tool) {
    CPoint point = args.Point("X Y");
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    run.Say((tool.*pfnOp)(&point, pNode));
}

/// Draws straight onto the view; the next paint of the place takes it away.
template <int (CTool::*pfnOp)(CDC*, CPoint*, CImgNode*)>
void MainDraw(CRunner& run, CArguments& args, CTool& tool) {
    CPoint ptOrigin = args.Point("X Y");
    CImgNode* pNode = run.NodeOrNone(args, "NODE");
    args.End();
    CClientDC dc(run.Stage().Desk().View());
    run.Say((tool.*pfnOp)(&dc, &ptOrigin, pNode));
}

void GetToolRect(CRunner& run, CArguments& args, CTool& tool) {
    args.End();
    RECT rect{};
    const int nResult = tool.GetToolRect(&rect);
    SayRect(run, nResult, rect);
}

void OnSetCursor(CRunner& run, CArguments& args, CTool& tool) {
    CPoint point = args.Point("X Y");
    args.End();
    tool.OnSetCursor(&point);
    SayNothing(run);
}

void Copy(CRunner& run, CArguments& args, CTool& tool) {
    const CPoint point = args.Point("X Y");
    args.End();
    run.Say(tool.m_fnCopy(point));
}

void Paste(CRunner& run, CArguments& args, CTool& tool) {
    const CPoint point = args.Point("X Y");
    const int nFlag = args.Int("N");
    args.End();
    run.Say(tool.m_fnPaste(point, nFlag));
}

void GetPanelKind(CRunner& run, CArguments& args, CTool& tool) {
    args.End();
    run.Say(AskPanelKind(tool));
}

constexpr std::array<OperationRow<MainHandler>, 48> Main = {{
    {6, "GetToolRect", GetToolRect},
    {7, "OnObjectHook", text_operations::OnObjectHook},
    {8, "host-reset", MainPlain<&CTool::ResetHost>},
    {9, "OnSetCursor", OnSetCursor},
    {10, "IsCtrlDown", MainPlain<&CTool::IsCtrlDown>},
    {11, "GetNodeMarkRect", MainRectOfNode<&CTool::GetNodeMarkRect>},
    {12, "GetNodeOutlineMarkRect", MainRectOfNode<&CTool::GetNodeOutlineMarkRect>},
    {13, "GetNodeRect", MainRectOfNode<&CTool::GetNodeRect>},
    {14, "GetNodeOutlineRect", MainRectOfNode<&CTool::GetNodeOutlineRect>},
    {15, "DrawSelectionMark", MainDraw<&CTool::DrawSelectionMark>},
    {16, "DrawShadowMark", MainDraw<&CTool::DrawShadowMark>},
    {17, "DrawMarkRect", MainDraw<&CTool::DrawMarkRect>},
    {18, "Reserved18", MainDraw<&CTool::Reserved18>},
    {19, "InvalidateSelectionMark", MainNode<&CTool::InvalidateSelectionMark>},
    {20, "InvalidateMarkRect", MainNode<&CTool::InvalidateMarkRect>},
    {21, "HitTestSelected", MainHit<&CTool::HitTestSelected>},
    {22, "PtInNodeOutline", MainHit<&CTool::PtInNodeOutline>},
    {23, "m_fnBringForward", MainCommand<&CTool::m_fnBringForward>},
    {24, "m_fnSendBackward", MainCommand<&CTool::m_fnSendBackward>},
    {25, "m_fnBringToFront", MainCommand<&CTool::m_fnBringToFront>},
    {26, "m_fnSendToBack", MainCommand<&CTool::m_fnSendToBack>},
    {27, "m_fnCopy", Copy},
    {28, "m_fnPaste", Paste},
    {29, "m_fnDelete", MainCommand<&CTool::m_fnDelete>},
    {30, "Empty30", MainCommand<&CTool::Empty30>},
    {31, "Empty31", MainCommand<&CTool::Empty31>},
    {32, "m_fnRemoveFrame", nullptr},
    {33, "m_fnRemoveShadow", MainCommand<&CTool::m_fnRemoveShadow>},
    {34, "m_fnEditTextAt", text_operations::EditTextAt},
    {35, "m_fnRemoveTextEffect", text_operations::RemoveTextEffect},
    {36, "m_fnAlignLeft", MainCommand<&CTool::m_fnAlignLeft>},
    {37, "m_fnAlignTop", MainCommand<&CTool::m_fnAlignTop>},
    {38, "m_fnAlignRight", MainCommand<&CTool::m_fnAlignRight>},
    {39, "m_fnAlignBottom", MainCommand<&CTool::m_fnAlignBottom>},
    {40, "m_fnAlignMiddle", MainCommand<&CTool::m_fnAlignMiddle>},
    {41, "m_fnAlignCenter", MainCommand<&CTool::m_fnAlignCenter>},
    {42, "m_fnAlignCenters", MainCommand<&CTool::m_fnAlignCenters>},
    {43, "m_fnDistributeVertically", MainCommand<&CTool::m_fnDistributeVertically>},
    {44, "m_fnDistributeHorizontally", MainCommand<&CTool::m_fnDistributeHorizontally>},
    {45, "m_fnSameWidth", MainCommand<&CTool::m_fnSameWidth>},
    {46, "m_fnSameHeight", MainCommand<&CTool::m_fnSameHeight>},
    {47, "m_fnSameSize", MainCommand<&CTool::m_fnSameSize>},
    {48, "Reserved48", MainAtPoint<&CTool::Reserved48>},
    {49, "Reserved49", MainAtPoint<&CTool::Reserved49>},
    {50, "OnNodeResized", text_operations::OnNodeResized},
    {51, "ResizeTextNode", text_operations::ResizeTextNode},
    {52, "GetPanelKind", GetPanelKind},
    {53, "EditTextNode", text_operations::EditTextNode},
}};

template <class Handler>
const OperationRow<Handler>* FindRow(std::span<const OperationRow<Handler>> rows, const std::string& prefix,
                                     const std::string& name) {
    for (const OperationRow<Handler>& row : rows) {
        if (name == row.pszName || name == prefix + std::to_string(row.nNumber)) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

void RunOperation(CRunner& run, CArguments& args) {
    const std::string name = args.Name("the operation");
    const auto* pOps = FindRow<OpsHandler>(Ops, "ops:", name);
    const auto* pMain = FindRow<MainHandler>(Main, "main:", name);
    if (!pOps && !pMain) {
        args.Fail("no operation is called " + name);
    }
    if (pOps ? !pOps->pfnRun : !pMain->pfnRun) {
        throw CNotBuilt("op " + name);
    }
    if (pOps) {
        pOps->pfnRun(run, args, run.ToolInterface<IToolObjectOps>());
    } else {
        pMain->pfnRun(run, args, *AsTool(run.RequireTool()));
    }
}
