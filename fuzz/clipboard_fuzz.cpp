// Reads bytes as what the object clipboard holds, and as what a person does before and after pasting it.
// Beyond crashes it stops where a refused paste leaves something behind, or where pasted objects cannot be
// copied.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "buffer/buffer_host.h"
#include "clipboard/byte_stream.h"
#include "fuzz_input.h"
#include "host/text_node.h"
#include "image/node_host.h"
#include "platform/faults.h"
#include "platform/input.h"
#include "stage.h"
#include "text/text_effect.h"

namespace {

constexpr std::size_t EventBytes = 32; ///< of an input; the clipboard's bytes stand behind them
constexpr int MostNodes = 200;         ///< on the page; no more is pasted then
constexpr int MostSide = 600;          ///< of objects whose pixels are made anew, and of fonts
constexpr std::uint8_t Head[8] = {'P', 'X', 'O', 'B', 1, 0, 0, 0};
constexpr std::size_t LengthPlace = sizeof Head;
constexpr std::size_t LeastBytes = 24;

constexpr std::array<const char*, 4> Tools = {"CSelectTool", "CTextTool", "CAdaptiveComboTool", ""};
constexpr std::array<const char*, 4> Faults = {"buffer", "node", "undo-event", "copy"};

void PutNumber(std::uint8_t* pOut, std::uint32_t nValue) {
    for (int n = 0; n < 4; ++n) {
        pOut[n] = static_cast<std::uint8_t>(nValue >> (8 * n));
    }
}

/// Gives the bytes the head, the length and the checksum without which they would always be refused.
void Repair(std::vector<std::uint8_t>& content) {
    if (content.size() < LeastBytes) {
        return;
    }
    std::memcpy(content.data(), Head, sizeof Head);
    PutNumber(content.data() + LengthPlace, static_cast<std::uint32_t>(content.size()));
    PutNumber(content.data() + LengthPlace + 4, 0);
    const ByteView checked = ByteView(content).first(content.size() - 4);
    PutNumber(content.data() + checked.size(), Crc32(checked));
}

class CClipboardFuzz {
  public:
    CClipboardFuzz(CStage& stage, const std::uint8_t* pBytes, std::size_t nSize)
        : m_stage(stage), m_input(pBytes, std::min(nSize, EventBytes)),
          m_content(pBytes + std::min(nSize, EventBytes), pBytes + nSize) {}

    void Run() {
        m_stage.UseTool(m_input.Of(Tools));
        if (m_input.Byte() % 8) {
            Repair(m_content);
        }
        Clipboard().SetContent(m_content);
        Paste(m_input.Point());
        while (!m_input.IsEmpty()) {
            Event();
            m_stage.Paint();
        }
    }

  private:
    CDeskClipboard& Clipboard() { return m_stage.Desk().Clipboard(); }
    CVorDoc& Document() { return *m_stage.Desk().Document(); }
    std::vector<CImgNode*> Nodes(const CImgNodeList& list);
    std::vector<CImgNode*> SmallSelection();
    void Paste(CPoint point);
    void CopyAndPaste(CPoint point);
    void Event();
    void Rebuild(int nKind);

