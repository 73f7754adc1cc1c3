// The host's property pages.
#pragma once

#include "bus/bus_object.h"
#include "desk/page_parts.h"
#include "desk/page_recorder.h"
#include "host/panels.h"

/// A page of one kind: 7 pictures, 12 text, 6 both. The one that is showing also answers kind 1; the picture
/// page can stand in for the text page as well.
class CPropertyPage : public CBusObject,
                      public IPropertyArea,
                      public IHostReset,
                      public IToolGroupSource,
                      public IFramePanel,
                      public IShadowPanel,
                      public IDisplayPanel {
  public:
    CPropertyPage(int nKind, const PageSurroundings& around);

    int Kind() const { return m_nKind; }
    void SetShowing(bool bShowing);
    /// Whether a page of another kind answers kind 12 and the text page's interfaces besides its own.
    void SetTextToo(bool bTextToo);

    /// The page was handed over as a tool's property object, without a search.
    void HandedOver() { m_recorder.FoundBy(m_nKind); }

    /// Answering a search for a kind, the page speaks under that kind from then on.
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;

    int OnObjectsChanged(int nChanged) override;
    int GetPage() override;
    /// Recorded; which page is shown is the person's decision alone.
    int ShowPage(int nPage) override;

    int Reset(int nReserved) override;

    const GUID* GetToolGroup() override;

    int SetRemovable(int nState) override;

    int SetOffset(int nX, int nY) override;
    int ShowShadow(int nX, int nY, COLORREF* pColor, int nSoftness, int nTransparency, int nColorMixed,
                   int nReserved) override;
    int ShowNone() override;
    int SetHasShadow(int nHasShadow, int nReserved) override;
    int GetRangeX(int* pnMin, int* pnMax) override;
    int GetRangeY(int* pnMin, int* pnMax) override;

    int Reserved1() override { return 0; }
    int Reserved2() override { return 0; }
    int ShowDisplay(int nBrightness, int nContrast, int nTransparency, int nReserved) override;

  private:
    int GiveRange(int nOp, const std::optional<PanelRange>& range, int* pnMin, int* pnMax);

    int m_nKind;
    bool m_bText;
    CPageRecorder m_recorder;
    CObjectPagePart m_objectPart;
    CTextPagePart m_textPart;
};
