#include "scenario/editor_operations.h"

#include <algorithm>
#include <array>

#include "buffer/buffer_host.h"
#include "dump.h"
#include "editor_host.h"
#include "scenario/error.h"

namespace {

/// What an operation works on.
struct Subject {
    CRunner& run;
    CInplaceEditor& editor;
    const EditorCalls& calls;
};

using Pairs = std::vector<std::pair<std::string, std::string>>;
using Handler = void (*)(const Subject&, CArguments&);

struct OperationRow {
    const char* pszName;
    Handler pfnRun;
};

/// What the call answers, in text; `none` when it answers nothing.
template <class Call>
std::string Result(Call&& call) {
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
        return "none";
    } else {
        return std::to_string(call());
    }
}

CString TextArgument(CArguments& args) {
    const std::string text = args.String("TEXT");
    return {text.data(), static_cast<int>(text.size())};
}

Pairs TextPair(const CString& text) { return {{"text", QuotedText(text)}}; }

/// The view's client pixels in the window's.
CPoint OnEditor(const CInplaceEditor& editor, CPoint point) {
    ::ClientToScreen(::GetParent(editor), &point);
    editor.ScreenToClient(&point);
    return point;
}

/// The shapes of operations. Those that the header carries out are members, the others fields of the calls.
template <auto pMember>
void Ask(const Subject& subject, CArguments& args) {
    args.End();
    subject.run.Say(Result([&] { return (subject.editor.*pMember)(); }));
}

template <auto pCall>
void Plain(const Subject& subject, CArguments& args) {
    args.End();
    subject.run.Say(Result([&] { return (subject.editor.*(subject.calls.*pCall))(); }));
}

template <auto pCall>
void OneNumber(const Subject& subject, CArguments& args) {
    const int nValue = args.Int("N");
    args.End();
    subject.run.Say(Result([&] { return (subject.editor.*(subject.calls.*pCall))(nValue); }));
}

template <auto pCall>
void TextIn(const Subject& subject, CArguments& args) {
    CString text = TextArgument(args);
    args.End();
    subject.run.Say(Result([&] { return (subject.editor.*(subject.calls.*pCall))(text); }));
}

template <auto pCall>
void TextOut(const Subject& subject, CArguments& args) {
    args.End();
    CString text;
    const std::string result = Result([&] { return (subject.editor.*(subject.calls.*pCall))(text); });
    subject.run.Say(result, TextPair(text));
}

template <auto pCall>
void AtPoint(const Subject& subject, CArguments& args) {
    CPoint point = args.ClientPoint("X Y");
    args.End();
    subject.run.Say(Result([&] { return (subject.editor.*(subject.calls.*pCall))(point); }));
}

template <auto pCall>
void Convert(const Subject& subject, CArguments& args) {
    const int nValue = args.Int("N");
    args.End();
    subject.run.Say((subject.calls.*pCall)(nValue));
}

void GetDispdpi(const Subject& subject, CArguments& args) {
    args.End();
    subject.run.Say(subject.calls.m_fnGetDispdpi());
}

void SetFontColor(const Subject& subject, CArguments& args) {
    const COLORREF crText = args.Color("#RRGGBB");
    args.End();
    subject.run.Say(Result([&] { (subject.editor.*subject.calls.m_fnSetFontColor)(crText); }));
}

void GetTextColor(const Subject& subject, CArguments& args) {
    args.End();
    subject.run.Say(ColorText(subject.editor.m_fnGetTextColor()));
}

void GetTextBoundRect(const Subject& subject, CArguments& args) {
    args.End();
    CRect rcBound;
    const int nResult = (subject.editor.*subject.calls.m_fnGetTextBoundRect)(rcBound);
    subject.run.Say(nResult, {{"rect", RectText(rcBound)}});
}

void RegisterNotifyObject(const Subject& subject, CArguments& args) {
    const bool bHost = args.OneOf("host or none", {"none", "host"}) == 1;
    args.End();
    subject.run.Stage().EditorHost().Listen(subject.editor, bHost);
    subject.run.Say("none");
}

void SetSelectRange(const Subject& subject, CArguments& args) {
    const int nLine1 = args.Int("L1");
    const int nIndex1 = args.Int("C1");
    const int nLine2 = args.Int("L2");
    const int nIndex2 = args.Int("C2");
    args.End();
    (subject.editor.*subject.calls.m_fnSetSelectRange)(nLine1, nIndex1, nLine2, nIndex2);
    subject.run.Say("none");
}

void ReplaceSelectRange(const Subject& subject, CArguments& args) {
    CString text = TextArgument(args);
    const int nRedraw = args.Int("N");
    args.End();
    (subject.editor.*subject.calls.m_fnReplaceSelectRange)(text, nRedraw);
    subject.run.Say("none");
}

/// The result is the presence of a record.
void GetRichText(const Subject& subject, CArguments& args) {
    const double dScale = args.Double("S");
    args.End();
    const auto record = (subject.editor.*subject.calls.m_fnGetRichText)(dScale);
    subject.run.Say(record.IsEmpty() ? 0 : 1);
}

