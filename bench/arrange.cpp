// Commands on many selected objects, a resize step, and the soft shadow.
// Usage: bench_arrange
#include "buffer/buffer_host.h"
#include "canvas.h"
#include "host/mask.h"
#include "host/tool.h"
#include "image/picture_node.h"

#include <array>
#include <cstring>

namespace {

using measure::Check;

constexpr char Peer[] = "pradix";

CImgNode* MakeItem(CVorDoc& doc, int i, const CRect& rect) {
    Picture picture;
    Check(SolidPicture(page::RgbAt(i % page::Pictures, 7, 9), rect.Width(), rect.Height(), picture),
          "making a picture");
    return MakePictureNode(doc, std::move(picture), rect);
}

/// Objects of different sizes, all of them selected and in a view that grows with their number, so that they
/// always lie as thick as a hundred do.
class CManySelected {
  public:
    explicit CManySelected(int n);
    CCanvasStage& Stage() { return m_stage; }
    CTool& Tool() { return *AsTool(m_stage.CurrentTool()); }
    CRect Rect(int i) { return m_stage.Nodes()[static_cast<std::size_t>(i)]->m_fnGetBoundRectWithFrame(); }
    const CRect& Home(int i) const { return m_homes[static_cast<std::size_t>(i)]; }
    int Count() const { return static_cast<int>(m_homes.size()); }
    /// Puts every object back and forgets what was recorded.
    void GoHome();
    /// Deletes what is selected and selects the objects again.
    void DropCopies();

