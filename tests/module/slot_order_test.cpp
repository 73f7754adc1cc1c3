// The order of virtual operations is a contract. Each number is compared with the place that the compiler
// gave the operation, read from its member pointer.
#include <cstddef>
#include <cstring>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "host/document_service.h"
#include "host/notifications.h"
#include "host/object_clipboard.h"
#include "host/panels.h"
#include "host/tool_category.h"
#include "host/undo.h"
#include "text/tools/text_tool.h"
#include "tools/basic_object_tool.h"
#include "tools/display_tool.h"
#include "tools/frame_tool.h"
#include "tools/shadow_tool.h"
#include "undo/sel_changed_event.h"

namespace {

// The place of a virtual operation in its class's first table of virtual operations, from 0. The compiler
// keeps it in the member pointer as one more than the byte offset.
template <class TPointer>
std::ptrdiff_t PlaceOf(TPointer pOperation) {
    std::ptrdiff_t words[2] = {};
    static_assert(sizeof(words) == sizeof(pOperation));
    std::memcpy(words, &pOperation, sizeof(words));
    EXPECT_EQ(words[0] & 1, 1) << "not a virtual operation";
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

struct Operation {
    int nNumber;
    std::ptrdiff_t place;
};

template <class TPointer>
Operation Op(int nNumber, TPointer pOperation) {
    return {nNumber, PlaceOf(pOperation)};
}

void ExpectPlaces(const char* pszWhat, const std::vector<Operation>& operations, std::size_t nCount) {
    EXPECT_EQ(operations.size(), nCount) << pszWhat;
    for (const Operation& operation : operations) {
        EXPECT_EQ(operation.place, operation.nNumber - 1) << pszWhat << " operation " << operation.nNumber;
    }
}

// The destructor is the fourth main operation and takes two places in the table.
std::ptrdiff_t MainPlace(int nNumber) { return nNumber < 4 ? nNumber - 1 : nNumber; }

void ExpectMainPlaces(const std::vector<Operation>& operations) {
    for (const Operation& operation : operations) {
        EXPECT_EQ(operation.place, MainPlace(operation.nNumber)) << "main operation " << operation.nNumber;
    }
}

// The compiler repeats an interface's operation in the table of the class that first implements it. Such
// places do not count among the main operations.
std::set<std::ptrdiff_t> ObjectOpsPlaces() {
    using C = CToolCore;
    return {
        PlaceOf(&C::OnToolActivate),
        PlaceOf(&C::ClearSelection),
        PlaceOf(&C::DeselectAll),
        PlaceOf(&C::AddToSelection),
        PlaceOf(&C::SetSelection),
        PlaceOf(&C::ShowSelectionMarks),
        PlaceOf(&C::RefreshNodeShadow),
        PlaceOf(&C::FlushSelectionArea),
        PlaceOf(&C::RedrawSelectionArea),
        PlaceOf(&C::GetSelectionRect),
        PlaceOf(&C::GetSelectionOutlineRect),
        PlaceOf(&C::FlushViewRect),
        PlaceOf(&C::RedrawRect),
        PlaceOf(&C::KeepNodeInView),
        PlaceOf(&C::GetNodesRect),
        PlaceOf(&C::GetNodeMarkArea),
        PlaceOf(&C::ClassifySelection),
        PlaceOf(&C::CreateTextNode),
        PlaceOf(&C::RecolorTextNode),
        PlaceOf(&C::ReplaceTextNode),
        PlaceOf(&C::RebuildTextNodeInPlace),
        PlaceOf(&C::SyncAttributePanels),
        PlaceOf(&C::SetSharedValue),
        PlaceOf(&C::CopyNodeLook),
        PlaceOf(&C::HookNode),
        PlaceOf(&C::RecordSelectionUndo),
        PlaceOf(&C::RecordAttributeUndoForSelection),
        PlaceOf(&C::RecordAttributeUndo),
        PlaceOf(&C::RecordAddObjectUndo),
        PlaceOf(&C::NotifyObjectsChanged),
        PlaceOf(&C::NotifyObjectsRedrawn),
        PlaceOf(&C::ClassifyNodes),
        PlaceOf(&C::SyncToolPanel),
        PlaceOf(&C::ShowNodeFrame),
        PlaceOf(&C::GetNodeRectOf),
        PlaceOf(&C::GetNodeMarkAreaOf),
        PlaceOf(&C::CanRunCommand),
        PlaceOf(&C::MakePlaceholderFrame),
    };
}

std::set<std::ptrdiff_t> InterfacePlaces() {
    using L = CToolListener;
    using C = CToolCore;
    std::set<std::ptrdiff_t> places = {
        PlaceOf(&L::SetExcludedNode),    PlaceOf(&L::GetExcludedNode),     PlaceOf(&L::DuplicateNode),
        PlaceOf(&L::IsPointOnSelection), PlaceOf(&L::DuplicateNodeScaled), PlaceOf(&L::CreateNodeShadow),
        PlaceOf(&L::BlendBaseImage),     PlaceOf(&C::GetToolClassId),      PlaceOf(&C::GetToolGroupId),
        PlaceOf(&C::OnLButtonDblClk),    PlaceOf(&C::OnLButtonDown),       PlaceOf(&C::OnLButtonUp),
        PlaceOf(&C::OnMouseMove),        PlaceOf(&C::OnRButtonDown),       PlaceOf(&C::Reserved6),
        PlaceOf(&C::Reserved7),          PlaceOf(&C::OnKeyDown),           PlaceOf(&C::OnKeyUp),
        PlaceOf(&C::Reserved10),         PlaceOf(&C::MergeIntoBaseImage),
    };
    places.merge(ObjectOpsPlaces());
    return places;
}

// The number of a main operation that stands behind the interfaces' repeated places.
int NumberOf(std::ptrdiff_t place) {
    std::ptrdiff_t nRepeated = 0;
    for (const std::ptrdiff_t repeated : InterfacePlaces()) {
        nRepeated += repeated < place ? 1 : 0;
    }
    return static_cast<int>(place - nRepeated);
}

} // namespace

TEST(SlotOrder, IdentityHasTwoOperations) {
    ExpectPlaces("IToolIdentity",
                 {Op(1, &IToolIdentity::GetToolClassId), Op(2, &IToolIdentity::GetToolGroupId)}, 2);
}

TEST(SlotOrder, ObjectOpsHasThirtyEightOperations) {
    using I = IToolObjectOps;
    ExpectPlaces("IToolObjectOps",
                 {Op(1, &I::OnToolActivate),
                  Op(2, &I::ClearSelection),
                  Op(3, &I::DeselectAll),
                  Op(4, &I::AddToSelection),
                  Op(5, &I::SetSelection),
                  Op(6, &I::ShowSelectionMarks),
                  Op(7, &I::RefreshNodeShadow),
                  Op(8, &I::FlushSelectionArea),
                  Op(9, &I::RedrawSelectionArea),
                  Op(10, &I::GetSelectionRect),
                  Op(11, &I::GetSelectionOutlineRect),
                  Op(12, &I::FlushViewRect),
                  Op(13, &I::RedrawRect),
                  Op(14, &I::KeepNodeInView),
                  Op(15, &I::GetNodesRect),
                  Op(16, &I::GetNodeMarkArea),
                  Op(17, &I::ClassifySelection),
                  Op(18, &I::CreateTextNode),
                  Op(19, &I::RecolorTextNode),
                  Op(20, &I::ReplaceTextNode),
                  Op(21, &I::RebuildTextNodeInPlace),
                  Op(22, &I::SyncAttributePanels),
                  Op(23, &I::SetSharedValue),
                  Op(24, &I::CopyNodeLook),
                  Op(25, &I::HookNode),
                  Op(26, &I::RecordSelectionUndo),
                  Op(27, &I::RecordAttributeUndoForSelection),
                  Op(28, &I::RecordAttributeUndo),
                  Op(29, &I::RecordAddObjectUndo),
                  Op(30, &I::NotifyObjectsChanged),
                  Op(31, &I::NotifyObjectsRedrawn),
                  Op(32, &I::ClassifyNodes),
                  Op(33, &I::SyncToolPanel),
                  Op(34, &I::ShowNodeFrame),
                  Op(35, &I::GetNodeRectOf),
                  Op(36, &I::GetNodeMarkAreaOf),
                  Op(37, &I::CanRunCommand),
                  Op(38, &I::MakePlaceholderFrame)},
                 38);
}

TEST(SlotOrder, InputHasTenOperations) {
    using I = IToolInput;
    ExpectPlaces("IToolInput",
                 {Op(1, &I::OnLButtonDblClk), Op(2, &I::OnLButtonDown), Op(3, &I::OnLButtonUp),
                  Op(4, &I::OnMouseMove), Op(5, &I::OnRButtonDown), Op(6, &I::Reserved6),
                  Op(7, &I::Reserved7), Op(8, &I::OnKeyDown), Op(9, &I::OnKeyUp), Op(10, &I::Reserved10)},
                 10);
}

TEST(SlotOrder, LinkHasSevenOperationsAndAuxOne) {
    using I = IToolLink;
    ExpectPlaces("IToolLink",
                 {Op(1, &I::SetExcludedNode), Op(2, &I::GetExcludedNode), Op(3, &I::MergeIntoBaseImage),
                  Op(4, &I::DuplicateNode), Op(5, &I::IsPointOnSelection), Op(6, &I::DuplicateNodeScaled),
                  Op(7, &I::CreateNodeShadow)},
                 7);
    ExpectPlaces("IToolAux", {Op(1, &IToolAux::BlendBaseImage)}, 1);
}

TEST(SlotOrder, MainOperationsToTwentySixStandAtTheirNumbers) {
    using T = CToolCore;
    const std::vector<Operation> operations = {
        Op(1, &T::IsKindOf),
        Op(2, &T::QueryInterface),
        Op(3, &T::QueryState),
        Op(5, &T::GetGroupIdOverride),
        Op(6, &T::GetToolRect),
        Op(7, &T::OnObjectHook),
        Op(8, &T::ResetHost),
        Op(9, &T::OnSetCursor),
        Op(10, &T::IsCtrlDown),
        Op(11, &T::GetNodeMarkRect),
        Op(12, &T::GetNodeOutlineMarkRect),
        Op(13, &T::GetNodeRect),
        Op(14, &T::GetNodeOutlineRect),
        Op(15, &T::DrawSelectionMark),
        Op(16, &T::DrawShadowMark),
        Op(17, &T::DrawMarkRect),
        Op(18, &T::Reserved18),
        Op(19, &T::InvalidateSelectionMark),
        Op(20, &T::InvalidateMarkRect),
        Op(21, &T::HitTestSelected),
        Op(22, &T::PtInNodeOutline),
        Op(23, &T::m_fnBringForward),
        Op(24, &T::m_fnSendBackward),
        Op(25, &T::m_fnBringToFront),
        Op(26, &T::m_fnSendToBack),
    };
    EXPECT_EQ(operations.size(), 25u); // twenty-six less the destructor
    ExpectMainPlaces(operations);
}

TEST(SlotOrder, ObjectCommandsToFiftyStandAtTheirNumbers) {
    using T = CToolCore;
    const std::vector<Operation> operations = {
        Op(27, &T::m_fnCopy),
        Op(28, &T::m_fnPaste),
        Op(29, &T::m_fnDelete),
        Op(30, &T::Empty30),
        Op(31, &T::Empty31),
        Op(32, &T::m_fnRemoveFrame),
        Op(33, &T::m_fnRemoveShadow),
        Op(34, &T::m_fnEditTextAt),
        Op(35, &T::m_fnRemoveTextEffect),
        Op(36, &T::m_fnAlignLeft),
        Op(37, &T::m_fnAlignTop),
        Op(38, &T::m_fnAlignRight),
        Op(39, &T::m_fnAlignBottom),
        Op(40, &T::m_fnAlignMiddle),
        Op(41, &T::m_fnAlignCenter),
        Op(42, &T::m_fnAlignCenters),
        Op(43, &T::m_fnDistributeVertically),
        Op(44, &T::m_fnDistributeHorizontally),
        Op(45, &T::m_fnSameWidth),
        Op(46, &T::m_fnSameHeight),
        Op(47, &T::m_fnSameSize),
        Op(48, &T::Reserved48),
        Op(49, &T::Reserved49),
        Op(50, &T::OnNodeResized),
    };
    EXPECT_EQ(operations.size(), 24u);
    ExpectMainPlaces(operations);
}

TEST(SlotOrder, DerivedClassesAppendTheirMainOperations) {
    EXPECT_EQ(InterfacePlaces().size(), 58u);
    EXPECT_EQ(NumberOf(PlaceOf(&CObjectTool::ResizeTextNode)), 51);
    EXPECT_EQ(NumberOf(PlaceOf(&CBasicObjectTool::GetPanelKind)), 52);
    EXPECT_EQ(NumberOf(PlaceOf(&CDisplayTool::GetPanelKind)), 52);
    EXPECT_EQ(NumberOf(PlaceOf(&CFrameToolBase::GetPanelKind)), 52);
    EXPECT_EQ(NumberOf(PlaceOf(&CShadowTool::InvalidateShadowMark)), 52);
    EXPECT_EQ(NumberOf(PlaceOf(&CShadowTool::GetPanelKind)), 53);
    // SelectOnly and the five attribute operations, which their interfaces repeat, stand before it.
    const auto pEdit = static_cast<int (CTextTool::*)(CImgNode*, int, int)>(&CTextTool::EditTextNode);
    EXPECT_EQ(NumberOf(PlaceOf(pEdit)), 53 + 6);
}

TEST(SlotOrder, UndoEventsStandBehindTheFiveOfTheirBase) {
    using E = CUndoEvent;
    // GetRuntimeClass, the destructor with its two places, Serialize, AssertValid and Dump.
    constexpr int BasePlaces = 6;
    const std::vector<Operation> operations = {
        Op(1, &E::IsDummyUndo),
        Op(2, &E::Accumulate),
        Op(3, static_cast<BOOL (E::*)(IProject_Method2*, CImgNode*, int)>(&E::SetUndo)),
        Op(4, static_cast<BOOL (E::*)(IProject_Method2*, CImgNodeList&, int)>(&E::SetUndo)),
        Op(5, static_cast<BOOL (E::*)(IProject_Method2*, int)>(&E::SetUndo)),
        Op(6, &E::Undo),
        Op(7, &E::Redo),
        Op(8, &E::Free),
        Op(9, &E::Cancel),
        Op(10, static_cast<void (E::*)(CRect*)>(&E::GetRedrawRect)),
        Op(11, static_cast<void (E::*)(CRect&)>(&E::GetRedrawRect)),
        Op(12, &E::ToolTipNeedText),
    };
    for (const Operation& operation : operations) {
        EXPECT_EQ(operation.place, BasePlaces + operation.nNumber - 1)
            << "undo operation " << operation.nNumber;
    }
    EXPECT_EQ(PlaceOf(&CSelChangedUndoEvent::Undo), PlaceOf(&E::Undo));
}

TEST(SlotOrder, HostInterfacesKeepTheirSlots) {
    EXPECT_EQ(PlaceOf(&ICurrentToolService::GetCurrentTool), 1);
    EXPECT_EQ(PlaceOf(&ICurrentToolService::GetPropertyObject), 2);
    EXPECT_EQ(PlaceOf(&IPropertyArea::ShowPage), 2);
    EXPECT_EQ(PlaceOf(&IShadowPanel::ShowShadow), 1);
    EXPECT_EQ(PlaceOf(&IShadowPanel::ShowNone), 2);
    EXPECT_EQ(PlaceOf(&IShadowPanel::SetHasShadow), 3);
    EXPECT_EQ(PlaceOf(&IShadowPanel::GetRangeY), 5);
    EXPECT_EQ(PlaceOf(&ITextAttributePanel::ShowAttributes), 2);
    EXPECT_EQ(PlaceOf(&ITextAttributePanel::AdjustSize), 4);
    EXPECT_EQ(PlaceOf(&ITextAttributePanel::GetAttributes), 5);
    EXPECT_EQ(PlaceOf(&IDisplayPanel::ShowDisplay), 2);
    EXPECT_EQ(PlaceOf(&IPageObjects::AppendValue), 4);
    EXPECT_EQ(PlaceOf(&IPageObjects::GetValue), 5);
    EXPECT_EQ(PlaceOf(&IPageObjects::ClearValues), 6);
    EXPECT_EQ(PlaceOf(&IPageObjects::FitsToPlaceHolder), 58);
    EXPECT_EQ(PlaceOf(&IChangeTracker::SetChanged), 2);
    EXPECT_EQ(PlaceOf(&IObjectClipboard::Paste), 3);
    EXPECT_EQ(PlaceOf(&IToolCategory::AddTool), 0);
    EXPECT_EQ(PlaceOf(&ITextAttributeTarget::SetAlignment), 2);
    EXPECT_EQ(PlaceOf(&ITextAttributeTarget::SetColor), 4);
    EXPECT_EQ(PlaceOf(&ITextEditEntry::EditTextNode), 0);
    EXPECT_EQ(PlaceOf(&IInplaceEditorNotify::OnInputEnded), 0);
}
