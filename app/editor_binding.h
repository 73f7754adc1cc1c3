// The exported editor, reached in a module that is loaded at run time.
#pragma once

#include <type_traits>

#include "text/editor/inplace_editor.h"

/// The exported operations of CInplaceEditor under their own names. What needs no symbol of the module, the
/// virtual operations and those that the header carries out, is called on the editor itself.
struct EditorCalls {
    void (*pfnConstruct)(void*) = nullptr;
    int (CInplaceEditor::*m_fnCreate)(CWnd*, CPoint&, CString&, int) = nullptr;

    void (CInplaceEditor::*m_fnSetText)(CString&) = nullptr;
    void (CInplaceEditor::*m_fnGetText)(CString&) const = nullptr;
    void (CInplaceEditor::*m_fnGetText2)(CString&) const = nullptr;
    void (CInplaceEditor::*m_fnSetFont)(CString&) = nullptr;
    void (CInplaceEditor::*m_fnSetFontSizeInPoint)(int) = nullptr;
    void (CInplaceEditor::*m_fnSetFontSizeInPixel)(int) = nullptr;
    void (CInplaceEditor::*m_fnSetFontStyle)(int) = nullptr;
    void (CInplaceEditor::*m_fnSetFontColor)(COLORREF) = nullptr;
    void (CInplaceEditor::*m_fnSetTextAlignType)(int) = nullptr;
    void (CInplaceEditor::*m_fnGetFontName)(CString&) const = nullptr;
    int (CInplaceEditor::*m_fnGetFontSizeInPoint)() = nullptr;
    int (CInplaceEditor::*m_fnGetTextBoundRect)(CRect&) = nullptr;
    void (CInplaceEditor::*m_fnCenterWindow)(CPoint&) = nullptr;

    void (CInplaceEditor::*m_fnSetSelectRange)(int, int, int, int) = nullptr;
    void (CInplaceEditor::*m_fnReplaceSelectRange)(CString&, int) = nullptr;
    void (CInplaceEditor::*m_fnMoveCursorTo)(CPoint&) = nullptr;
    void (CInplaceEditor::*m_fnEndInput)() = nullptr;
    int (CInplaceEditor::*m_fnGetSelectedText)(CString&) const = nullptr;
    CHandle<QXRICHEDITINFO, CHandleKiller> (CInplaceEditor::*m_fnGetRichText)(double) = nullptr;
    int (CInplaceEditor::*m_fnGetBuffer)(HBUF32*, HBUF32*) = nullptr;

    int (*m_fnGetDispdpi)() = nullptr;
    int (*m_fnConvertFontPointToPixel)(int) = nullptr;
    int (*m_fnConvertFontPixelToNearestPoint)(int) = nullptr;
    int (*m_fnPix2Twip)(int) = nullptr;
    int (*m_fnTwip2Pix)(int) = nullptr;
};

/// Finds all of them in the module. False, and `calls` of no use, when one is not there.
bool BindEditor(HMODULE hModule, EditorCalls& calls);
/// A new editor without a window, the caller's to delete; null without memory.
CInplaceEditor* MakeEditor(const EditorCalls& calls);
