// The in-place editor: typing at a text's end, opening, dragging a selection, and measuring a line.
// Usage: bench_text edit LINES | bench_text measure
#include "canvas.h"
#include "editor_binding.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace {

using measure::Check;
using measure::NowUs;

constexpr char Peer[] = "pradix";
constexpr char Face[] = "DejaVu Sans";
constexpr int TextPixels = 10; ///< so small that the last line with all that is typed fits the view
constexpr int MeasuredPixels = 16;
constexpr int LineBytes = 100;
constexpr int Keys = 30;
constexpr int MeasuredLines = 1000;
constexpr int LastY = page::Height - 30; ///< where the last line stands while it is typed at
constexpr int LargestWindow = 32767;
constexpr int FarthestY = 32700; ///< a mouse message has no room for more
constexpr CSize Margin = {4, 3}; ///< into the editor's first line

/// Line i of the text: lower-case words, exactly 100 bytes.
std::string LineOf(int i) {
    std::string line(LineBytes, ' ');
    std::uint32_t h = static_cast<std::uint32_t>(i) * 2654435761U + 1;
    int nLeft = 5;
    for (char& c : line) {
        h = h * 1664525U + 1013904223U;
        if (nLeft-- == 0) {
            nLeft = static_cast<int>(h >> 29) + 2;
        } else {
            c = static_cast<char>('a' + (h >> 16) % 26);
        }
    }
    return line;
}

std::string TextOf(int nLines) {
    std::string text;
    for (int i = 0; i < nLines; i++) {
        text += (i > 0 ? "\n" : "") + LineOf(i);
    }
    return text;
}

/// How the text stands: where its anchor is across the view, by alignment.
struct Standing {
    int nAlign;
    int nAnchorX;
    const char* pszSuffix;
};
constexpr Standing LeftAligned = {0, 20, ""};
constexpr Standing Centred = {1, page::Width / 2, "_centred"};

/// A text of so many lines in an editor on the bare view.
class CTextBench {
  public:
    explicit CTextBench(int nLines) : m_n(nLines), m_text(TextOf(nLines)) {}
    ~CTextBench() { Close(); }
    CTextBench(const CTextBench&) = delete;
    CTextBench& operator=(const CTextBench&) = delete;

    void Typing(const Standing& standing);
    void Opening();
    void DragSelection();

  private:
    const EditorCalls& Calls() { return *m_stage.EditorOperations(); }
    double Open(const Standing& standing, int nFirstLineY);
    void Close();
    int LineHeight();
    void MoveToEnd(int nLine);
    double Step(CPoint point);

    int m_n;
    std::string m_text;
    CPaintCounter m_paints;
    CCanvasStage m_stage;
    std::unique_ptr<CInplaceEditor> m_pEditor;
};

/// Answers the time of the creation alone.
double CTextBench::Open(const Standing& standing, int nFirstLineY) {
    m_pEditor.reset(MakeEditor(Calls()));
    Check(m_pEditor != nullptr, "an editor");
    CString strFace(Face);
    CString strText(m_text.data(), static_cast<int>(m_text.size()));
    CPoint ptAnchor(standing.nAnchorX, nFirstLineY);
    (m_pEditor.get()->*Calls().m_fnSetFont)(strFace);
    (m_pEditor.get()->*Calls().m_fnSetFontSizeInPixel)(TextPixels);
    (m_pEditor.get()->*Calls().m_fnSetTextAlignType)(standing.nAlign);
    const double dStart = NowUs();
    const int nCreated = (m_pEditor.get()->*Calls().m_fnCreate)(&m_stage.View(), ptAnchor, strText, 1);
    m_stage.Paint();
    const double dTime = NowUs() - dStart;
    Check(nCreated == 1 && m_pEditor->Lines().GetCount() == m_n, "opening the editor");
    m_pEditor->SetFocus();
    return dTime;
}

void CTextBench::Close() {
    if (m_pEditor) {
        m_pEditor->DestroyWindow();
        m_pEditor.reset();
    }
    m_stage.Paint();
}

int CTextBench::LineHeight() {
    CRect rc;
    (m_pEditor.get()->*Calls().m_fnGetTextBoundRect)(rc);
    return (rc.Height() - 2) / m_n;
}

// To the end of the typed line, which stands at the bottom of the view.
void CTextBench::MoveToEnd(int nLine) {
    CPoint ptEnd(page::Width, LastY);
    (m_pEditor.get()->*Calls().m_fnMoveCursorTo)(ptEnd);
    Check(m_pEditor->Caret() == TextPosition{nLine, LineBytes - 1}, "the caret at the end");
    m_stage.Paint();
}

