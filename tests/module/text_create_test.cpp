// Making text objects: what they hold, how large they are, and what leaves nothing behind.
#include <array>
#include <memory>

#include "platform/faults.h"
#include "text_help.h"

namespace {

TEST(CreateText, PictureIsTheEditorsRectangleOfTheLines) {
    struct SizeRow {
        const char* pszText;
        Lines lines;
        int nPixelSize;
        int nStyle;
    };
    const std::vector<SizeRow> rows = {
        {"Hello", {"Hello"}, 16, 0},
        {"Hello", {"Hello"}, 40, 1},
        {"a\nlonger line\nb", {"a", "longer line", "b"}, 16, 2},
        {"first\n\nthird", {"first", "", "third"}, 20, 0},
        {"ends empty\n\n", {"ends empty"}, 16, 0},
    };
    CTextStage stage;
    for (const SizeRow& row : rows) {
        CTextNode* pText = stage.Ops().CreateTextNode(row.pszText, "Arial", 0, row.nPixelSize, 1, row.nStyle);
        ASSERT_NE(pText, nullptr) << row.pszText;
        const CSize expected = PictureSize(row.lines, row.nPixelSize, row.nStyle);
        EXPECT_EQ(CRect(pText->m_tx.nX, pText->m_tx.nY, pText->m_tx.nWidth, pText->m_tx.nHeight),
                  CRect(0, 0, expected.cx, expected.cy))
            << row.pszText;
        delete pText;
    }
}

TEST(CreateText, AlignmentIndexBecomesItsCode) {
    constexpr std::array<std::array<int, 2>, 6> Rows = {
        {{0, 1000}, {1, 1002}, {2, 1001}, {3, 1000}, {-1, 1000}, {1002, 1000}}};
    CTextStage stage;
    for (const auto& [nIndex, nCode] : Rows) {
        const std::unique_ptr<CTextNode> pText(stage.Ops().CreateTextNode("x", "Arial", 0, 16, nIndex, 0));
        ASSERT_TRUE(pText) << nIndex;
        EXPECT_EQ(pText->m_nAlignment, nCode) << nIndex;
    }
}

TEST(CreateText, HoldsWhatItWasMadeFromAndStaysOffThePage) {
    CTextStage stage;
    stage.Square("A", 10, 10);
    stage.Forget();

    CTextNode* pText = stage.Ops().CreateTextNode("one\ntwo", "Courier New", RGB(1, 2, 3), 24, 2, 6);

    ASSERT_NE(pText, nullptr);
    CString strText;
    pText->m_fnGetText(strText);
    EXPECT_STREQ(strText, "one\ntwo");
    EXPECT_STREQ(pText->m_strFontName, "Courier New");
    EXPECT_EQ(pText->m_crText, RGB(1, 2, 3));
    EXPECT_EQ(pText->m_nFontSize, 24);
    EXPECT_EQ((std::array{pText->m_nBold, pText->m_nItalic, pText->m_nUnderline}), (std::array{0, 1, 1}));
    EXPECT_EQ(stage.PageNames(), Lines{"A"});
    EXPECT_EQ(stage.ToldOnBus(), Lines{});
    delete pText;
}

// The windows are the parent, the editor and the rich-edit control inside it.
TEST(CreateText, NothingIsMadeAndNothingIsLeftOfAFailure) {
    struct FailureRow {
        const char* pszFault;
        unsigned nAfter;
        const char* pszText;
    };
    constexpr std::array<FailureRow, 9> Rows = {{{"window", 0, "x"},
                                                 {"window", 1, "x"},
                                                 {"rich-edit", 0, "x"},
                                                 {"text-engine", 0, "x"},
                                                 {"node", 0, "x"},
                                                 {"buffer", 0, "x"},
                                                 {"", 0, ""},
                                                 {"", 0, "  "},
                                                 {"", 0, "\n \n"}}};
    CTextStage stage;
    stage.AddText("T", "warm", 10, 10);
    const Living before = CTextStage::CountLiving();
    for (const FailureRow& row : Rows) {
        platform::ArmFault(row.pszFault, true, row.nAfter);
        EXPECT_EQ(stage.Ops().CreateTextNode(row.pszText, "Arial", 0, 16, 0, 0), nullptr)
            << row.pszFault << row.nAfter << '"' << row.pszText << '"';
        platform::ClearFaults();
        EXPECT_EQ(CTextStage::CountLiving(), before) << row.pszFault << row.nAfter;
    }
}

} // namespace
