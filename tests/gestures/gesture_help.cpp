#include "gesture_help.h"

#include <numeric>
#include <ostream>
#include <sstream>
#include <variant>

#include "buffer/buffer_host.h"
#include "image/view_host.h"
#include "platform/surface.h"

namespace {

constexpr int FrameBorder = 10; ///< document units

void Write(std::ostream& out, const RECT& rect) {
    out << '[' << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom << ']';
}

bool IsNotification(const std::string& on) { return on == "51" || on == "38" || on == "45"; }

std::string TextOf(const trace::Row& row) {
    std::ostringstream out;
    out << row.on;
    if (!IsNotification(row.on)) {
        out << ' ' << row.op;
        for (const trace::Value& value : row.args) {
            if (const auto* pRect = std::get_if<RECT>(&value)) {
                out << ' ';
                Write(out, *pRect);
            } else if (const auto* pNumber = std::get_if<long long>(&value)) {
                out << ' ' << *pNumber;
            } else if (const auto* pText = std::get_if<std::string>(&value)) {
                out << ' ' << *pText;
            }
        }
    }
    return out.str();
}

std::vector<std::uint32_t> PixelsOf(HWND hWnd) {
    platform::Surface surface;
    std::vector<std::uint32_t> pixels;
    if (platform::LockSurface(hWnd, &surface)) {
        for (int y = 0; y < surface.height; ++y) {
            const DWORD* pRow = surface.pixels + static_cast<std::ptrdiff_t>(y) * surface.stride;
            pixels.insert(pixels.end(), pRow, pRow + surface.width);
        }
    }
    return pixels;
}

} // namespace

void PrintTo(const CRect& rect, std::ostream* pOut) { Write(*pOut, rect); }

void PrintTo(const CPoint& point, std::ostream* pOut) { *pOut << '(' << point.x << ',' << point.y << ')'; }

void GiveFrame(CVorDoc& doc, CImgNode& object, const CRect& rect, const CRect& rcFrame,
               const CRect& rcPlaceHolder) {
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    buf32Alloc(&hImage, 24, rect.Width(), rect.Height(), 1, nullptr);
    buf32Alloc(&hMask, 8, rect.Width(), rect.Height(), 1, nullptr);
    auto* pFrame = new CImgNode(&doc);
    pFrame->SetImage(hImage, hMask, rect.left, rect.top, 0);
    pFrame->m_nType = node_type::Frame;
    pFrame->m_pOwner = &object;
    object.m_pFrameNode = pFrame;
    object.m_rcFrame = rcFrame;
    object.m_rcPlaceHolder = rcPlaceHolder;
    doc.InsertNodeFor(&object, pFrame, 0);
}

CGestureStage::CGestureStage() {
    stage.LoadModule();
    Page(400, 300, 1.0);
    stage.UseTool("CSelectTool");
    stage.Trace();
}

void CGestureStage::Page(int nWidth, int nHeight, double dZoom, CPoint ptScroll) {
    stage.NewPage(nWidth, nHeight, dZoom);
    stage.SetScroll(ptScroll);
    stage.Paint();
}

CImgNode* CGestureStage::Picture(const std::string& name, int nX, int nY, int nWidth, int nHeight) {
    return stage.AddPicture(name, PictureColor, nX, nY, nWidth, nHeight);
}

CImgNode* CGestureStage::FramedPicture(const std::string& name, int nX, int nY, int nWidth, int nHeight) {
    CImgNode* pNode = Picture(name, nX, nY, nWidth, nHeight);
    CRect rect(nX, nY, nX + nWidth, nY + nHeight);
    rect.InflateRect(FrameBorder, FrameBorder);
    trace::CQuietScope quiet;
    GiveFrame(*stage.Desk().Document(), *pNode, rect,
              CRect(0, 0, nWidth + 2 * FrameBorder, nHeight + 2 * FrameBorder),
              CRect(FrameBorder, FrameBorder, FrameBorder + nWidth, FrameBorder + nHeight));
    stage.Desk().RefreshDocRect(rect);
    return pNode;
}

bool CGestureStage::Shadow(const std::string& name, int nDx, int nDy, int nSoftness) {
    COLORREF crColor = ShadowColor;
    trace::CQuietScope quiet;
    const int nMade = Link().CreateNodeShadow(stage.Node(name), nDx, nDy, &crColor, nSoftness, 50, nullptr);
    if (CImgNode* pShadow = stage.Node(name)->m_pShadowNode) {
        CRect rect;
        pShadow->GetBoundRect(&rect);
        stage.Desk().RefreshDocRect(rect);
    }
    return nMade == 1;
}

CRect CGestureStage::ClientRect(const std::string& name) {
    CRect rect(0, 0, 0, 0);
    Tool().GetNodeRect(stage.Node(name), &rect);
    return rect;
}

CPoint CGestureStage::Handle(const std::string& name, int nHandle) {
    const CRect rc = ClientRect(name);
    const CPoint ptMiddle(std::midpoint(rc.left, rc.right), std::midpoint(rc.top, rc.bottom));
    switch (nHandle) {
    case 0: return rc.TopLeft();
    case 1: return CPoint(rc.left, ptMiddle.y);
    case 2: return CPoint(rc.left, rc.bottom);
    case 3: return CPoint(ptMiddle.x, rc.bottom);
    case 4: return CPoint(ptMiddle.x, rc.top);
    case 5: return CPoint(rc.right, rc.top);
    case 6: return CPoint(rc.right, ptMiddle.y);
    default: return rc.BottomRight();
    }
}

void CGestureStage::DragHandle(const std::string& name, int nHandle, CPoint ptTo) {
    stage.Drag(Handle(name, nHandle), ptTo, Ctrl::Up, 2);
}

bool CGestureStage::HasCapture() const { return ::GetCapture() == stage.Desk().View()->m_hWnd; }

COLORREF CGestureStage::CachePixel(int nX, int nY) {
    DWORD dwPixel = 0;
    if (!CViewHost::CachePixel(*stage.Desk().View(), nX, nY, dwPixel)) {
        return CLR_INVALID;
    }
    return RGB((dwPixel >> 16) & 0xFF, (dwPixel >> 8) & 0xFF, dwPixel & 0xFF);
}

std::vector<std::uint32_t> CGestureStage::Screen() {
    stage.Paint();
    return PixelsOf(stage.Desk().View()->m_hWnd);
}

std::vector<std::uint32_t> CGestureStage::FreshScreen() {
    trace::CQuietScope quiet;
    CViewHost::RecomposeAll(*stage.Desk().View());
    return Screen();
}

Steps CGestureStage::TakeSteps() {
    Steps steps;
    for (const trace::Row& row : stage.Trace()) {
        if (row.on == "view" || row.on == "undo" || row.on == "cursor" || IsNotification(row.on)) {
            steps.push_back(TextOf(row));
        }
    }
    return steps;
}

std::string CGestureStage::Shape() {
    std::ostringstream out;
    for (const std::string& name : stage.PageNames()) {
        out << name;
        Write(out, stage.Rect(name));
        out << ' ';
    }
    out << '|';
    for (const std::string& name : stage.Selection()) {
        out << ' ' << name;
    }
    return out.str();
}

int CGestureStage::BuffersAlive() const { return static_cast<int>(buffer_host::BufferCount()); }
