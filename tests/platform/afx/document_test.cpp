#include "platform/faults.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

class CNotes : public CDocument {
  public:
    std::vector<CView*> Views() const {
        std::vector<CView*> views;
        for (POSITION pos = GetFirstViewPosition(); pos;) {
            views.push_back(GetNextView(pos));
        }
        return views;
    }
};

class CNotesView : public CView {
  public:
    ~CNotesView() override {}

    int m_nUpdates = 0;
    int m_nDrawn = 0;
    CView* m_pSender = nullptr;
    LPARAM m_lHint = 0;

    bool Show(CDocument* pDocument) {
        CCreateContext context;
        context.m_pCurrentDoc = pDocument;
        return CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, CRect(0, 0, 20, 10), nullptr, 0, &context);
    }

  protected:
    void OnDraw(CDC* pDC) override {
        ++m_nDrawn;
        pDC->FillSolidRect(2, 3, 4, 5, RGB(255, 0, 0));
    }
    void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint) override {
        ++m_nUpdates;
        m_pSender = pSender;
        m_lHint = lHint;
        CView::OnUpdate(pSender, lHint, pHint);
    }
};

} // namespace

TEST(Document, KnowsItsViewsInTheirOrder) {
    CNotes notes;
    CNotesView first;
    CNotesView second;

    notes.AddView(&first);
    notes.AddView(&second);
    EXPECT_EQ(notes.Views(), (std::vector<CView*>{&first, &second}));
    EXPECT_EQ(second.GetDocument(), &notes);

    notes.RemoveView(&first);
    EXPECT_EQ(notes.Views(), (std::vector<CView*>{&second}));
    EXPECT_EQ(first.GetDocument(), nullptr);
}

TEST(Document, ItAndItsViewsMayGoInAnyOrder) {
    CNotesView view;
    {
        CNotes notes;
        {
            CNotesView brief;
            notes.AddView(&brief);
        }
        EXPECT_TRUE(notes.Views().empty());
        notes.AddView(&view);
    }
    EXPECT_EQ(view.GetDocument(), nullptr);
}

TEST(Document, UpdateReachesAllViewsButTheSender) {
    CNotes notes;
    CNotesView first;
    CNotesView second;
    notes.AddView(&first);
    notes.AddView(&second);

    notes.UpdateAllViews(&first, 5);
    EXPECT_EQ(first.m_nUpdates, 0);
    EXPECT_EQ(second.m_nUpdates, 1);
    EXPECT_EQ(second.m_pSender, &first);
    EXPECT_EQ(second.m_lHint, 5);

    notes.UpdateAllViews(nullptr);
    EXPECT_EQ(first.m_nUpdates, 1);
    EXPECT_EQ(second.m_nUpdates, 2);
}

TEST(View, LivesWithItsWindowAndPaintsOnAWhiteGroundOrNotAtAll) {
    CNotes notes;
    auto* const pView = new CNotesView;
    ASSERT_TRUE(pView->Show(&notes));
    EXPECT_EQ(notes.Views(), (std::vector<CView*>{pView}));

    pView->Invalidate();
    pView->UpdateWindow();
    EXPECT_EQ(CClientDC(pView).GetPixel(5, 7), RGB(255, 0, 0));
    EXPECT_EQ(CClientDC(pView).GetPixel(6, 7), RGB(255, 255, 255));

    platform::ArmFault("display-context", false, 0);
    pView->Invalidate();
    pView->UpdateWindow();
    platform::ClearFaults();
    EXPECT_EQ(pView->m_nDrawn, 1);
    EXPECT_FALSE(::GetUpdateRect(pView->m_hWnd, nullptr, FALSE));
    pView->DestroyWindow();
    EXPECT_TRUE(notes.Views().empty());
}