    CStage& m_stage;
    CInput m_input;
    std::vector<std::uint8_t> m_content;
};

std::vector<CImgNode*> CClipboardFuzz::Nodes(const CImgNodeList& list) {
    std::vector<CImgNode*> nodes;
    for (POSITION pos = list.GetHeadPosition(); pos;) {
        nodes.push_back(list.GetNext(pos));
    }
    return nodes;
}

/// What is small enough for its pixels to be made anew many thousand times.
std::vector<CImgNode*> CClipboardFuzz::SmallSelection() {
    std::vector<CImgNode*> nodes = Nodes(*Document().GetActList());
    std::erase_if(nodes, [](const CImgNode* pNode) {
        const bool bText = pNode->m_nType == node_type::Text;
        return pNode->m_tx.nWidth > MostSide || pNode->m_tx.nHeight > MostSide ||
               pNode->m_shadow.dSoftness > 99 || std::abs(std::int64_t{pNode->m_tx.nMaskScale}) > 200 ||
               (bText && static_cast<const CTextNode*>(pNode)->m_nFontSize > MostSide);
    });
    return nodes;
}

void CClipboardFuzz::Paste(CPoint point) {
    const std::vector<CImgNode*> page = Nodes(*Document().GetObjList());
    const std::vector<CImgNode*> selection = Nodes(*Document().GetActList());
    const std::size_t nNodes = CNodeBookkeeping::LiveNodes();
    const std::size_t nBuffers = buffer_host::BufferCount();
    if (page.size() > MostNodes) {
        return;
    }
    if (Clipboard().Paste(point, 0) == 1) {
        Require(Nodes(*Document().GetActList()).size() > 0, "what was pasted is selected");
        return;
    }
    Require(page == Nodes(*Document().GetObjList()), "a refused paste leaves the page");
    Require(selection == Nodes(*Document().GetActList()), "a refused paste leaves the selection");
    Require(nNodes == CNodeBookkeeping::LiveNodes(), "a refused paste leaves no node");
    Require(nBuffers == buffer_host::BufferCount(), "a refused paste leaves no buffer");
}

void CClipboardFuzz::CopyAndPaste(CPoint point) {
    platform::ClearFaults();
    Clipboard().SetContent(m_content);
    if (Clipboard().Paste(point, 0) == 1) {
        Require(Clipboard().Copy(point) == 1, "what was pasted can be copied");
        Require(Clipboard().Content().size() == m_content.size(), "a copy is as long as the original");
    }
}

void CClipboardFuzz::Event() {
    const int nKind = m_input.Byte() % 16;
    const CPoint point = m_input.Point();
    switch (nKind) {
    case 0:
    case 1: Paste(point); break;
    case 2: CopyAndPaste(point); break;
    case 3: Clipboard().Copy(point); break;
    case 4: m_stage.Undo(); break;
    case 5: m_stage.Redo(); break;
    case 6: m_stage.Key(point.x & 1 ? VK_LEFT : VK_DOWN); break;
    case 7: m_stage.Key(VK_DELETE); break;
    case 8: m_stage.Click(point); break;
    case 9: m_stage.Drag(point, CPoint(point.y, point.x), point.x & 1 ? Ctrl::Down : Ctrl::Up, 2); break;
    case 10: m_stage.SetScroll(CPoint(point.x * 9'000'000, point.y)); break;
    case 11:
        platform::ArmFault(Faults[static_cast<unsigned>(point.x) % 4], true,
                           static_cast<unsigned>(point.y) % 8);
        break;
    default: Rebuild(nKind); break;
    }
}

void CClipboardFuzz::Rebuild(int nKind) {
    IToolObjectOps* pOps = m_stage.ToolInterface<IToolObjectOps>();
    for (CImgNode* pNode : SmallSelection()) {
        CTextNode* pText = pNode->m_nType == node_type::Text ? static_cast<CTextNode*>(pNode) : nullptr;
        if (nKind == 12 && pOps) {
            pOps->RefreshNodeShadow(pNode, 1);
        } else if (nKind == 13) {
            pNode->m_fnAdjustImageNodeBuf(0, 0);
        } else if (pText) {
            CTextEffectState::Set(*pText, nKind == 14 ? TextEffect::None : TextEffect::Glow, RGB(1, 2, 3));
            pText->m_fnRegenerateTextEffect();
        }
    }
}

/// Another page without a base image. Pixels that live on at the end of the program would count as lost.
void EmptyPage(CStage& stage) {
    std::string none;
    platform::ClearFaults();
    platform::ResetInput();
    ::ReleaseCapture();
    stage.UseTool("");
    Require(stage.NewPage(160, 120) && stage.SetBaseFile(nullptr, none), "there is a page");
    stage.SetScroll(CPoint(0, 0));
}

// One stage serves all inputs; each leaves an empty page.
CStage& Stage() {
    static CStage* pStage = nullptr;
    if (!pStage) {
        pStage = new CStage;
        Require(pStage->LoadModule().tools > 0, "the module loads");
        trace::TurnOn(false);
        pStage->Desk().Panels().bRealClipboard = true;
        EmptyPage(*pStage);
    }
    return *pStage;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nSize) {
    Stage().AddPicture("A", RGB(255, 0, 0), 10, 10, 20, 20);
    CClipboardFuzz(Stage(), pBytes, nSize).Run();
    EmptyPage(Stage());
    return 0;
}