  private:
    CCanvasStage m_stage;
    std::vector<CRect> m_homes;
};

// The first object has only the eight pixels in the view that no object may leave it with, so that nothing
// moves to the left.
CManySelected::CManySelected(int n) : m_stage(CCanvasStage::GrowthFor(std::max(n, 100))) {
    constexpr int LeastVisible = 8;
    m_stage.SetViewSize(m_stage.PageWidth(), m_stage.PageHeight());
    for (int i = 0; i < n; i++) {
        const page::Place at = page::PlaceOf(i, n, m_stage.PageWidth(), m_stage.PageHeight());
        const CSize size(40 + i % 21, 30 + i % 16);
        m_homes.emplace_back(CPoint(i == 0 ? LeastVisible - size.cx : at.x, at.y), size);
        m_stage.Add(MakeItem(m_stage.Document(), i, m_homes.back()));
    }
    m_stage.RecomposeAll();
    m_stage.SelectEvery();
}

void CManySelected::GoHome() {
    for (int i = 0; i < Count(); i++) {
        CImgNode& node = *m_stage.Nodes()[static_cast<std::size_t>(i)];
        node.m_fnResize(Home(i));
        node.m_fnAdjustImageNodeBuf(0, 0);
    }
    m_stage.ForgetSteps();
    m_stage.RecomposeAll();
}

void CManySelected::DropCopies() {
    std::vector<CImgNode*> copies;
    const CImgNodeList& selection = *m_stage.Document().GetActList();
    for (POSITION position = selection.GetHeadPosition(); position;) {
        copies.push_back(selection.GetNext(position));
    }
    m_stage.ForgetSteps();
    for (CImgNode* pCopy : copies) {
        delete pCopy;
    }
    m_stage.SelectEvery();
}

struct Case {
    const char* pszName;
    void (*pfnReset)(CManySelected&);
    void (*pfnAct)(CManySelected&);
    /// Whether the command did its work.
    bool (*pfnDone)(CManySelected&);
};

template <void (CTool::*pfnOp)()>
void Run(CManySelected& many) {
    (many.Tool().*pfnOp)();
}

void GoHome(CManySelected& many) { many.GoHome(); }

bool AllLeft(CManySelected& many) {
    for (int i = 0; i < many.Count(); i++) {
        if (i > 0 && many.Rect(i).left != many.Rect(0).left) {
            return false;
        }
    }
    return many.Rect(0) == many.Home(0);
}

bool FirstStays(CManySelected& many) {
    int nMoved = 0;
    for (int i = 0; i < many.Count(); i++) {
        nMoved += many.Rect(i) != many.Home(i) ? 1 : 0;
    }
    return many.Rect(0) == many.Home(0) && nMoved > many.Count() / 2;
}

bool SameSize(CManySelected& many) {
    for (int i = 0; i < many.Count(); i++) {
        if (many.Rect(i).Size() != many.Rect(0).Size()) {
            return false;
        }
    }
    return true;
}

bool SameOrder(CManySelected& many) {
    return many.Stage().Document().GetObjList()->GetHead() == many.Stage().Nodes().back();
}

bool OneStep(CManySelected&) { return GetUndoMgr()->GetUndoEvent(0) && !GetUndoMgr()->GetUndoEvent(1); }

bool NoStep(CManySelected& many) {
    return !GetUndoMgr()->GetUndoEvent(0) && many.Rect(many.Count() - 1) == many.Home(many.Count() - 1);
}

// The last object may lie in front of others, so the press hits a selected one.
constexpr CPoint CopyFrom = {page::TopX + 5, page::TopY + 5};
constexpr CPoint CopyTo = {page::TopX + 11, page::TopY + 9};

void PressForCopies(CManySelected& many) {
    if (many.Stage().Document().GetObjList()->GetCount() > many.Count()) {
        many.Stage().Release(CopyTo, Ctrl::Down);
        many.DropCopies();
    }
    many.Stage().Press(CopyFrom);
}

bool Copied(CManySelected& many) {
    const bool bDone = many.Stage().Document().GetObjList()->GetCount() == 2 * many.Count();
    many.Stage().Release(CopyTo, Ctrl::Down);
    many.DropCopies();
    return bDone && many.Stage().SelectedCount() == many.Count();
}

constexpr std::array<Case, 7> Cases = {{
    {"align_left", GoHome, Run<&CTool::m_fnAlignLeft>, AllLeft},
    {"distribute", GoHome, Run<&CTool::m_fnDistributeHorizontally>, FirstStays},
    {"bring_to_front", GoHome, Run<&CTool::m_fnBringToFront>, SameOrder},
    {"same_size", GoHome, Run<&CTool::m_fnSameSize>, SameSize},
    {"copy_selection", GoHome, [](CManySelected& many) { many.Stage().Ops().RecordSelectionUndo(); },
     OneStep},
    {"compare_selection", GoHome, [](CManySelected& many) { many.Stage().Key(VK_LEFT); }, NoStep},
    {"copy_objects", PressForCopies, [](CManySelected& many) { many.Stage().Move(CopyTo, Ctrl::Down); },
     Copied},
}};

void MeasureCommands() {
    std::array<double, Cases.size()> former{};
    for (const int n : {10, 100, 1000, 10000}) {
        CManySelected many(n);
        for (std::size_t i = 0; i < Cases.size(); i++) {
            const Case& row = Cases[i];
            std::vector<double> us = measure::TimedAfter(
                n >= 10000 ? 7 : 21, [&] { row.pfnReset(many); },
                [&] {
                    row.pfnAct(many);
                    many.Stage().Paint();
                });
            Check(row.pfnDone(many), row.pszName);
            many.GoHome();
            std::sort(us.begin(), us.end());
            const double dMedian = measure::Quantile(us, 0.5);
            char growth[40] = "";
            if (former[i] > 0) {
                std::snprintf(growth, sizeof growth, ",\"growth\":%.1f", dMedian / former[i]);
            }
            former[i] = measure::Figure(Peer, row.pszName, n, us, growth);
        }
    }
}

/// Two pictures of a view's size between which rectangles are copied row by row.
class CPlainCopy {
  public:
    void Copy(const CRect& rect) {
        for (int y = rect.top; y < rect.bottom; y++) {
            const std::size_t nAt = static_cast<std::size_t>(y * page::Width + rect.left);
            std::memcpy(&m_to[nAt], &m_from[nAt], static_cast<std::size_t>(rect.Width()) * sizeof m_to[0]);
        }
    }

