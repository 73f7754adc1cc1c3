#include "module_help.h"

#include <map>

#include "bus/masks.h"
#include "desk/recorded_event.h"
#include "desk/tool_catalog.h"
#include "host/text_node.h"
#include "host/undo.h"
#include "image/picture_node.h"
#include "image/view_host.h"
#include "platform/faults.h"
#include "platform/input.h"
#include "platform/surface.h"

namespace {

constexpr int SquareSide = 40; ///< document units
constexpr COLORREF SquareColor = RGB(255, 0, 0);
constexpr COLORREF BaseColor = RGB(0x50, 0x50, 0x50);

const std::map<std::string, std::string>& InterfaceWords() {
    static const std::map<std::string, std::string> words = {
        {"{549E67C8-F257-4EF4-967F-EEA7FF71B671}", "area"},
        {"{461E83E3-1A84-4B93-89FB-7C973F28275A}", "reset"},
        {"{AF28E797-8219-4C10-BA9D-B54B6CEBA6DA}", "group"},
        {"{378B6A99-FC7A-418F-A99C-DA3071D08CF9}", "frame-panel"},
        {"{040F72EA-0032-489B-B45E-42EE6B9C3D5D}", "shadow-panel"},
        {"{D6E291AB-E666-4473-9907-B9C62879E72D}", "object-page"},
        {"{61282350-4C70-47C5-B25E-35539AFC3379}", "text-page"},
        {"{DAABBD7A-0630-4CB6-A669-B053923DEBFB}", "display-panel"},
        {"{1BC52299-72AD-43F8-AF9F-DC79F62BB080}", "tracker"},
        {"{D4E25EAC-2D20-47BF-BE09-EC5D0C21E5AB}", "changed"},
        {"{7933E6ED-E8A4-4D0D-9691-A8F45D7501CB}", "changed2"},
        {"{A623160A-E6E7-4457-B24E-ACD247A04A6F}", "redrawn"},
    };
    return words;
}

const std::map<std::string, std::string>& CallWords() {
    static const std::map<std::string, std::string> words = {
        {"FlushCacheRect", "flush"},         {"RepaintViewRect", "repaint"},     {"GetDisplayCache", "read"},
        {"UpdateDisplayCache", "write"},     {"InvalidateRect", "invalidate"},   {"AddUndoEvent", "record"},
        {"BeginPackUndoEvent", "open pack"}, {"EndPackUndoEvent", "close pack"},
    };
    return words;
}

std::string WordOr(const std::map<std::string, std::string>& words, const std::string& text) {
    const auto found = words.find(text);
    return found == words.end() ? text : found->second;
}

/// The first argument of these rows says all that a test asks for; the second is a flag.
std::string FlagText(const trace::Row& row) {
    if (row.op != "RepaintViewRect") {
        return {};
    }
    return std::get<long long>(row.args[1]) == 1 ? " erase" : " keep";
}

std::string RectText(const RECT& rc) {
    return std::to_string(rc.left) + " " + std::to_string(rc.top) + " " + std::to_string(rc.right) + " " +
           std::to_string(rc.bottom);
}

std::string EventText(const CUndoEvent* pEvent) {
    RecordedEvent record;
    if (!pEvent || !ReadRecordedEvent(*pEvent, record)) {
        return "none";
    }
    const ToolRow* pRow = FindToolRow(record.pTool);
    return std::string(pRow ? pRow->identity.pszClass : "nobody") + (record.bUndone ? " undone" : " done");
}

} // namespace

CModuleStage::CModuleStage(const std::string& tool) {
    LoadModule();
    SetBaseColor(BaseColor);
    UseTool(tool);
    Forget();
}

CImgNode* CModuleStage::Square(const std::string& name, int nX, int nY) {
    return AddPicture(name, SquareColor, nX, nY, SquareSide, SquareSide);
}

CImgNode* CModuleStage::TextBox(const std::string& name, int nX, int nY) {
    const trace::CQuietScope quiet;
    auto* pText = new CTextNode(Desk().Document());
    pText->m_tx.nX = nX;
    pText->m_tx.nY = nY;
    pText->m_tx.nWidth = SquareSide;
    pText->m_tx.nHeight = SquareSide;
    pText->m_strFontName = "Arial";
    pText->m_nFontSize = 16;
    Desk().Document()->GetObjList()->AddHead(pText);
    Names().Give(name, pText);
    return pText;
}

CImgNode* CModuleStage::Shadow(const std::string& object, int nDx, int nDy) {
    const trace::CQuietScope quiet;
    CImgNode* pObject = Node(object);
    Picture picture;
    CRect rc = Rect(object);
    SolidPicture(RGB(0, 0, 0), rc.Width(), rc.Height(), picture);
    rc.OffsetRect(nDx, nDy);
    CImgNode* pShadow = MakePictureNode(*Desk().Document(), std::move(picture), rc);
    pShadow->m_nType = node_type::Shadow;
    pShadow->m_pOwner = pObject;
    pObject->m_pShadowNode = pShadow;
    Desk().Document()->InsertNodeFor(pObject, pShadow, 1);
    Desk().RefreshDocRect(rc);
    return pShadow;
}

