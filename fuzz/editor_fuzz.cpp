// Reads bytes as what a person and a host do to the in-place editor. Beyond crashes it stops at a place or a
// selection outside the text.
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "editor_binding.h"
#include "editor_host.h"
#include "fuzz_input.h"
#include "platform/clipboard.h"
#include "platform/code_page.h"
#include "platform/faults.h"
#include "platform/input.h"
#include "stage.h"

namespace {

constexpr int MostEvents = 400;
constexpr int MostBytes =
    2000; ///< of a text; a longer one is emptied, because pasting may double it each time
constexpr int ViewWidth = 160;
constexpr int ViewHeight = 120;

constexpr std::array<int, 15> Keys = {VK_BACK, VK_RETURN, VK_ESCAPE, VK_END,  VK_HOME,
                                      VK_LEFT, VK_RIGHT,  VK_UP,     VK_DOWN, VK_DELETE,
                                      'C',     'V',       VK_TAB,    'A',     VK_SPACE};
constexpr std::array<const char*, 5> Faces = {"Arial", "Courier New", "MS Gothic", "No such face", ""};
constexpr std::array<const char*, 7> Faults = {"window",         "bitmap",    "buffer", "display-context",
                                               "device-context", "rich-edit", "font"};
constexpr std::array<UINT, 3> CodePages = {1252, 932, 949};

CString TextOf(const std::string& bytes) { return CString(bytes.data(), static_cast<int>(bytes.size())); }

class CEditorFuzz {
  public:
    CEditorFuzz(CStage& stage, CInput input) : m_stage(stage), m_input(input) {}

    void Run() {
        platform::SetCodePage(m_input.Of(CodePages));
        Open();
        for (int n = 0; n < MostEvents && !m_input.IsEmpty(); ++n) {
            Event();
            if (!m_stage.Editor()) {
                Open();
            }
            CheckLaws();
        }
    }

  private:
    const EditorCalls& Calls() { return *m_stage.EditorOperations(); }
    CInplaceEditor& Editor() { return *m_stage.Editor(); }
    void Open();
    void Event();
    void Mouse(int nKind);
    void Exchange(int nKind);
    void Change(int nKind);
    void Look(int nKind);
    void Export(int nKind);
    void Surroundings(int nKind);
    void CheckLaws();

