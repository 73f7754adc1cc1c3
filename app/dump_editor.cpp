#include "dump_editor.h"

#include "code_page.h"
#include "dump_nodes.h"
#include "editor_binding.h"

namespace {

using TextGetter = void (CInplaceEditor::*)(CString&) const;

Json TextOf(const CInplaceEditor& editor, TextGetter pfnGet) {
    CString text;
    (editor.*pfnGet)(text);
    return ToUtf8(BytesOf(text));
}

Json LinesJson(const CLineStore& lines) {
    Json json = Json::array();
    for (POSITION position = lines.Begin(); position;) {
        json.push_back(ToUtf8(BytesOf(lines.Next(position))));
    }
    return json;
}

Json SelectionJson(const CInplaceEditor& editor) {
    if (!editor.HasSelection()) {
        return nullptr;
    }
    const auto [start, end] = editor.Selection();
    return Json::array({start.nLine, start.nIndex, end.nLine, end.nIndex});
}

RECT WindowRect(const CInplaceEditor& editor, const CWnd& view) {
    CRect rect;
    editor.GetWindowRect(&rect);
    view.ScreenToClient(&rect);
    return rect;
}

RECT TextRect(CInplaceEditor& editor, const EditorCalls& calls) {
    CRect rect;
    (editor.*calls.m_fnGetTextBoundRect)(rect);
    return rect;
}

} // namespace

Json EditorJson(CStage& stage) {
    CInplaceEditor* pEditor = stage.Editor();
    if (!pEditor) {
        return nullptr;
    }
    const EditorCalls& calls = *stage.EditorOperations();
    return {{"lines", LinesJson(pEditor->Lines())},
            {"line", pEditor->Caret().nLine},
            {"index", pEditor->Caret().nIndex},
            {"selection", SelectionJson(*pEditor)},
            {"rect", RectJson(WindowRect(*pEditor, *stage.Desk().View()))},
            {"textRect", RectJson(TextRect(*pEditor, calls))},
            {"caretEnabled", pEditor->IsCaretEnabled()},
            {"caretDrawn", pEditor->IsCaretDrawn()},
            {"font", TextOf(*pEditor, calls.m_fnGetFontName)},
            {"px", pEditor->m_fnGetFontSizeInPixel()},
            {"align", pEditor->m_fnGetAlignType()},
            {"bold", pEditor->m_fnIsBold()},
            {"italic", pEditor->m_fnIsItalic()},
            {"underline", pEditor->m_fnIsUnderLine()},
            {"color", ColorText(pEditor->m_fnGetTextColor())},
            {"text", TextOf(*pEditor, calls.m_fnGetText)},
            {"text2", TextOf(*pEditor, calls.m_fnGetText2)}};
}

Json ClipboardJson(CStage& stage) {
    const std::optional<std::string> text = stage.Clipboard();
    return text ? Json(ToUtf8(*text)) : Json(nullptr);
}
