// Text objects: changing an attribute of many, opening and committing one among many objects, and drawing an
// effect.
// Usage: bench_text_objects attributes TEXTS | session OBJECTS | effect PIXELS
#include "canvas.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "editor_binding.h"

namespace {

using measure::Check;

constexpr char Peer[] = "pradix";
constexpr int TextPixels = 16;
constexpr COLORREF FirstColor = RGB(255, 255, 255);
constexpr COLORREF SecondColor = RGB(255, 192, 64);

std::string TextOf(int i) { return "Chapter " + std::to_string(i % 1000); }

/// The text tool on a page of texts, or of pictures with one text.
class CTextStage {
  public:
    explicit CTextStage(double dGrow) : m_stage(dGrow) {
        Check(m_stage.UseTool("CTextTool"), "the text tool");
    }

    void Attributes(int nTexts);
    void Session(int nObjects, int nInFront, const std::string& suffix);
    void Effect(int nPixels);

  private:
    std::unique_ptr<CTextNode> Create(int i);
    CTextNode* CreateOnPage(int i, int nTexts);
    void FillWithPictures(int nObjects);

    CPaintCounter m_paints;
    CCanvasStage m_stage;
};

std::unique_ptr<CTextNode> CTextStage::Create(int i) {
    const std::string text = TextOf(i);
    return std::unique_ptr<CTextNode>(
        m_stage.Ops().CreateTextNode(text.c_str(), "Arial", FirstColor, TextPixels, 0, 0));
}

// Shown, as it is when somebody has typed it.
CTextNode* CTextStage::CreateOnPage(int i, int nTexts) {
    CTextNode* const pNode = Create(i).release();
    Check(pNode != nullptr, "a text");
    const page::Place place = page::PlaceOf(i, nTexts, m_stage.PageWidth(), m_stage.PageHeight());
    pNode->Move(place.x, place.y);
    m_stage.Document().GetObjList()->AddHead(pNode);
    CRect rc;
    m_stage.Ops().GetNodeMarkArea(pNode, &rc);
    m_stage.Ops().FlushViewRect(&rc);
    m_stage.Ops().RedrawRect(&rc);
    return pNode;
}

// Beside it stand the same texts created and shown, and created alone. All lie within the view.
void CTextStage::Attributes(int nTexts) {
    const int nSamples = nTexts >= 1000 ? 10 : 50;
    m_stage.SetViewSize(m_stage.PageWidth(), m_stage.PageHeight());
    measure::Figure(Peer, "create_texts_unshown", nTexts, measure::Timed(nSamples, [&] {
                        for (int i = 0; i < nTexts; i++) {
                            Check(Create(i) != nullptr, "a text");
                        }
                    }));
    std::vector<CTextNode*> texts;
    const auto clear = [&] {
        for (CTextNode* pText : texts) {
            delete pText;
        }
        texts.clear();
        m_stage.RecomposeAll();
    };
    const auto created = measure::TimedAfter(nSamples, clear, [&] {
        for (int i = 0; i < nTexts; i++) {
            texts.push_back(CreateOnPage(i, nTexts));
        }
    });
    const double dCreated = measure::Figure(Peer, "create_texts", nTexts, created);
    CNodeRefList nodes;
    for (CTextNode* pText : texts) {
        nodes.AddTail(pText);
    }
    m_stage.Ops().AddToSelection(nodes);
    m_stage.RecomposeAll();
    COLORREF crNext = SecondColor;
    const auto changed = measure::Timed(nSamples, [&] {
        Check(m_stage.SetTextColor(crNext) == 1, "the colour");
        crNext = crNext == SecondColor ? FirstColor : SecondColor;
    });
    Check(texts.back()->m_crText != crNext && m_stage.SelectedCount() == nTexts, "the texts' colour");
    const double dChanged = measure::Figure(Peer, "change_attribute", nTexts, changed);
    std::fprintf(stderr, "change by creation: %.2f\n", dChanged / dCreated);
}

void CTextStage::FillWithPictures(int nObjects) {
    for (int i = 0; i + 1 < nObjects; i++) {
        const page::Place place = page::PlaceOf(i, nObjects, m_stage.PageWidth(), m_stage.PageHeight());
        Check(m_stage.AddPicture("p" + std::to_string(i), RGB(40, 80, 160), place.x, place.y, page::ItemWidth,
                                 page::ItemHeight) != nullptr,
              "a picture");
    }
}

// With so many of the objects in front of the text: its place among them has to be found again.
void CTextStage::Session(int nObjects, int nInFront, const std::string& suffix) {
    m_stage.NewPage(m_stage.PageWidth(), m_stage.PageHeight());
    m_stage.SetViewSize(page::Width, page::Height);
    FillWithPictures(nObjects - nInFront);
    CImgNode* const pText = m_stage.AddText("title", "A title", page::PressX, page::PressY);
    Check(pText != nullptr, "the text");
    FillWithPictures(nInFront);
    m_stage.RecomposeAll();
    m_stage.Select({"title"});
    const CPoint point(page::PressX + 5, page::PressY + 5);
    ITextEditEntry* const pEntry = m_stage.ToolInterface<ITextEditEntry>();
    Check(pEntry != nullptr, "the tool's entry");
    std::vector<double> opened;
    std::vector<double> committed;
    for (int i = -1; i < 100; i++) {
        const double dStart = measure::NowUs();
        Check(pEntry->EditTextNode(pText, &point) == 1, "opening the text");
        m_stage.Paint();
        const double dOpen = measure::NowUs();
        m_stage.EndEditor();
        m_stage.Paint();
        const double dEnd = measure::NowUs();
        Check(!m_stage.Editor() && m_stage.SelectedCount() == 1, "the commit");
        if (i >= 0) {
            opened.push_back(dOpen - dStart);
            committed.push_back(dEnd - dOpen);
        }
    }
    measure::Figure(Peer, "edit_open" + suffix, nObjects, opened);
    measure::Figure(Peer, "edit_commit" + suffix, nObjects, committed);
}

// The glow reaches farthest and is softened besides.
void CTextStage::Effect(int nPixels) {
    const std::unique_ptr<CTextNode> pText(
        m_stage.Ops().CreateTextNode("W", "Arial", FirstColor, nPixels, 0, 0));
    Check(pText != nullptr, "a text");
    CTextEffectState::Set(*pText, TextEffect::Glow, SecondColor);
    measure::Figure(Peer, "glow", nPixels,
                    measure::Timed(50, [&] { Check(pText->m_fnRegenerateTextEffect() == 1, "the effect"); }));
}

} // namespace

int main(int argc, char** argv) {
    const std::string work = argc == 3 ? argv[1] : "";
    const int n = argc == 3 ? std::atoi(argv[2]) : 0;
    Check((work == "attributes" || work == "session" || work == "effect") && n > 0,
          "usage: bench_text_objects attributes TEXTS | session OBJECTS | effect PIXELS");
    CTextStage stage(CCanvasStage::GrowthFor(work == "effect" ? 100 : std::max(n, 100)));
    if (work == "attributes") {
        stage.Attributes(n);
    } else if (work == "effect") {
        stage.Effect(n);
    } else {
        stage.Session(n, 0, "");
        stage.Session(n, n / 2, "_middle");
    }
    return 0;
}
