// The tool that holds the current text attributes.
#pragma once

#include "text/object/text_attributes.h"
#include "tools/basic_object_tool.h"

struct ITextAttributePanel;

/// Kind 22. It is a tool in its own right as well as a base.
class CTextToolBase : public CBasicObjectTool, public ITextAttributeTarget {
  public:
    CTextToolBase();

    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    /// Takes the attributes over from the only selected object when it is this text.
    void OnObjectHook(CImgNode* pNode) override;
    /// Reads the text page's attributes into the tool. 0 when the page lacks them.
    int ResetHost() override;
    const GUID& GetToolClassId() override { return tool_class::TextBase; }

    int SetFontName(const CString& strName) override;
    int SetFontSize(int nPoints) override;
    int SetAlignment(int nIndex) override;
    int SetStyle(int nBits) override;
    int SetColor(COLORREF crText) override;

  protected:
    int StyleBits() const;
    /// The attributes with the size in pixels at full view scale.
    TextAttributes Attributes() const;
    ITextAttributePanel* TextPanel();
    void TakeAttributes(const CTextNode& node, const CString& strFontName, int nPoints);

    CString m_strFontName;
    int m_nPoints = 12;
    int m_nAlignment = text_align::Left;
    int m_nBold = 0;
    int m_nItalic = 0;
    int m_nUnderline = 0;
    COLORREF m_crText = RGB(255, 255, 255);
};
