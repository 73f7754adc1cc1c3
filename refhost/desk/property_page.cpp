#include "desk/property_page.h"

namespace {

constexpr GUID PictureToolGroup = {
    0xAC96B0F1, 0x4087, 0x4BBC, {0x81, 0x17, 0xB5, 0x19, 0x59, 0xDE, 0x48, 0x31}};
constexpr GUID TextToolGroup = {0x53693A02, 0x4E5D, 0x45FD, {0x80, 0x1B, 0x2F, 0xCE, 0x84, 0xF1, 0xDD, 0xE0}};

bool IsTextInterface(const GUID& iid) {
    return iid == ITextAttributePanel::Id || iid == ITransparencyPanel::Id || iid == IShadowDefaults::Id;
}

} // namespace

CPropertyPage::CPropertyPage(int nKind, const PageSurroundings& around)
    : m_nKind(nKind), m_bText(nKind == kind::TextPage), m_recorder(nKind, around), m_objectPart(m_recorder),
      m_textPart(m_recorder) {
    AddKind(CategoryId, nKind);
    AddKind(CategoryId, kind::Any);
    AddInterface<IPropertyArea>(this);
    AddInterface<IHostReset>(this);
    AddInterface<IToolGroupSource>(this);
    AddInterface<IFramePanel>(this);
    AddInterface<IShadowPanel>(this);
    AddInterface<IDisplayPanel>(this);
    if (nKind == kind::ObjectPage) {
        AddInterface<IObjectPage>(&m_objectPart);
    }
    AddInterface<ITextAttributePanel>(&m_textPart);
    AddInterface<ITransparencyPanel>(&m_textPart);
    AddInterface<IShadowDefaults>(&m_textPart);
}

void CPropertyPage::SetShowing(bool bShowing) {
    if (bShowing) {
        AddKind(CategoryId, kind::PropertyArea);
    } else {
        RemoveKind(CategoryId, kind::PropertyArea);
    }
}

void CPropertyPage::SetTextToo(bool bTextToo) {
    if (m_nKind == kind::TextPage) {
        return;
    }
    m_bText = bTextToo;
    if (bTextToo) {
        AddKind(CategoryId, kind::TextPage);
    } else {
        RemoveKind(CategoryId, kind::TextPage);
    }
}

int CPropertyPage::IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) {
    const int nAnswer = CBusObject::IsKindOf(category, nKind, pResult, pExtra);
    if (nAnswer == 1 && nKind != kind::Any) {
        m_recorder.FoundBy(nKind);
    }
    return nAnswer;
}

int CPropertyPage::QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) {
    if (m_bText || !IsTextInterface(iid)) {
        return CBusObject::QueryInterface(iid, ppInterface, pExtra);
    }
    *ppInterface = nullptr;
    if (pExtra) {
        *pExtra = 0;
    }
    return 0;
}

int CPropertyPage::OnObjectsChanged(int nChanged) {
    m_recorder.Told(IPropertyArea::Id, 1, {nChanged});
    return 1;
}

int CPropertyPage::GetPage() {
    m_recorder.Told(IPropertyArea::Id, 2, {});
    return m_recorder.Values().nPageShown;
}

int CPropertyPage::ShowPage(int nPage) {
    m_recorder.Told(IPropertyArea::Id, 3, {nPage});
    return 1;
}

int CPropertyPage::Reset(int nReserved) {
    m_recorder.Told(IHostReset::Id, 1, {nReserved});
    return 1;
}

const GUID* CPropertyPage::GetToolGroup() {
    m_recorder.Told(IToolGroupSource::Id, 1, {});
    return m_nKind == kind::ObjectPage ? &PictureToolGroup : &TextToolGroup;
}

int CPropertyPage::SetRemovable(int nState) {
    m_recorder.Told(IFramePanel::Id, 1, {nState});
    return 1;
}

int CPropertyPage::SetOffset(int nX, int nY) {
    m_recorder.Told(IShadowPanel::Id, 1, {nX, nY});
    return 1;
}

int CPropertyPage::ShowShadow(int nX, int nY, COLORREF* pColor, int nSoftness, int nTransparency,
                              int nColorMixed, int nReserved) {
    const trace::Value color =
        pColor ? trace::Value(trace::Color{*pColor}) : trace::Value(trace::Pointer{false});
    m_recorder.Told(IShadowPanel::Id, 2, {nX, nY, color, nSoftness, nTransparency, nColorMixed, nReserved});
    return 1;
}

int CPropertyPage::ShowNone() {
    m_recorder.Told(IShadowPanel::Id, 3, {});
    return 1;
}

int CPropertyPage::SetHasShadow(int nHasShadow, int nReserved) {
    m_recorder.Told(IShadowPanel::Id, 4, {nHasShadow, nReserved});
    return 1;
}

int CPropertyPage::GetRangeX(int* pnMin, int* pnMax) {
    return GiveRange(5, m_recorder.Values().rangeX, pnMin, pnMax);
}

int CPropertyPage::GetRangeY(int* pnMin, int* pnMax) {
    return GiveRange(6, m_recorder.Values().rangeY, pnMin, pnMax);
}

int CPropertyPage::GiveRange(int nOp, const std::optional<PanelRange>& range, int* pnMin, int* pnMax) {
    const PanelRange given = range.value_or(PanelRange{-CPanelValues::NoLimit, CPanelValues::NoLimit});
    m_recorder.Told(IShadowPanel::Id, nOp, {given.nMin, given.nMax});
    if (!pnMin || !pnMax) {
        return 0;
    }
    *pnMin = given.nMin;
    *pnMax = given.nMax;
    return 1;
}

int CPropertyPage::ShowDisplay(int nBrightness, int nContrast, int nTransparency, int nReserved) {
    m_recorder.Told(IDisplayPanel::Id, 3, {nBrightness, nContrast, nTransparency, nReserved});
    return 1;
}
