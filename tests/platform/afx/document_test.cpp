#include "platform/faults.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

class CNotes : public CDocument {
  public:
    int m_nDeleted = 0;

    void DeleteContents() override { ++m_nDeleted; }
    std::vector<CView*> Views() const {
        std::vector<CView*> views;
        for (POSITION pos = GetFirstViewPosition(); pos != nullptr;) {
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

TEST(Document, ViewLeavesWhenItGoes) {
    CNotes notes;
    {
        CNotesView view;
        notes.AddView(&view);
    }
    EXPECT_EQ(notes.GetFirstViewPosition(), nullptr);
}

TEST(Document, ViewsOutliveTheDocument) {
    CNotesView view;
    {
        CNotes notes;
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

TEST(Document, NewDocumentIsEmptyAndUnmodified) {
    CNotes notes;
    EXPECT_FALSE(notes.IsModified());
    notes.SetModifiedFlag();
    EXPECT_TRUE(notes.IsModified());

    EXPECT_TRUE(notes.OnNewDocument());

    EXPECT_EQ(notes.m_nDeleted, 1);
    EXPECT_FALSE(notes.IsModified());
}

TEST(View, JoinsTheDocumentAtCreationAndIsDeletedWithItsWindow) {
    CNotes notes;
    auto* const pView = new CNotesView;
    ASSERT_TRUE(pView->Show(&notes));
    EXPECT_EQ(notes.Views(), (std::vector<CView*>{pView}));

    pView->DestroyWindow();

    EXPECT_TRUE(notes.Views().empty());
}

TEST(View, PaintingDrawsOnAWhiteGround) {
    CNotes notes;
    auto* const pView = new CNotesView;
    ASSERT_TRUE(pView->Show(&notes));

    pView->Invalidate();
    pView->UpdateWindow();

    EXPECT_EQ(pView->m_nDrawn, 1);
    CClientDC dc(pView);
    EXPECT_EQ(dc.GetPixel(2, 3), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(5, 7), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(6, 7), RGB(255, 255, 255));
    EXPECT_EQ(dc.GetPixel(5, 8), RGB(255, 255, 255));
    pView->DestroyWindow();
}

TEST(View, PaintingWithoutAContextDoesNotComeBackForEver) {
    auto* const pView = new CNotesView;
    ASSERT_TRUE(pView->Show(nullptr));
    pView->Invalidate();

    platform::ArmFault("display-context", false, 0);
    pView->UpdateWindow();
    platform::ClearFaults();

    CRect rect;
    EXPECT_EQ(pView->m_nDrawn, 0);
    EXPECT_FALSE(pView->GetUpdateRect(rect));
    pView->DestroyWindow();
}