// A window is at most so high; a longer text is typed at in the last line that it shows whole.
void CTextBench::Typing(const Standing& standing) {
    Open(standing, 0);
    const int nLineHeight = LineHeight();
    const int nTyped = std::min(m_n, LargestWindow / nLineHeight - 1) - 1;
    Close();
    Open(standing, LastY - nLineHeight * nTyped);
    MoveToEnd(nTyped);
    std::vector<double> us;
    const int nRounds = m_n >= 10000 ? 5 : 20;
    long nPixels = 0;
    for (int nRound = -1; nRound < nRounds; nRound++) {
        for (int nKey = 0; nKey < Keys; nKey++) {
            const long nPaints = m_paints.Paints();
            const long nBefore = m_paints.Pixels();
            const double dStart = NowUs();
            m_stage.Char('x');
            m_stage.Paint();
            const double dTime = NowUs() - dStart;
            Check(m_paints.Paints() > nPaints, "a repaint after a key");
            if (nRound >= 0) {
                us.push_back(dTime);
                nPixels += m_paints.Pixels() - nBefore;
            }
        }
        Check(m_pEditor->Caret() == TextPosition{nTyped, LineBytes + Keys - 1}, "every character typed");
        m_stage.Key(VK_BACK, Keys);
        m_stage.Paint();
    }
    Close();
    measure::Figure(Peer, std::string("keystroke") + standing.pszSuffix, m_n, us,
                    ",\"pixels_per_key\":" + std::to_string(nPixels / static_cast<long>(us.size())));
}

void CTextBench::Opening() {
    std::vector<double> us;
    const int nCount = m_n >= 10000 ? 10 : 50;
    for (int n = -1; n < nCount; n++) {
        const double dTime = Open(Centred, 30);
        if (n >= 0) {
            us.push_back(dTime);
        }
        Close();
    }
    measure::Figure(Peer, "open", m_n, us);
}

double CTextBench::Step(CPoint point) {
    const double dStart = NowUs();
    m_stage.Move(point);
    m_stage.Paint();
    return NowUs() - dStart;
}

// Down the text in even steps, as far as a mouse message reaches.
void CTextBench::DragSelection() {
    Open(LeftAligned, 30);
    CRect rc;
    m_pEditor->GetWindowRect(rc);
    m_stage.View().ScreenToClient(rc);
    const CPoint from = rc.TopLeft() + Margin;
    const int nWay = std::min(static_cast<int>(rc.bottom), FarthestY) - from.y;
    constexpr int Moves = 60;
    std::vector<double> us;
    for (int nRound = -1; nRound < 10; nRound++) {
        m_stage.Press(from);
        for (int nMove = 1; nMove <= Moves; nMove++) {
            const double dTime = Step(from + CSize(nMove, static_cast<int>(1LL * nWay * nMove / Moves)));
            if (nRound >= 0) {
                us.push_back(dTime);
            }
        }
        const int nSelected = m_pEditor->Selection().end.nLine;
        Check(m_pEditor->HasSelection() && nSelected >= std::min(m_n - 1, FarthestY / 20),
              "a long selection");
        m_stage.Release(from);
        Step(from);
        (m_pEditor.get()->*Calls().m_fnSetSelectRange)(0, -1, 0, -1);
        m_stage.Paint();
    }
    Close();
    measure::Figure(Peer, "drag_selection", m_n, us);
}

void PrintPeakMemory(int n) {
    std::ifstream file("/proc/self/status");
    std::string word;
    long nKilobytes = 0;
    while (file >> word && word != "VmHWM:") {}
    Check(static_cast<bool>(file >> nKilobytes), "reading the peak of the resident size");
    std::printf("{\"peer\":\"%s\",\"case\":\"text_peak_memory\",\"n\":%d,\"median_us\":null,\"p99_us\":null,"
                "\"bytes\":%ld}\n",
                Peer, n, nKilobytes * 1024);
}

void Measuring() {
    std::vector<std::string> lines;
    for (int i = 0; i < MeasuredLines; i++) {
        lines.push_back(LineOf(i));
    }
    CDC dc;
    CFont font;
    Check(dc.CreateCompatibleDC(nullptr) && font.CreateFont(-MeasuredPixels, 0, 0, 0, FW_NORMAL, 0, 0, 0,
                                                            DEFAULT_CHARSET, 0, 0, 0, 0, Face),
          "a context with the font");
    CFont* const pBefore = dc.SelectObject(&font);
    std::vector<int> ends(LineBytes);
    SIZE size{};
    auto us = measure::Timed(200, [&] {
        for (const std::string& line : lines) {
            ::GetTextExtentExPointA(dc.m_hDC, line.data(), LineBytes, 0, nullptr, ends.data(), &size);
            asm volatile("" ::"r"(ends.data()) : "memory");
        }
    });
    Check(size.cx == ends.back() && size.cx > LineBytes, "a line's extent");
    for (double& dTime : us) {
        dTime /= MeasuredLines;
    }
    measure::Figure(Peer, "line_extents_100_bytes", LineBytes, us,
                    ",\"width_px\":" + std::to_string(size.cx));
    dc.SelectObject(pBefore);
}

} // namespace

int main(int argc, char** argv) {
    const std::string work = argc >= 2 ? argv[1] : "";
    if (work == "measure" && argc == 2) {
        Measuring();
        return 0;
    }
    const int nLines = argc == 3 ? std::atoi(argv[2]) : 0;
    Check(work == "edit" && nLines > 0, "usage: bench_text edit LINES | measure");
    CTextBench bench(nLines);
    bench.Typing(LeftAligned);
    bench.Typing(Centred);
    PrintPeakMemory(nLines);
    bench.Opening();
    bench.DragSelection();
    return 0;
}
