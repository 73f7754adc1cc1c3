// Editing through the view: dragging, hitting, selecting, undoing, and the memory of a page.
// Usage: bench_edit N dense|spread
#include "canvas.h"
#include "image/picture_file.h"
#include "image/picture_node.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <png.h>
#include <unistd.h>

namespace {

using measure::Check;
using measure::NowUs;

constexpr char Peer[] = "pradix";
constexpr int Moves = 60;
constexpr CSize MoveStep = {3, 2}; ///< client pixels from one move to the next
constexpr int TurnAfter = 15;      ///< moves; farther right some item would reach the edge of the view
constexpr CPoint Press = {page::PressX, page::PressY};
constexpr CSize CommandStep = {5, 5}; ///< client pixels
constexpr int ManyItems = 10000;

/// A folder of its own with the page's pictures as files, gone at the end.
class CPictureFiles {
  public:
    CPictureFiles() : m_folder(std::filesystem::temp_directory_path() / "pradix-bench-XXXXXX") {
        std::string name = m_folder.string();
        Check(::mkdtemp(name.data()) != nullptr, "making a folder for the pictures");
        m_folder = name;
        for (int k = 0; k < page::Pictures; k++) {
            Write(k);
        }
    }
    ~CPictureFiles() { std::filesystem::remove_all(m_folder); }
    CPictureFiles(const CPictureFiles&) = delete;
    CPictureFiles& operator=(const CPictureFiles&) = delete;

    std::string File(int k) const { return (m_folder / (std::to_string(k) + ".png")).string(); }

  private:
    void Write(int k) const {
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < page::ItemHeight; y++) {
            for (int x = 0; x < page::ItemWidth; x++) {
                const std::uint32_t alpha = page::MaskAt(x, y, page::ItemWidth, page::ItemHeight);
                pixels.push_back(alpha << 24 | page::RgbAt(k, x, y));
            }
        }
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        image.width = page::ItemWidth;
        image.height = page::ItemHeight;
        image.format = PNG_FORMAT_BGRA;
        Check(png_image_write_to_file(&image, File(k).c_str(), 0, pixels.data(), 0, nullptr) != 0,
              "writing a picture");
    }

    std::filesystem::path m_folder;
};