    CStage& m_stage;
    CInput m_input;
};

// An armed fault may keep the first one from opening.
void CEditorFuzz::Open() {
    const std::string text = m_input.Text();
    const Show show = m_input.Byte() % 8 ? Show::Now : Show::Later;
    const CPoint anchor = m_input.Point();
    if (m_stage.NewEditor(anchor, text, show) != 1) {
        platform::ClearFaults();
        Require(m_stage.NewEditor(anchor, text, show) == 1, "an editor opens");
    }
}

void CEditorFuzz::Event() {
    const int nKind = m_input.Byte() % 64;
    if (nKind < 10) {
        m_stage.KeyDown(m_input.Of(Keys), m_input.Bit() ? Ctrl::Down : Ctrl::Up);
    } else if (nKind < 20) {
        m_stage.Char(static_cast<unsigned>(m_input.Byte()));
    } else if (nKind < 30) {
        Mouse(nKind);
    } else if (nKind < 40) {
        Exchange(nKind);
    } else if (nKind < 48) {
        Change(nKind);
    } else if (nKind < 53) {
        Look(nKind);
    } else if (nKind < 57) {
        Export(nKind);
    } else {
        Surroundings(nKind);
    }
}

void CEditorFuzz::Mouse(int nKind) {
    const CPoint point = m_input.Point();
    switch (nKind) {
    case 20: m_stage.Press(point); break;
    case 21: m_stage.Release(point); break;
    case 22: m_stage.RightPress(point); break;
    case 23: m_stage.DblClick(point); break;
    case 24: m_stage.Drag(point, m_input.Point(), m_input.Bit() ? Ctrl::Down : Ctrl::Up, 2); break;
    case 25: m_stage.QueuePress(point); break;
    case 26: m_stage.QueueRelease(point); break;
    case 27: m_stage.Pump(); break;
    default: m_stage.Move(point, m_input.Bit() ? Ctrl::Down : Ctrl::Up); break;
    }
}

void CEditorFuzz::Exchange(int nKind) {
    const DropOffer offer = {m_input.Byte() % 8 ? UINT{CF_TEXT} : UINT{2},
                             static_cast<DWORD>(m_input.Byte() & 1), m_input.Bit() ? Ctrl::Down : Ctrl::Up};
    switch (nKind) {
    case 30: m_stage.Key('C', 1, Ctrl::Down); break;
    case 31:
    case 32: m_stage.Key('V', 1, Ctrl::Down); break;
    case 33: platform::SetClipboardText(m_input.Text()); break;
    case 34:
    case 35: m_stage.Hover(m_input.Text(), m_input.Point(), offer); break;
    case 36:
    case 37: m_stage.Drop(m_input.Text(), m_input.Point(), offer); break;
    case 38: m_stage.LeaveDrop(); break;
    default: m_stage.DragText(m_input.Point(), m_input.Point(), offer.ctrl); break;
    }
}

void CEditorFuzz::Change(int nKind) {
    CString strText = TextOf(m_input.Text());
    if (nKind < 43) {
        const int nLine = m_input.Number();
        const int nIndex = m_input.Number();
        const int nEndLine = m_input.Number();
        m_stage.SelectText(nLine, nIndex, nEndLine, m_input.Number());
    } else if (nKind < 46) {
        (Editor().*Calls().m_fnReplaceSelectRange)(strText, m_input.Bit() ? 1 : 0);
    } else {
        (Editor().*Calls().m_fnSetText)(strText);
    }
}

void CEditorFuzz::Look(int nKind) {
    CString strFace(m_input.Of(Faces));
    CPoint point = m_input.Point();
    switch (nKind) {
    case 48: (Editor().*Calls().m_fnSetTextAlignType)(m_input.Number()); break;
    case 49: (Editor().*Calls().m_fnSetFontSizeInPixel)(static_cast<std::int8_t>(m_input.Byte()) / 4); break;
    case 50: (Editor().*Calls().m_fnSetFontStyle)(m_input.Byte()); break;
    case 51: (Editor().*Calls().m_fnSetFont)(strFace); break;
    default: (Editor().*Calls().m_fnCenterWindow)(point); break;
    }
}

void CEditorFuzz::Export(int nKind) {
    CString strText;
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    switch (nKind) {
    case 53: (Editor().*Calls().m_fnGetRichText)(m_input.Byte() / 32.0); break;
    case 54:
        if ((Editor().*Calls().m_fnGetBuffer)(&hImage, &hMask)) {
            Require(buf32Free(hImage) == 1 && buf32Free(hMask) == 1, "both buffers are the caller's");
        }
        Require(m_stage.Editor() != nullptr, "an export leaves the editor");
        break;
    case 55: (Editor().*Calls().m_fnGetText2)(strText); break;
    default: {
        CPoint point = m_input.Point();
        (Editor().*Calls().m_fnMoveCursorTo)(point);
        break;
    }
    }
}

void CEditorFuzz::Surroundings(int nKind) {
    switch (nKind) {
    case 57: m_stage.Wait(static_cast<unsigned>(m_input.Byte()) * 8); break;
    case 58: m_stage.Paint(); break;
    case 59: m_input.Bit() ? m_stage.FocusView() : m_stage.FocusNone(); break;
    case 60: m_stage.FocusEditor(); break;
    case 61: Editor().ShowWindow(m_input.Bit() ? SW_SHOW : SW_HIDE); break;
    case 62: m_stage.EndEditor(); break;
    default:
        platform::ArmFault(m_input.Of(Faults), m_input.Bit(), static_cast<unsigned>(m_input.Byte() % 16));
        break;
    }
}

void CEditorFuzz::CheckLaws() {
    const CInplaceEditor& editor = Editor();
    std::vector<int> lengths;
    int nBytes = 0;
    for (POSITION position = editor.Lines().Begin(); position;) {
        const CString& strLine = editor.Lines().Next(position);
        Require(strLine.Find('\n') < 0, "no line has a line break");
        lengths.push_back(strLine.GetLength());
        nBytes += strLine.GetLength() + 1;
    }
    const auto inText = [&lengths](const TextPosition& place) {
        return place.nLine >= 0 && place.nLine < static_cast<int>(lengths.size()) && place.nIndex >= -1 &&
               place.nIndex < lengths[static_cast<std::size_t>(place.nLine)];
    };
    Require(!lengths.empty(), "there is a line");
    Require(inText(editor.Caret()), "the caret is in the text");
    const TextRange range = editor.Selection();
    Require(!editor.HasSelection() || (inText(range.start) && inText(range.end) && range.start < range.end),
            "the selection is in the text");
    if (nBytes > MostBytes) {
        CString strNothing;
        (Editor().*Calls().m_fnSetText)(strNothing);
    }
}

// One stage serves all inputs; each begins with the same surroundings.
CStage& CleanStage() {
    static CStage* pStage = nullptr;
    if (!pStage) {
        pStage = new CStage;
        pStage->SetViewSize(ViewWidth, ViewHeight);
        Require(pStage->LoadModule().tools > 0, "the module loads");
        trace::TurnOn(false);
    }
    platform::ClearFaults();
    pStage->LeaveDrop();
    pStage->DestroyEditor();
    pStage->Pump();
    platform::ResetInput();
    ::OpenClipboard(nullptr);
    ::EmptyClipboard();
    ::CloseClipboard();
    ::ReleaseCapture();
    return *pStage;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nSize) {
    CStage& stage = CleanStage();
    CEditorFuzz(stage, CInput(pBytes, nSize)).Run();
    platform::ClearFaults();
    stage.DestroyEditor();
    return 0;
}
