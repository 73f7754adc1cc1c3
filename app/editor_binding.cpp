#include "editor_binding.h"

#include <cstddef>
#include <cstring>

namespace {

/// Looks symbols up, and remembers whether one was missing.
class CSymbolBinder {
  public:
    explicit CSymbolBinder(HMODULE hModule) : m_hModule(hModule) {}

    /// A pointer to a function.
    template <class Result, class... Args>
    void Bind(Result (*&pfn)(Args...), const char* pszMangled) {
        pfn = reinterpret_cast<Result (*)(Args...)>(Address(pszMangled));
    }

    /// A pointer to a member that is not virtual: its address, and nothing to add to the object's.
    template <class Member>
    requires std::is_member_function_pointer_v<Member>
    void Bind(Member& pfn, const char* pszMangled) {
        const struct {
            void* pAddress;
            std::ptrdiff_t nAdjustment;
        } image{Address(pszMangled), 0};
        static_assert(sizeof(image) == sizeof(pfn));
        std::memcpy(&pfn, &image, sizeof(pfn));
    }

    bool FoundAll() const { return m_bFoundAll; }

  private:
    void* Address(const char* pszMangled) {
        FARPROC pfnFound = ::GetProcAddress(m_hModule, pszMangled);
        m_bFoundAll = m_bFoundAll && pfnFound;
        return reinterpret_cast<void*>(pfnFound);
    }

    HMODULE m_hModule;
    bool m_bFoundAll = true;
};

void BindLook(CSymbolBinder& binder, EditorCalls& calls) {
    binder.Bind(calls.m_fnSetText, "_ZN14CInplaceEditor11m_fnSetTextER7CString");
    binder.Bind(calls.m_fnGetText, "_ZNK14CInplaceEditor11m_fnGetTextER7CString");
    binder.Bind(calls.m_fnGetText2, "_ZNK14CInplaceEditor12m_fnGetText2ER7CString");
    binder.Bind(calls.m_fnSetFont, "_ZN14CInplaceEditor11m_fnSetFontER7CString");
    binder.Bind(calls.m_fnSetFontSizeInPoint, "_ZN14CInplaceEditor22m_fnSetFontSizeInPointEi");
    binder.Bind(calls.m_fnSetFontSizeInPixel, "_ZN14CInplaceEditor22m_fnSetFontSizeInPixelEi");
    binder.Bind(calls.m_fnSetFontStyle, "_ZN14CInplaceEditor16m_fnSetFontStyleEi");
    binder.Bind(calls.m_fnSetFontColor, "_ZN14CInplaceEditor16m_fnSetFontColorEj");
    binder.Bind(calls.m_fnSetTextAlignType, "_ZN14CInplaceEditor20m_fnSetTextAlignTypeEi");
    binder.Bind(calls.m_fnGetFontName, "_ZNK14CInplaceEditor15m_fnGetFontNameER7CString");
    binder.Bind(calls.m_fnGetFontSizeInPoint, "_ZN14CInplaceEditor22m_fnGetFontSizeInPointEv");
    binder.Bind(calls.m_fnGetTextBoundRect, "_ZN14CInplaceEditor20m_fnGetTextBoundRectER5CRect");
    binder.Bind(calls.m_fnCenterWindow, "_ZN14CInplaceEditor16m_fnCenterWindowER6CPoint");
}

void BindEditing(CSymbolBinder& binder, EditorCalls& calls) {
    binder.Bind(calls.m_fnSetSelectRange, "_ZN14CInplaceEditor18m_fnSetSelectRangeEiiii");
    binder.Bind(calls.m_fnReplaceSelectRange, "_ZN14CInplaceEditor22m_fnReplaceSelectRangeER7CStringi");
    binder.Bind(calls.m_fnMoveCursorTo, "_ZN14CInplaceEditor16m_fnMoveCursorToER6CPoint");
    binder.Bind(calls.m_fnEndInput, "_ZN14CInplaceEditor12m_fnEndInputEv");
    binder.Bind(calls.m_fnGetSelectedText, "_ZNK14CInplaceEditor19m_fnGetSelectedTextER7CString");
    binder.Bind(calls.m_fnGetRichText, "_ZN14CInplaceEditor15m_fnGetRichTextEd");
    binder.Bind(calls.m_fnGetBuffer, "_ZN14CInplaceEditor13m_fnGetBufferEPiS0_");
}

void BindUnits(CSymbolBinder& binder, EditorCalls& calls) {
    binder.Bind(calls.m_fnGetDispdpi, "_ZN14CInplaceEditor14m_fnGetDispdpiEv");
    binder.Bind(calls.m_fnConvertFontPointToPixel, "_ZN14CInplaceEditor27m_fnConvertFontPointToPixelEi");
    binder.Bind(calls.m_fnConvertFontPixelToNearestPoint,
                "_ZN14CInplaceEditor34m_fnConvertFontPixelToNearestPointEi");
    binder.Bind(calls.m_fnPix2Twip, "_ZN14CInplaceEditor12m_fnPix2TwipEi");
    binder.Bind(calls.m_fnTwip2Pix, "_ZN14CInplaceEditor12m_fnTwip2PixEi");
}

} // namespace

bool BindEditor(HMODULE hModule, EditorCalls& calls) {
    CSymbolBinder binder(hModule);
    binder.Bind(calls.pfnConstruct, "_ZN14CInplaceEditorC1Ev");
    binder.Bind(calls.m_fnCreate, "_ZN14CInplaceEditor10m_fnCreateEP4CWndR6CPointR7CStringi");
    BindLook(binder, calls);
    BindEditing(binder, calls);
    BindUnits(binder, calls);
    return binder.FoundAll();
}

CInplaceEditor* MakeEditor(const EditorCalls& calls) {
    void* pPlace = CInplaceEditor::operator new(sizeof(CInplaceEditor));
    if (pPlace) {
        calls.pfnConstruct(pPlace);
    }
    return static_cast<CInplaceEditor*>(pPlace);
}
