// The tool that writes text on the page: it sets attributes, and opens new and existing texts in an editor on
// the canvas.
#pragma once

#include <memory>

#include "ops/refresh.h"
#include "text/editor/inplace_editor.h"
#include "text/tools/text_tool_base.h"
#include "text/tools/unsaved_texts.h"

/// Kind 23.
class CTextTool : public CTextToolBase, public IInplaceEditorNotify, public ITextEditEntry {
  public:
    ~CTextTool() override;

    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    void OnNodeResized(CImgNode* pNode) override;
    const GUID& GetToolClassId() override { return tool_class::Text; }

    /// 53. Opens the text object in the editor with the caret at the point (client pixels). 1, or 0 for
    /// another object, for a companion, while an editor is open and when none can be made; then the page
    /// stays as it is.
    virtual int EditTextNode(CImgNode* pNode, int nX, int nY);

    int OnToolActivate(CListenerObject* pOther, int nActivate, int nRedraw) override;
    int OnLButtonDblClk(UINT nFlags, CPoint point) override;
    int OnLButtonDown(UINT nFlags, CPoint point) override;
    int OnRButtonDown(UINT nFlags, CPoint point) override;

    int SetFontName(const CString& strName) override;
    int SetFontSize(int nPoints) override;
    int SetAlignment(int nIndex) override;
    int SetStyle(int nBits) override;
    int SetColor(COLORREF crText) override;

    void OnInputEnded(CInplaceEditor* pEditor) override;
    int EditTextNode(CImgNode* pNode, const CPoint* pPoint) override;

    bool IsEditing() const { return m_pEditor != nullptr; }

  protected:
    /// Ends an open editor's input, which commits it.
    void EndEditing();

  private:
    // Attributes. The mask bits say which ones come from the tool.
    enum Attribute : int { FontName = 1, Size = 2, Alignment = 4, Style = 8, Color = 16 };
    void AttributeChanged(Attribute attribute);
    bool IsAppliedTo(const CCanvas& canvas, Attribute attribute);
    bool SelectionDiffers(Attribute attribute);
    bool Differs(const CTextNode& node, Attribute attribute) const;
    void ApplyToEditor(Attribute attribute);
    int ApplyAttributesToSelection(int nMask);
    bool RebuildWith(CTextNode& node, int nMask);
    void Choose(int nMask, TextAttributes& attributes) const;
    void PushAttributes();
    void ShowAttributes();

    // Clicks.
    void SelectByEndingClick(const CCanvas& canvas, CPoint point);
    int StartNewText(ITextAttributePanel& panel, CPoint point);
    bool IsOnFrame(const CImgNode& node, CPoint point);

    // The editing session.
    int StartEditor(CPoint point, const CTextNode* pText, int nVisible);
    void OfferUnsaved(const CCanvas& canvas, const CTextNode* pText);
    void ShowEditor();
    POSITION PlaceBehindAnchor(CImgNodeList& objects);
    void TakeOffPage(const CCanvas& canvas, CTextNode& node);
    void PutBackOnPage(const CCanvas& canvas, CTextNode& node);
    int AbandonEdit(const CCanvas& canvas, CTextNode& node, const CRefresh& refresh);
    void PlaceEditor(const CCanvas& canvas, CTextNode& node, CPoint ptDoc);
    void Reselect(const CCanvas& canvas, CTextNode& node);

    // The commit.
    void CommitText(const CCanvas& canvas, const CString& strText);
    TextAttributes EditorAttributes();
    std::unique_ptr<CTextNode> BuildCommitted(const CString& strText);
    void KeepUnsaved(const CCanvas& canvas, const CString& strText);
    void TakePanelTransparency(CTextNode& node);
    void CommitNew(const CCanvas& canvas, CTextNode& node, const CRect& rcDoc);
    void CommitEdited(const CCanvas& canvas, CTextNode& built, int nAlignment);
    void GiveDefaultShadow(CTextNode& node);
    void ShowCommitted(const CCanvas& canvas, CTextNode& node, CRefresh& refresh);
    void CloseEditor();

    std::unique_ptr<CInplaceEditor> m_pEditor;
    CImgNode* m_pZAnchor = nullptr; ///< the edited object goes back behind it; may be gone by then
    CTextNode* m_pEdited = nullptr; ///< off the page while it is edited; the document owns it
    CPoint m_ptDblClick;            ///< client pixels
    int m_nEndedOnPress = 0;        ///< 1 when a single press ended an editing
    int m_nSelectedAt = -1;  ///< place of the edited object in the selection as it was found; -1 for none
    CUnsavedTexts m_unsaved; ///< texts that could not be rendered; they are offered again
};
