// The interfaces through which the host drives a tool. Operation n is the n-th declared one; the order is a
// contract.
//
// Points and rectangles are client pixels of the view unless said otherwise. Operations answer 1 for done or
// yes and 0 for nothing done, no, or failure. Node lists are read during the call and stay the caller's.
#pragma once

#include <cstdint>

#include <afxwin.h>

#include "host/buffer.h"
#include "host/img_node_list.h"

class CListenerObject;
class CTextNode;

struct IToolIdentity {
    static constexpr GUID Id = {0xC6ECE9D0, 0x8479, 0x4166, {0xA9, 0x4A, 0x46, 0x36, 0x7F, 0x52, 0xE2, 0xDE}};
    virtual const GUID& GetToolClassId() = 0;
    virtual const GUID& GetToolGroupId() = 0;
};

struct IToolObjectOps {
    static constexpr GUID Id = {0x68275AEC, 0x5D30, 0x44CD, {0xAB, 0xFA, 0x78, 0x7E, 0xD3, 0xD5, 0x84, 0xB9}};
    /// Activates (`nActivate` 1) or deactivates the tool. `pOther` is the tool being left, or null.
    virtual int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) = 0;
    /// Empties the selection; draws nothing.
    virtual int ClearSelection() = 0;
    /// Hides the marks and empties the selection, repainting when `nRedraw` is 1.
    virtual int DeselectAll(int nRedraw) = 0;
    /// Appends each node that is not selected yet; draws nothing.
    virtual int AddToSelection(CNodeRefList& nodes) = 0;
    /// `nToggle` 1: toggles each given node that is not selected, as one step. Else: appends every node.
    virtual int SetSelection(CNodeRefList& nodes, int nToggle) = 0;
    /// Draws the selection marks into the display cache (1), or removes them from it.
    virtual int ShowSelectionMarks(int nShow) = 0;
    /// Rebuilds the object's shadow and repaints it when `nRedraw` is 1.
    virtual int RefreshNodeShadow(CImgNode* pNode, int nRedraw) = 0;
    /// Flushes `GetSelectionOutlineRect` from the display cache, when something is selected.
    virtual int FlushSelectionArea() = 0;
    /// Repaints `GetSelectionOutlineRect` at once, when something is selected.
    virtual int RedrawSelectionArea() = 0;
    /// 10. The selection's rectangle; untouched when nothing is selected.
    virtual int GetSelectionRect(RECT* pRect) = 0;
    /// That rectangle joined with the outline rectangles of the selected nodes.
    virtual int GetSelectionOutlineRect(RECT* pRect) = 0;
    /// Flushes the rectangle from the view's display cache.
    virtual int FlushViewRect(const RECT* pRect) = 0;
    /// Has the view repaint the rectangle at once.
    virtual int RedrawRect(const RECT* pRect) = 0;
    /// Moves a node that lies wholly outside the view back to its edge.
    virtual int KeepNodeInView(CImgNode* pNode) = 0;
    /// The union of the corner bounds of the listed nodes; empty for an empty list.
    virtual int GetNodesRect(CNodeRefList& nodes, RECT* pRect) = 0;
    /// The union of the node's mark rectangle and outline mark rectangle.
    virtual int GetNodeMarkArea(CImgNode* pNode, RECT* pRect) = 0;
    /// 0 nothing, 1 one text, 2 several texts, 3 one other object, 4 several others, 5 mixed.
    virtual int ClassifySelection() = 0;
    /// A new text object at (0, 0), owned by the caller, or null. Size in pixels, alignment index, style
    /// bits.
    virtual CTextNode* CreateTextNode(const CString& strText, const CString& strFontName, COLORREF crColor,
                                      int nPixelSize, int nAlignment, int nStyle) = 0;
    virtual CTextNode* RecolorTextNode(CTextNode* pNode, COLORREF crColor) = 0;
    /// 20.
    virtual int ReplaceTextNode(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) = 0;
    virtual int RebuildTextNodeInPlace(CTextNode* pOld, CTextNode* pRebuilt, int nRedraw) = 0;
    /// Shows the selection's attributes in the host's panels.
    virtual int SyncAttributePanels() = 0;
    /// Stores one value for all tools and answers it.
    virtual int SetSharedValue(int nValue) = 0;
    virtual int CopyNodeLook(CImgNode* pSource, CImgNode* pTarget) = 0;
    /// Gives the node to the tool's object hook.
    virtual int HookNode(CImgNode* pNode) = 0;
    /// Records the selection as it is.
    virtual int RecordSelectionUndo() = 0;
    virtual int RecordAttributeUndoForSelection(UINT nDescriptionId) = 0;
    virtual int RecordAttributeUndo(CNodeRefList& nodes, UINT nDescriptionId) = 0;
    virtual int RecordAddObjectUndo() = 0;
    /// 30. Tells everybody concerned that the page's objects changed, and marks the document modified.
    virtual int NotifyObjectsChanged() = 0;
    virtual int NotifyObjectsRedrawn() = 0;
    /// `ClassifySelection` for a list.
    virtual int ClassifyNodes(CNodeRefList& nodes) = 0;
    /// Shows the property page that suits the tool, then `SyncAttributePanels`.
    virtual int SyncToolPanel() = 0;
    /// Draws a dotted frame along the inside of the node's rectangle into the display cache (1), or removes
    /// it.
    virtual int ShowNodeFrame(CImgNode* pNode, int nShow) = 0;
    /// The node's rectangle, empty for a null node. Both answer `pRect`.
    virtual RECT* GetNodeRectOf(RECT* pRect, CImgNode* pNode) = 0;
    virtual RECT* GetNodeMarkAreaOf(RECT* pRect, CImgNode* pNode) = 0;
    /// 0 while a gesture is running that a command would disturb, else 1.
    virtual int CanRunCommand() = 0;
    /// Gives the object an empty frame; the rectangle is document units.
    virtual int MakePlaceholderFrame(CImgNode* pObject, const RECT* pRect) = 0;
};

