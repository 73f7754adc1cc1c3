#include "platform/faults.h"

#include <afxcmn.h>

#include <gtest/gtest.h>

namespace {

class RichEditCtrl : public testing::Test {
  public:
    RichEditCtrl() {
        m_parent.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
        m_edit.Create(ES_MULTILINE, CRect(0, 0, 1, 1), &m_parent, 2000);
    }

    CString Text() const {
        CString strText;
        m_edit.GetWindowText(strText);
        return strText;
    }

    CWnd m_parent;
    CRichEditCtrl m_edit;
};

CHARFORMAT Heights(LONG twips) {
    CHARFORMAT cf = {};
    cf.dwMask = CFM_SIZE;
    cf.yHeight = twips;
    return cf;
}

} // namespace

TEST_F(RichEditCtrl, IsAHiddenChildOfItsId) {
    EXPECT_EQ(m_edit.GetDlgCtrlID(), 2000);
    EXPECT_EQ(m_edit.GetParent(), &m_parent);
    EXPECT_EQ(m_edit.GetStyle(), WS_CHILD | ES_MULTILINE);
    EXPECT_FALSE(m_edit.IsWindowVisible());
}

TEST_F(RichEditCtrl, IsNotMadeUnderTheFault) {
    CRichEditCtrl other;
    platform::ArmFault("rich-edit", true, 0);

    EXPECT_FALSE(other.Create(0, CRect(0, 0, 1, 1), &m_parent, 1));

    platform::ClearFaults();
    EXPECT_EQ(other.GetSafeHwnd(), nullptr);
}

TEST_F(RichEditCtrl, EmptyLastLinesCanBePeeledOff) {
    const struct {
        const char *given, *left;
    } rows[] = {{"a\r\n\r\nb\r\n\r\n\r\n", "a\r\n\r\nb"}, {"\r\n\r\n", ""}, {"ab", "ab"}};
    for (const auto& row : rows) {
        m_edit.SetWindowText(row.given);
        for (int nLine = m_edit.GetLineCount() - 1; nLine >= 0; --nLine) {
            char line[8] = "";
            if (m_edit.GetLine(nLine, line, sizeof line) != 1 || line[0] != '\r') {
                break;
            }
            m_edit.SetSel(m_edit.LineIndex(nLine) - 1, -1);
            m_edit.ReplaceSel("");
        }
        EXPECT_EQ(Text(), row.left);
    }
}

TEST_F(RichEditCtrl, LinesAndSelectionsReadByCount) {
    m_edit.SetWindowText("abc\r\nde");

    char line[] = "\3\0zzzz";
    EXPECT_EQ(m_edit.GetLine(0, line), 3);
    EXPECT_STREQ(line, "abczzz");
    EXPECT_EQ(m_edit.LineIndex(1), 5);
    EXPECT_EQ(m_edit.LineLength(6), 2);
    EXPECT_EQ(m_edit.GetTextLength(), 7);
    m_edit.SetSel(2, 6);
    EXPECT_EQ(m_edit.GetSelText(), "c\r\nd");
    m_edit.Clear();
    EXPECT_EQ(Text(), "abe");
    long nStart = 0;
    long nEnd = 0;
    m_edit.GetSel(nStart, nEnd);
    EXPECT_EQ(nStart, 2);
    EXPECT_EQ(nEnd, 2);
}

TEST_F(RichEditCtrl, FormatsGoToTheirPlaces) {
    CHARFORMAT cf = Heights(240);
    EXPECT_TRUE(m_edit.SetDefaultCharFormat(cf));
    m_edit.SetWindowText("abcd");
    cf = Heights(360);
    m_edit.SetSel(2, 4);
    EXPECT_TRUE(m_edit.SetSelectionCharFormat(cf));

    EXPECT_NE(m_edit.GetSelectionCharFormat(cf) & CFM_SIZE, 0U);
    EXPECT_EQ(cf.yHeight, 360);
    m_edit.SetSel(1, 3);
    EXPECT_EQ(m_edit.GetSelectionCharFormat(cf) & CFM_SIZE, 0U);
    EXPECT_EQ(cf.yHeight, 240);
    m_edit.GetDefaultCharFormat(cf);
    EXPECT_EQ(cf.yHeight, 240);
}
