#include "text/object/text_creation.h"

#include <memory>

#include "host/text_engine.h"
#include "ops/canvas.h"
#include "text/editor/inplace_editor.h"
#include "text/object/text_attributes.h"

namespace {

/// The text object as this module makes it.
class CToolTextNode final : public CTextNode {
  public:
    explicit CToolTextNode(CImgDoc* pDoc) : CTextNode(pDoc) {}
    ~CToolTextNode() override = default;
};

/// An editor in a hidden window of its own; both go with it, the editor first.
class COffscreenEditor {
  public:
    explicit COffscreenEditor(const TextAttributes& attributes) : m_pEditor(new CInplaceEditor) {
        if (!m_pEditor) {
            return;
        }
        CString strFontName = attributes.strFontName;
        m_pEditor->m_fnSetFont(strFontName);
        m_pEditor->m_fnSetFontColor(attributes.crText);
        m_pEditor->m_fnSetFontSizeInPixel(attributes.nPixelSize);
        m_pEditor->m_fnSetTextAlignType(KnownAlignment(attributes.nAlignment));
        m_pEditor->m_fnSetFontStyle(attributes.nStyle);
    }

    /// False when a window cannot be made or no text is left to show.
    bool LayOut(CString& strText) {
        CPoint ptAnchor(0, 0);
        if (!m_pEditor || !CreateParent() || !m_pEditor->m_fnCreate(&m_parent, ptAnchor, strText, 0)) {
            return false;
        }
        m_pEditor->m_fnGetText2(m_strLaidOut);
        return !m_strLaidOut.IsEmpty();
    }

    textCreate::textCreateParam Param() {
        textCreate::textCreateParam param;
        m_pEditor->m_fnGetFontName(param.strFontName);
        param.strText = m_strLaidOut;
        param.nPixelSize = m_pEditor->m_fnGetFontSizeInPixel();
        param.nBold = m_pEditor->m_fnIsBold();
        param.nItalic = m_pEditor->m_fnIsItalic();
        param.nUnderline = m_pEditor->m_fnIsUnderLine();
        param.nAlignCode = AlignmentCodeOf(m_pEditor->m_fnGetAlignType());
        param.crText = m_pEditor->m_fnGetTextColor();
        param.richText = m_pEditor->m_fnGetRichText(1.0);
        return param;
    }

  private:
    BOOL CreateParent() {
        return m_parent.CreateEx(0, AfxRegisterWndClass(0, nullptr, nullptr, nullptr), "", 0,
                                 CRect(0, 0, 1, 1), nullptr, 0);
    }

    CWnd m_parent;
    std::unique_ptr<CInplaceEditor> m_pEditor;
    CString m_strLaidOut;
};

} // namespace

CTextNode* text_objects::CreateTextNode(CTool& tool, const CString& strText, const CString& strFontName,
                                        COLORREF crColor, int nPixelSize, int nAlignment, int nStyle) {
    COffscreenEditor editor({strFontName, nPixelSize, nAlignment, nStyle, crColor});
    CString strLayout = strText;
    textObject object;
    if (!editor.LayOut(strLayout) || !textCreate::Apply(editor.Param(), object)) {
        return nullptr;
    }
    const CCanvas canvas(tool);
    CTextNode* const pNode = new CToolTextNode(canvas.HasDocument() ? &canvas.Document() : nullptr);
    if (!pNode) {
        return nullptr;
    }
    pNode->m_fnAssign(object);
    MoveCornerTo(*pNode, CPoint(0, 0));
    return pNode;
}