void GetBuffer(const Subject& subject, CArguments& args) {
    args.End();
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    const int nResult = (subject.editor.*subject.calls.m_fnGetBuffer)(&hImage, &hMask);
    const CBufferPtr image(hImage);
    const CBufferPtr mask(hMask);
    subject.run.Say(nResult);
}

void OnPrepareDrag(const Subject& subject, CArguments& args) {
    CPoint point = OnEditor(subject.editor, args.ClientPoint("X Y"));
    args.End();
    subject.run.Say(subject.editor.m_fnOnPrepareDrag(point));
}

void OnPrepareDragData(const Subject& subject, CArguments& args) {
    CPoint point = OnEditor(subject.editor, args.ClientPoint("X Y"));
    args.End();
    CString text;
    const int nResult = subject.editor.m_fnOnPrepareDragData_CF_TEXT(point, text);
    subject.run.Say(nResult, TextPair(text));
}

constexpr std::array<OperationRow, 35> Rows = {{
    {"m_fnSetText", TextIn<&EditorCalls::m_fnSetText>},
    {"m_fnGetText", TextOut<&EditorCalls::m_fnGetText>},
    {"m_fnGetText2", TextOut<&EditorCalls::m_fnGetText2>},
    {"m_fnSetFont", TextIn<&EditorCalls::m_fnSetFont>},
    {"m_fnSetFontSizeInPoint", OneNumber<&EditorCalls::m_fnSetFontSizeInPoint>},
    {"m_fnSetFontSizeInPixel", OneNumber<&EditorCalls::m_fnSetFontSizeInPixel>},
    {"m_fnSetFontStyle", OneNumber<&EditorCalls::m_fnSetFontStyle>},
    {"m_fnSetFontColor", SetFontColor},
    {"m_fnSetTextAlignType", OneNumber<&EditorCalls::m_fnSetTextAlignType>},
    {"m_fnGetFontName", TextOut<&EditorCalls::m_fnGetFontName>},
    {"m_fnIsBold", Ask<&CInplaceEditor::m_fnIsBold>},
    {"m_fnIsItalic", Ask<&CInplaceEditor::m_fnIsItalic>},
    {"m_fnIsUnderLine", Ask<&CInplaceEditor::m_fnIsUnderLine>},
    {"m_fnGetTextColor", GetTextColor},
    {"m_fnGetFontSizeInPixel", Ask<&CInplaceEditor::m_fnGetFontSizeInPixel>},
    {"m_fnGetAlignType", Ask<&CInplaceEditor::m_fnGetAlignType>},
    {"m_fnGetFontSizeInPoint", Plain<&EditorCalls::m_fnGetFontSizeInPoint>},
    {"m_fnGetTextBoundRect", GetTextBoundRect},
    {"m_fnCenterWindow", AtPoint<&EditorCalls::m_fnCenterWindow>},
    {"m_fnRegisterNotifyObject", RegisterNotifyObject},
    {"m_fnGetDispdpi", GetDispdpi},
    {"m_fnConvertFontPointToPixel", Convert<&EditorCalls::m_fnConvertFontPointToPixel>},
    {"m_fnConvertFontPixelToNearestPoint", Convert<&EditorCalls::m_fnConvertFontPixelToNearestPoint>},
    {"m_fnPix2Twip", Convert<&EditorCalls::m_fnPix2Twip>},
    {"m_fnTwip2Pix", Convert<&EditorCalls::m_fnTwip2Pix>},
    {"m_fnSetSelectRange", SetSelectRange},
    {"m_fnReplaceSelectRange", ReplaceSelectRange},
    {"m_fnMoveCursorTo", AtPoint<&EditorCalls::m_fnMoveCursorTo>},
    {"m_fnEndInput", Plain<&EditorCalls::m_fnEndInput>},
    {"m_fnGetSelectedText", TextOut<&EditorCalls::m_fnGetSelectedText>},
    {"m_fnGetRichText", GetRichText},
    {"m_fnGetBuffer", GetBuffer},
    {"m_fnOnPrepareDrag", OnPrepareDrag},
    {"m_fnOnPrepareDragData_CF_TEXT", OnPrepareDragData},
    {"m_fnOnDragLeave", Ask<&CInplaceEditor::m_fnOnDragLeave>},
}};

} // namespace

CInplaceEditor& RequireEditor(CRunner& run) {
    CInplaceEditor* pEditor = run.Stage().Editor();
    if (!pEditor) {
        throw CScenarioError("no editor is open");
    }
    return *pEditor;
}

const EditorCalls& RequireEditorCalls(CRunner& run) {
    const EditorCalls* pCalls = run.Stage().EditorOperations();
    if (!pCalls) {
        throw CScenarioError("the module with the editor is not loaded");
    }
    return *pCalls;
}

void RunEditorOperation(CRunner& run, CArguments& args) {
    const std::string name = args.Name("OPERATION");
    const auto* pRow =
        std::find_if(Rows.begin(), Rows.end(), [&](const OperationRow& row) { return name == row.pszName; });
    if (pRow == Rows.end()) {
        args.Fail("no operation of the editor is called " + name);
    }
    pRow->pfnRun({run, RequireEditor(run), RequireEditorCalls(run)}, args);
}