IToolInput& CModuleStage::Input(const std::string& tool) {
    return *CDesk::Query<IToolInput>(tool.empty() ? CurrentTool() : Tool(tool));
}

IToolObjectOps& CModuleStage::Ops(const std::string& tool) {
    return *CDesk::Query<IToolObjectOps>(tool.empty() ? CurrentTool() : Tool(tool));
}

int CModuleStage::PressAnswer(CPoint point) { return Input().OnLButtonDown(MK_LBUTTON, point); }

std::string CModuleStage::ValueText(const trace::Value& value) {
    if (const auto* pNumber = std::get_if<long long>(&value)) {
        return std::to_string(*pNumber);
    }
    if (const auto* pText = std::get_if<std::string>(&value)) {
        return *pText;
    }
    if (const auto* pRect = std::get_if<RECT>(&value)) {
        return RectText(*pRect);
    }
    if (const auto* pPoint = std::get_if<POINT>(&value)) {
        return std::to_string(pPoint->x) + " " + std::to_string(pPoint->y);
    }
    if (const auto* pNode = std::get_if<trace::Node>(&value)) {
        return pNode->id ? Names().OfId(pNode->id) : "none";
    }
    if (const auto* pColor = std::get_if<trace::Color>(&value)) {
        return std::to_string(pColor->value);
    }
    return "?";
}

std::string CModuleStage::LineOf(const trace::Row& row) {
    const bool bBus = !row.iface.empty();
    std::string line =
        bBus ? WordOr(InterfaceWords(), row.iface) + "." + row.op : WordOr(CallWords(), row.op);
    for (std::size_t n = 0; n < row.args.size(); ++n) {
        const bool bFlag = !bBus && row.on != "doc" && n > 0;
        line += bFlag ? "" : " " + ValueText(row.args[n]);
    }
    return line + (bBus ? "" : FlagText(row));
}

Lines CModuleStage::Told() {
    Lines lines;
    for (const trace::Row& row : Trace()) {
        lines.push_back(LineOf(row));
    }
    Calls();
    return lines;
}

Lines CModuleStage::ToldOnBus() {
    Lines lines;
    for (const trace::Row& row : Calls()) {
        lines.push_back(LineOf(row));
    }
    Trace();
    return lines;
}

CRect CModuleStage::SelectionRect() {
    CRect rc(-1, -1, -1, -1);
    Ops().GetSelectionRect(&rc);
    return rc;
}

CRect CModuleStage::OutlineRect() {
    CRect rc(-1, -1, -1, -1);
    Ops().GetSelectionOutlineRect(&rc);
    return rc;
}

bool CModuleStage::HasCapture() const { return ::GetCapture() == Desk().View()->m_hWnd; }

unsigned CModuleStage::Cursor() const {
    const HWND hView = Desk().View()->m_hWnd;
    const unsigned nShown = platform::CursorId(::GetCursor());
    const auto hClass = reinterpret_cast<HCURSOR>(::GetClassLongPtrA(hView, GCLP_HCURSOR));
    return platform::CursorId(hClass) == nShown ? nShown : 0;
}

unsigned CModuleStage::CursorAt(CPoint point) {
    Move(point);
    return Cursor();
}

Pixels CModuleStage::View() {
    Paint();
    platform::Surface surface;
    Pixels pixels;
    if (platform::LockSurface(Desk().View()->m_hWnd, &surface)) {
        for (int y = 0; y < surface.height; ++y) {
            const DWORD* pRow = surface.pixels + static_cast<std::ptrdiff_t>(y) * surface.stride;
            pixels.insert(pixels.end(), pRow, pRow + surface.width);
        }
    }
    return pixels;
}

bool CModuleStage::ShowsTruePicture() {
    const Pixels shown = View();
    const trace::CQuietScope quiet;
    CViewHost::RecomposeAll(*Desk().View());
    return !shown.empty() && shown == View();
}

std::string CModuleStage::NewestUndo() const { return EventText(GetUndoMgr()->GetUndoEvent(0)); }

std::string CModuleStage::NewestRedo() const { return EventText(GetUndoMgr()->GetRedoEvent(0)); }

void CModuleStage::HideKind(int nKind) { bus::MaskKind(CategoryId, nKind); }

void CModuleStage::ShowKind(int nKind) { bus::UnmaskKind(CategoryId, nKind); }

void CModuleStage::HideInterfaceOf(int nKind, const GUID& iid) { bus::MaskInterface(CategoryId, nKind, iid); }

void CModuleStage::FailUndoEvent(unsigned nAfter) { platform::ArmFault("undo-event", true, nAfter); }