/// The view's events. Each answers nonzero when handled.
struct IToolInput {
    static constexpr GUID Id = {0x5B92BCD4, 0xE96B, 0x4A0D, {0xA5, 0xB8, 0x15, 0x8E, 0xE2, 0x7E, 0x60, 0x3F}};
    virtual int OnLButtonDblClk(UINT nFlags, CPoint point) = 0;
    virtual int OnLButtonDown(UINT nFlags, CPoint point) = 0;
    virtual int OnLButtonUp(UINT nFlags, CPoint point) = 0;
    virtual int OnMouseMove(UINT nFlags, CPoint point) = 0;
    virtual int OnRButtonDown(UINT nFlags, CPoint point) = 0;
    virtual int Reserved6(UINT nFlags, CPoint point) = 0;
    virtual int Reserved7(UINT nFlags, CPoint point) = 0;
    virtual int OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags) = 0;
    virtual int OnKeyUp(UINT nChar, UINT nRepeat, UINT nFlags) = 0;
    virtual int Reserved10(int nValue) = 0;
};

struct IToolLink {
    static constexpr GUID Id = {0x9344ABFD, 0x8AB9, 0x4CEB, {0x9F, 0xF3, 0xFC, 0xA4, 0xC8, 0x65, 0x71, 0x88}};
    /// The node that hit tests skip; null for none. Answers 1.
    virtual int SetExcludedNode(CImgNode* pNode) = 0;
    virtual CImgNode* GetExcludedNode() = 0;
    /// Merges `hImage` (24-bit) under `hMask` (8-bit or 0) at `nPercent` into the base image, which with the
    /// source base image becomes the result. The buffers stay the caller's. `pError` may be null; receives 0,
    /// 2 when a buffer cannot be made, 3 when there is no document or base image or the merge fails.
    virtual int MergeIntoBaseImage(HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                                   std::int32_t* pError) = 0;
    /// The node services. `pError` may be null; receives 0, 1 for a null argument, 3 for a failure, 4 for a
    /// scale not above 0.
    virtual int DuplicateNode(CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) = 0;
    virtual int IsPointOnSelection(CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError) = 0;
    virtual int DuplicateNodeScaled(CImgNode* pNode, CImgNode** ppCopy, double dScale,
                                    std::int32_t* pError) = 0;
    virtual int CreateNodeShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, COLORREF* pcrColor,
                                 int nSoftness, int nTransparency, std::int32_t* pError) = 0;
};