double ResidentBytes() {
    std::ifstream file("/proc/self/statm");
    double dSize = 0;
    double dResident = 0;
    Check(static_cast<bool>(file >> dSize >> dResident), "reading the resident size");
    return dResident * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

/// One page and the gestures on it.
class CEditBench {
  public:
    CEditBench(int n, bool bSpread)
        : m_n(n), m_suffix(bSpread ? "_spread" : ""), m_stage(bSpread ? CCanvasStage::GrowthFor(n) : 1.0) {}

    void FillPage();
    void DragOne() {
        Drag("drag_one", 1, 20, [](int nMove) { return nMove; });
    }
    void HitTest();
    void ClickSelect();
    void SelectAll();
    void DragAll();
    void Undo();

  private:
    struct DragFigures {
        std::vector<double> us; ///< a move each
        long nPixels = 0;       ///< repainted by all moves
    };

    CImgNode& Top() { return *m_stage.Nodes().back(); }
    CPoint TopPlace() { return CPoint(Top().m_tx.nX, Top().m_tx.nY); }
    int Count() const { return m_n >= ManyItems ? 11 : 51; }

    template <class Path>
    DragFigures DragOnce(int nSelected, Path path);
    template <class Path>
    void Drag(const std::string& name, int nSelected, int nRounds, Path path);
    double Step(CPoint point);
    void StepBack();
    template <class Reset, class Act>
    void Command(const std::string& name, int nCount, Reset&& reset, Act&& act);
    template <class Reset, class Act>
    void CommandWithoutPaint(const std::string& name, int nCount, Reset&& reset, Act&& act);

    int m_n;
    std::string m_suffix;
    CPaintCounter m_paints;
    CCanvasStage m_stage;
};

// Every item decodes its own file, as on a page of different pictures.
void CEditBench::FillPage() {
    const CPictureFiles files;
    const double dBefore = ResidentBytes();
    for (int i = 0; i < m_n; i++) {
        Picture picture;
        std::string error;
        Check(LoadPicture(files.File(i % page::Pictures).c_str(), picture, error), "reading a picture");
        const page::Place at = page::PlaceOf(i, m_n, m_stage.PageWidth(), m_stage.PageHeight());
        const CRect rect(CPoint(at.x, at.y), CSize(page::ItemWidth, page::ItemHeight));
        m_stage.Add(MakePictureNode(m_stage.Document(), std::move(picture), rect));
    }
    m_stage.RecomposeAll();
    Check(m_stage.Document().GetObjList()->GetCount() == m_n, "every item on the page");
    std::printf("{\"peer\":\"%s\",\"case\":\"memory%s\",\"n\":%d,\"median_us\":null,\"p99_us\":null,"
                "\"bytes_per_item\":%.0f}\n",
                Peer, m_suffix.c_str(), m_n, (ResidentBytes() - dBefore) / m_n);
}

/// One mouse move and all the painting that it causes; answers its time.
double CEditBench::Step(CPoint point) {
    const long nPaints = m_paints.Paints();
    const double dStart = NowUs();
    m_stage.Move(point);
    m_stage.Paint();
    const double dTime = NowUs() - dStart;
    Check(m_paints.Paints() == nPaints + 1, "one repaint per move");
    return dTime;
}

// `path` tells how many steps from the press the pointer stands at each move.
template <class Path>
CEditBench::DragFigures CEditBench::DragOnce(int nSelected, Path path) {
    DragFigures figures;
    const CPoint from = TopPlace();
    m_stage.Press(Press);
    m_stage.Paint();
    const long nPixels = m_paints.Pixels();
    CSize way;
    for (int nMove = 1; nMove <= Moves; nMove++) {
        way = CSize(MoveStep.cx * path(nMove), MoveStep.cy * path(nMove));
        figures.us.push_back(Step(Press + way));
        Check(nMove == 1 || TopPlace() == from + way, "the dragged item's place during the drag");
    }
    figures.nPixels = m_paints.Pixels() - nPixels;
    m_stage.Release(Press + way);
    m_stage.Paint();
    Check(TopPlace() == from + way, "the dragged item's place");
    Check(m_stage.SelectedCount() == nSelected, "the drag's selection");
    StepBack();
    return figures;
}

template <class Path>
void CEditBench::Drag(const std::string& name, int nSelected, int nRounds, Path path) {
    DragOnce(nSelected, path);
    DragFigures all;
    for (int nRound = 0; nRound < nRounds; nRound++) {
        const DragFigures once = DragOnce(nSelected, path);
        all.us.insert(all.us.end(), once.us.begin(), once.us.end());
        all.nPixels += once.nPixels;
    }
    const long nPerMove = all.nPixels / static_cast<long>(all.us.size());
    measure::Figure(Peer, name + m_suffix, m_n, all.us, ",\"pixels_per_move\":" + std::to_string(nPerMove));
}

void CEditBench::StepBack() {
    m_stage.Undo();
    m_stage.Paint();
    m_stage.ForgetSteps();
}

template <class Reset, class Act>
void CEditBench::Command(const std::string& name, int nCount, Reset&& reset, Act&& act) {
    const auto settled = [&](auto& step) {
        step();
        m_stage.Paint();
    };
    const auto us = measure::TimedAfter(
        nCount, [&] { settled(reset); }, [&] { settled(act); });
    measure::Figure(Peer, name, m_n, us);
}

// The module paints inside its operations. What an operation costs without painting is what it costs on a
// view of a single pixel.
template <class Reset, class Act>
void CEditBench::CommandWithoutPaint(const std::string& name, int nCount, Reset&& reset, Act&& act) {
    m_stage.SetViewSize(1, 1);
    Command(name + "_no_paint", nCount, reset, act);
    m_stage.SetViewSize(page::Width, page::Height);
    m_stage.Paint();
}

void CEditBench::HitTest() {
    measure::Figure(Peer, "hit_test" + m_suffix, m_n, measure::Timed(2000, [this] {
                        CPoint point = Press;
                        Check(m_stage.View().m_fnNodeUnderPt(point) == &Top(), "the topmost item hit");
                    }));
}

void CEditBench::ClickSelect() {
    constexpr int Clicks = 300;
    const auto deselect = [this] {
        m_stage.Ops().DeselectAll(1);
        m_stage.ForgetSteps();
    };
    const auto click = [this] { m_stage.Click(Press); };
    Command("click_select" + m_suffix, Clicks, deselect, click);
    Check(m_stage.SelectedCount() == 1 && m_stage.Document().GetActList()->GetHead() == &Top(),
          "the clicked item selected");
    CommandWithoutPaint("click_select" + m_suffix, Clicks, deselect, click);
    deselect();
}

void CEditBench::SelectAll() {
    const auto deselect = [this] {
        m_stage.Ops().DeselectAll(1);
        m_stage.ForgetSteps();
    };
    const auto select = [this] { m_stage.Key('A', 1, Ctrl::Down); };
    CommandWithoutPaint("select_all", Count(), deselect, select);
    Command("select_all", Count(), deselect, select);
    Check(m_stage.SelectedCount() == m_n, "everything selected");
    m_stage.ForgetSteps();
}

// Dragged as far as one item alone, the selection would stop at the edge of the view; so the pointer turns
// round.
void CEditBench::DragAll() {
    Drag("drag_all", m_n, m_n >= ManyItems ? 2 : 5, [](int nMove) {
        const int nPhase = nMove % (2 * TurnAfter);
        return nPhase <= TurnAfter ? nPhase : 2 * TurnAfter - nPhase;
    });
}

void CEditBench::Undo() {
    const CPoint from = TopPlace();
    CUndoMgr& manager = *GetUndoMgr();
    const auto startDrag = [&] {
        manager.Undo();
        manager.Clear();
        m_stage.Press(Press);
        m_stage.Move(Press + MoveStep);
    };
    const auto undone = [&] { manager.GetRedoEvent(0) ? TRUE : manager.Undo(); };
    const auto redone = [&] { manager.GetUndoEvent(0) ? TRUE : manager.Redo(); };
    const auto undo = [&] { Check(manager.Undo() != FALSE, "an undo"); };
    const auto redo = [&] { Check(manager.Redo() != FALSE, "a redo"); };
    Command("undo_push", Count(), startDrag, [&] { m_stage.Release(Press + CommandStep); });
    Check(manager.GetUndoEvent(0) && !manager.GetUndoEvent(1), "one step of one move");
    CommandWithoutPaint("undo_undo", Count(), redone, undo);
    CommandWithoutPaint("undo_redo", Count(), undone, redo);
    Command("undo_undo", Count(), redone, undo);
    Check(TopPlace() == from, "the undone place");
    Command("undo_redo", Count(), undone, redo);
    Check(TopPlace() == from + CommandStep, "the redone place");
}

} // namespace

int main(int argc, char** argv) {
    const std::string layout = argc == 3 ? argv[2] : "";
    const int n = argc == 3 ? std::atoi(argv[1]) : 0;
    Check(n > 0 && (layout == "dense" || layout == "spread"), "usage: bench_edit N dense|spread");
    CEditBench bench(n, layout == "spread");
    bench.FillPage();
    bench.DragOne();
    bench.HitTest();
    bench.ClickSelect();
    if (layout == "dense") {
        bench.SelectAll();
        bench.DragAll();
        bench.Undo();
    }
    return 0;
}
