#include "dump.h"

#include <array>

#include "buffer/buffer_host.h"
#include "code_page.h"
#include "desk/recorded_event.h"
#include "desk/tool_catalog.h"
#include "dump_editor.h"
#include "dump_menu.h"
#include "dump_nodes.h"
#include "dump_trace.h"
#include "image/node_host.h"
#include "panel_kind.h"
#include "platform/clock.h"
#include "platform/counts.h"
#include "platform/input.h"
#include "scenario/keys.h"
#include "undo/undo_host.h"

namespace {

constexpr int KeyCount = 256;
constexpr int FirstKeyboardKey = 8; ///< below stand the mouse buttons

Json SelectionJson(CStage& stage) {
    Json json = Json::array();
    for (const std::string& name : stage.Selection()) {
        json.push_back(ToUtf8(name));
    }
    return json;
}

Json ClassJson(CListenerObject* pTool) {
    const ToolRow* pRow = FindToolRow(pTool);
    return pRow ? Json(pRow->identity.pszClass) : Json(nullptr);
}

Json EventJson(const CUndoEvent& event) {
    RecordedEvent record;
    const bool bKnown = ReadRecordedEvent(event, record);
    return {{"class", event.GetRuntimeClass()->m_lpszClassName},
            {"tool", bKnown ? ClassJson(record.pTool) : Json(nullptr)},
            {"description", event.GetStrID()},
            {"undone", bKnown ? Json(record.bUndone) : Json(nullptr)}};
}

Json StackJson(CUndoEvent* (CUndoMgr::*pfnGet)(int) const) {
    Json json = Json::array();
    const CUndoMgr* pManager = GetUndoMgr();
    for (int n = 0; const CUndoEvent* pEvent = (pManager->*pfnGet)(n); n++) {
        json.push_back(EventJson(*pEvent));
    }
    return json;
}

Json UndoJson() {
    return {{"undo", StackJson(&CUndoMgr::GetUndoEvent)}, {"redo", StackJson(&CUndoMgr::GetRedoEvent)}};
}

unsigned ClassCursor(HWND hWnd) {
    return platform::CursorId(reinterpret_cast<HCURSOR>(::GetClassLongPtrA(hWnd, GCLP_HCURSOR)));
}

Json CursorJson(CStage& stage) {
    return {{"current", platform::CursorId(::GetCursor())},
            {"class", ClassCursor(stage.Desk().View()->m_hWnd)},
            {"waits", stage.WaitCursors()}};
}

/// A window as a person calls it: the view, or the editor, which is the only child it has.
Json WindowJson(CStage& stage, HWND hWnd) {
    HWND hView = stage.Desk().View()->m_hWnd;
    if (!hWnd || (hWnd != hView && !::IsChild(hView, hWnd))) {
        return nullptr;
    }
    return hWnd == hView ? "view" : "editor";
}

Json HeldJson() {
    Json json = Json::array();
    for (int nKey = FirstKeyboardKey; nKey < KeyCount; nKey++) {
        if (::GetAsyncKeyState(nKey) < 0) {
            json.push_back(NameOfKey(nKey));
        }
    }
    return json;
}

Json InputJson(CStage& stage) {
    Json timers = Json::array();
    for (const platform::TimerInfo& timer : platform::ListTimers()) {
        timers.push_back({{"id", timer.id}, {"ms", timer.period}});
    }
    return {{"capture", WindowJson(stage, ::GetCapture())},
            {"focus", WindowJson(stage, ::GetFocus())},
            {"held", HeldJson()},
            {"queued", platform::QueuedMessages()},
            {"timers", std::move(timers)}};
}

Json KindJson(const ToolRow& row) {
    return row.identity.category == EditCategoryId ? Json("edit:" + std::to_string(row.identity.nKind))
                                                   : Json(row.identity.nKind);
}

Json ToolJson(CStage& stage) {
    CListenerObject* pTool = stage.CurrentTool();
    const ToolRow* pRow = FindToolRow(pTool);
    const int nPanelKind = pTool ? AskPanelKind(*pTool) : 0;
    return {{"class", ClassJson(pTool)},
            {"kind", pRow ? KindJson(*pRow) : Json(nullptr)},
            {"panelKind", nPanelKind ? Json(nPanelKind) : Json(nullptr)},
            {"excluded", NameJson(stage, stage.Desk().ExcludedNode())}};
}

Json ResourcesJson(CStage& stage) {
    const platform::LiveCounts counts = platform::CountLive();
    return {{"nodes", CNodeBookkeeping::LiveNodes()},
            {"offPage", CNodeBookkeeping::OffPage(*stage.Desk().Document())},
            {"buffers", buffer_host::BufferCount()},
            {"globalBlocks", counts.globalBlocks},
            {"gdiObjects", counts.gdiObjects},
            {"deviceContexts", counts.deviceContexts},
            {"windows", counts.windows},
            {"menus", counts.menus},
            {"undoEvents", undo_host::EventCount()}};
}

struct DumpRow {
    const char* pszName;
    Json (*pfnWrite)(CStage&, Records);
};

constexpr std::array<DumpRow, 14> Dumps = {{
    {"page", [](CStage& stage, Records) { return PageJson(stage); }},
    {"selection", [](CStage& stage, Records) { return SelectionJson(stage); }},
    {"undo", [](CStage&, Records) { return UndoJson(); }},
    {"panels", [](CStage& stage, Records) { return PanelsJson(stage); }},
    {"calls",
     [](CStage& stage, Records records) {
         return CallsJson(stage, records == Records::Take ? stage.Calls() : stage.PeekCalls());
     }},
    {"trace",
     [](CStage& stage, Records records) {
         return TraceJson(stage, records == Records::Take ? stage.Trace() : stage.PeekTrace());
     }},
    {"cursor", [](CStage& stage, Records) { return CursorJson(stage); }},
    {"input", [](CStage& stage, Records) { return InputJson(stage); }},
    {"editor", [](CStage& stage, Records) { return EditorJson(stage); }},
    {"clipboard", [](CStage& stage, Records) { return ClipboardJson(stage); }},
    {"tool", [](CStage& stage, Records) { return ToolJson(stage); }},
    {"menu", [](CStage& stage, Records) { return MenuJson(stage); }},
    {"nodes", [](CStage& stage, Records) { return NodesJson(stage); }},
    {"resources", [](CStage& stage, Records) { return ResourcesJson(stage); }},
}};

} // namespace

bool Dump(CStage& stage, const std::string& name, Records records, Json& json) {
    for (const DumpRow& row : Dumps) {
        if (name == row.pszName) {
            json = row.pfnWrite(stage, records);
            return true;
        }
    }
    return false;
}

std::string JsonText(const Json& json) {
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

std::string QuotedText(const CString& text) { return JsonText(ToUtf8(BytesOf(text))); }

std::string ColorText(COLORREF color) {
    char text[8];
    std::snprintf(text, sizeof(text), "#%02X%02X%02X", GetRValue(color), GetGValue(color), GetBValue(color));
    return text;
}