struct IToolAux {
    static constexpr GUID Id = {0x0E1C6DC7, 0x1DDE, 0x4881, {0x8A, 0xEE, 0xE4, 0x95, 0xDB, 0x63, 0x53, 0x54}};
    /// Blends the base image from its untouched copy at 0 to 100 percent.
    virtual int BlendBaseImage(int nPercent, std::int32_t* pError) = 0;
};

/// Of the plain object tools and the text tools.
struct ISelectOnly {
    static constexpr GUID Id = {0xEA53B334, 0x5C6F, 0x4873, {0x9B, 0x2D, 0xC0, 0x2E, 0x4F, 0x1A, 0xD3, 0xED}};
    /// Makes the node the only selected one; null deselects all.
    virtual int SelectOnly(CImgNode* pNode) = 0;
};

/// Of the text tools: the current text attributes, as the text page sets them.
struct ITextAttributeTarget {
    static constexpr GUID Id = {0x5D5721D3, 0xD8DA, 0x4CF2, {0x98, 0x4D, 0xCD, 0x47, 0x6E, 0x19, 0xD5, 0xB0}};
    virtual int SetFontName(const CString& strName) = 0;
    virtual int SetFontSize(int nPoints) = 0;
    /// 0 left, 1 centre, 2 right; any other value counts as left.
    virtual int SetAlignment(int nIndex) = 0;
    /// 1 bold, 2 italic, 4 underline.
    virtual int SetStyle(int nBits) = 0;
    virtual int SetColor(COLORREF crText) = 0;
};

/// Of the tools that can edit a text object on the page.
struct ITextEditEntry {
    static constexpr GUID Id = {0xB5435B5F, 0xED79, 0x410D, {0x85, 0x99, 0xC4, 0xF0, 0x33, 0xEB, 0xC1, 0x83}};
    /// Opens the object in the editor with the caret at the point. 1, or 0 when it is none to edit or no
    /// editor can be made.
    virtual int EditTextNode(CImgNode* pNode, const CPoint* pPoint) = 0;
};

/// Of the display tools: the display values of the selected objects. Brightness and contrast are -100 to 100,
/// transparency 0 (opaque) to 100; other values are stored as given and clamped when drawn.
struct ISelectionDisplay {
    static constexpr GUID Id = {0x8EBBC540, 0xBC92, 0x4B4A, {0xB7, 0x6D, 0x27, 0x0C, 0x21, 0x53, 0xBC, 0x8A}};
    /// Gives every selected object these values, as one undo step; -1 keeps an object's own value. 1, or 0
    /// when nothing is selected.
    virtual int SetSelectionDisplay(int nBrightness, int nContrast, int nTransparency) = 0;
};

struct INodeDisplay {
    static constexpr GUID Id = {0xF1BC04F9, 0xD8BE, 0x43A0, {0x93, 0x55, 0x14, 0x35, 0xD1, 0x2B, 0x4A, 0x16}};
    /// Gives one node these values, without undo and without a repaint. `pError` may be null; receives 0, 1
    /// for a null node, 3 when the node does not take them.
    virtual int SetNodeDisplay(CImgNode* pNode, int nBrightness, int nContrast, int nTransparency,
                               std::int32_t* pError) = 0;
};

/// Of the shadow tools: the shadows of the selected objects. Offsets and softness are document units,
/// transparency is 0 (opaque) to 100. Each of 2 to 7 is one undo step; it answers 1, also when nothing is
/// selected or nothing changes, and 0 when the undo step cannot be captured.
struct IShadowSettings {
    static constexpr GUID Id = {0x8B8FA91B, 0xAB2C, 0x4A9F, {0x80, 0x8E, 0xA0, 0xCA, 0x54, 0xB8, 0x01, 0xF7}};
    /// The number of selected objects.
    virtual int GetCount() = 0;
    /// Gives every selected object a new shadow; one that it has goes first. Softness -1 leaves it without.
    virtual int ApplyShadow(int nOffsetX, int nOffsetY, const COLORREF* pcrColor, int nSoftness,
                            int nTransparency) = 0;
    /// Moves the shadows. `nMask` bit 0 sets x, bit 1 sets y; the other offset stays.
    virtual int SetOffset(int nMask, int nX, int nY) = 0;
    virtual int SetColor(const COLORREF* pcrColor) = 0;
    /// 5.
    virtual int SetSoftness(int nSoftness) = 0;
    virtual int SetTransparency(int nTransparency) = 0;
    virtual int RemoveShadows() = 0;
};
