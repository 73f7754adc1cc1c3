// What the tests of gestures share: a stage with a tool in hand, spoken of in a user's words.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/tool.h"
#include "stage.h"

/// So that a failed comparison shows rectangles and sizes as people write them.
void PrintTo(const CRect& rect, std::ostream* pOut);
void PrintTo(const CPoint& point, std::ostream* pOut);

using Names = std::vector<std::string>;
/// Rows of the trace, one text each: where, what, numbers.
using Steps = std::vector<std::string>;

/// The arranging operations; the first two put the excluded node in front, the first four change the order.
using Operation = void (CTool::*)();
inline constexpr std::array<Operation, 16> ArrangeOperations = {
    &CTool::m_fnBringForward,
    &CTool::m_fnBringToFront,
    &CTool::m_fnSendBackward,
    &CTool::m_fnSendToBack,
    &CTool::m_fnAlignLeft,
    &CTool::m_fnAlignTop,
    &CTool::m_fnAlignRight,
    &CTool::m_fnAlignBottom,
    &CTool::m_fnAlignMiddle,
    &CTool::m_fnAlignCenter,
    &CTool::m_fnAlignCenters,
    &CTool::m_fnDistributeVertically,
    &CTool::m_fnDistributeHorizontally,
    &CTool::m_fnSameWidth,
    &CTool::m_fnSameHeight,
    &CTool::m_fnSameSize,
};

/// A page of 400 by 300 and the plain select tool. Every operation acts or answers; tests assert.
class CGestureStage {
  public:
    CGestureStage();

    /// A solid picture at the front of the page.
    CImgNode* Picture(const std::string& name, int nX, int nY, int nWidth, int nHeight);
    /// The same with a frame that reaches 10 units beyond it on every side.
    CImgNode* FramedPicture(const std::string& name, int nX, int nY, int nWidth, int nHeight);
    /// Gives the node a grey shadow without softness; true when it was made.
    bool Shadow(const std::string& name, int nDx, int nDy, int nSoftness = 0);
    /// Another page and view, empty.
    void Page(int nWidth, int nHeight, double dZoom, CPoint ptScroll = {0, 0});

    /// The middle of a handle of the node, client pixels.
    CPoint Handle(const std::string& name, int nHandle);
    /// Press on the handle, two moves, release.
    void DragHandle(const std::string& name, int nHandle, CPoint ptTo);
    /// The node's client rectangle, frame included.
    CRect ClientRect(const std::string& name);

    CTool& Tool() { return *AsTool(stage.CurrentTool()); }
    IToolObjectOps& Ops() { return *stage.ToolInterface<IToolObjectOps>(); }
    IToolLink& Link() { return *stage.ToolInterface<IToolLink>(); }

    bool HasCapture() const;
    /// The pixel of the display cache as RGB.
    COLORREF CachePixel(int nX, int nY);
    /// The whole window as a person sees it.
    std::vector<std::uint32_t> Screen();
    /// The window after the whole page was composed afresh and the tool has shown its marks.
    std::vector<std::uint32_t> FreshScreen();
    /// The rows of view, undo, cursor and notifications since the last taking; panels are left out.
    Steps TakeSteps();
    /// Every node of the page with its rectangle, front to back, then the selection: one text.
    std::string Shape();
    int BuffersAlive() const;

    CStage stage;
};

class CGestureTest : public ::testing::Test, protected CGestureStage {};

inline constexpr COLORREF BaseColor = RGB(0x50, 0x50, 0x50);
inline constexpr COLORREF PictureColor = RGB(0xFF, 0, 0);
inline constexpr COLORREF ShadowColor = RGB(0x20, 0x40, 0x60);
inline constexpr COLORREF HandleColor = RGB(0xFF, 0xFF, 0);

/// Gives the object a frame node of that rectangle (document units). `rcFrame` and `rcPlaceHolder` are the
/// component's two rectangles, which the object keeps.
void GiveFrame(CVorDoc& doc, CImgNode& object, const CRect& rect, const CRect& rcFrame,
               const CRect& rcPlaceHolder);