  private:
    std::vector<std::uint32_t> m_from = std::vector<std::uint32_t>(page::Width * page::Height, 1);
    std::vector<std::uint32_t> m_to = std::vector<std::uint32_t>(page::Width * page::Height, 2);
};

// The ends keep the proportions, as a corner does. The step takes the outline's area out of the cache, puts
// it back with the outline, paints it together with the area of the step before, and composes it afresh.
void MeasureResizeStep() {
    constexpr int Steps = 500;
    constexpr int OutlineMargin = 8;
    const CRect rcObject(100, 80, 500, 380);
    const std::array<CPoint, 2> ends = {CPoint(520, 395), CPoint(524, 398)};
    CPaintCounter paints;
    CCanvasStage stage;
    stage.Add(MakeItem(stage.Document(), 3, rcObject));
    stage.RecomposeAll();
    stage.Click(rcObject.CenterPoint());
    stage.Press(rcObject.BottomRight());
    int nStep = 0;
    long nPixels = 0;
    const auto us = measure::Timed(Steps, [&] {
        nPixels = paints.Pixels();
        stage.Move(ends[static_cast<std::size_t>(nStep++ % 2)]);
        stage.Paint();
        nPixels = paints.Pixels() - nPixels;
    });
    CRect rcPainted(rcObject.TopLeft(), ends[1]);
    rcPainted.InflateRect(OutlineMargin, OutlineMargin);
    Check(nPixels == static_cast<long>(rcPainted.Width()) * rcPainted.Height(), "the area of a resize step");
    stage.Release(ends[1]);
    Check(stage.Document().GetObjList()->GetHead()->m_tx.nWidth == ends[1].x - rcObject.left, "a resize");
    measure::Figure(Peer, "resize_step", 1, us, ",\"pixels\":" + std::to_string(nPixels));

    CPlainCopy plain;
    measure::Figure("memcpy", "resize_step_pixels_once", 1,
                    measure::Timed(Steps, [&] { plain.Copy(rcPainted); }));
    measure::Figure("memcpy", "resize_step_pixels", 1, measure::Timed(Steps, [&] {
                        for (int nTouch = 0; nTouch < 4; nTouch++) {
                            plain.Copy(rcPainted);
                        }
                    }));
}

/// The soft ellipse that casts the shadow, inset by a tenth of the size on every side.
CBufferPtr MakeMask(int nWidth, int nHeight) {
    HBUF32 hMask = 0;
    Check(buf32Alloc(&hMask, 8, nWidth, nHeight, 1, nullptr) != 0, "making a mask");
    const buffer_host::View view = buffer_host::Look(hMask);
    const int nInsetX = nWidth / 10;
    const int nInsetY = nHeight / 10;
    for (int y = nInsetY; y < nHeight - nInsetY; y++) {
        for (int x = nInsetX; x < nWidth - nInsetX; x++) {
            view.Row(y)[x] =
                page::MaskAt(x - nInsetX, y - nInsetY, nWidth - 2 * nInsetX, nHeight - 2 * nInsetY);
        }
    }
    return CBufferPtr(hMask);
}

void MeasureSoftMask(int nWidth, int nHeight, int nCount) {
    const CBufferPtr hard = MakeMask(nWidth, nHeight);
    const std::string name = "blur_" + std::to_string(nWidth) + "x" + std::to_string(nHeight);
    for (const int nSoftness : {4, 16, 64}) {
        measure::Figure(Peer, name, nSoftness, measure::Timed(nCount, [&] {
                            CTxParam block;
                            block.hMask = hard.Get();
                            Check(sel32SoftEdgeMakeMask(&block, 0, nSoftness, 0, 0, 0, 0) == 1, "softening");
                            const CBufferPtr soft(block.hMask);
                            Check(buffer_host::Look(soft.Get()).Row(nHeight / 2)[nWidth / 2] == 255,
                                  "the middle of a soft mask");
                        }));
    }
}

} // namespace

int main() {
    MeasureCommands();
    MeasureResizeStep();
    MeasureSoftMask(720, 480, 100);
    MeasureSoftMask(4096, 4096, 10);
    return 0;
}
