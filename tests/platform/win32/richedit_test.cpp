#include "stage.h"

#include "platform/faults.h"

#include <richedit.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace {

class RichEdit : public WindowStage {
  public:
    ~RichEdit() override { platform::ClearFaults(); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(m_control, message, wParam, lParam);
    }
    LRESULT Send(UINT message, WPARAM wParam, const void* pointer) {
        return Send(message, wParam, reinterpret_cast<LPARAM>(pointer));
    }
    void Set(const std::string& text) { SetWindowTextA(m_control, text.c_str()); }
    std::string Text() {
        std::string text(static_cast<size_t>(GetWindowTextLengthA(m_control)), ' ');
        GetWindowTextA(m_control, text.data(), static_cast<int>(text.size()) + 1);
        return text;
    }
    void Select(LONG from, LONG to) {
        const CHARRANGE range = {from, to};
        Send(EM_EXSETSEL, 0, &range);
    }
    std::string Selection() {
        CHARRANGE range = {};
        Send(EM_EXGETSEL, 0, &range);
        return std::to_string(range.cpMin) + "-" + std::to_string(range.cpMax);
    }
    void Replace(const std::string& text) { Send(EM_REPLACESEL, 0, text.c_str()); }
    std::string Line(int line, WORD room = 100) {
        std::string buffer(100, '?');
        std::memcpy(buffer.data(), &room, sizeof room);
        return buffer.substr(0,
                             static_cast<size_t>(Send(EM_GETLINE, static_cast<WPARAM>(line), buffer.data())));
    }
    std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        for (int i = 0; i < Send(EM_GETLINECOUNT); ++i) {
            lines.push_back(Line(i));
        }
        return lines;
    }
    LRESULT Change(UINT where, DWORD mask, DWORD effects, LONG height) {
        CHARFORMATA format = {};
        format.cbSize = sizeof format;
        format.dwMask = mask;
        format.dwEffects = effects;
        format.yHeight = height;
        return Send(EM_SETCHARFORMAT, where, &format);
    }
    CHARFORMATA Format(UINT where) {
        CHARFORMATA format = {};
        format.cbSize = sizeof format;
        Send(EM_GETCHARFORMAT, where, &format);
        return format;
    }
    /// The heights of the single bytes; the selection is lost.
    std::vector<LONG> Heights() {
        std::vector<LONG> heights;
        for (LONG i = 0; i < Send(WM_GETTEXTLENGTH); ++i) {
            Select(i, i + 1);
            heights.push_back(Format(SCF_SELECTION).yHeight);
        }
        return heights;
    }

    HWND m_top = Top("top");
    HWND m_control =
        CreateWindowExA(0, "RichEdit", nullptr, WS_CHILD, 0, 0, 1, 1, m_top, nullptr, nullptr, nullptr);
};

} // namespace

TEST_F(RichEdit, EmptyLinesReadAsABareCr) {
    const struct {
        const char* given;
        const char* held;
        std::vector<std::string> lines;
    } rows[] = {
        {"", "", {"\r"}},
        {"a", "a", {"a"}},
        {"a\r\n", "a\r\n", {"a", "\r"}},
        {"a\r\n\r\nb", "a\r\n\r\nb", {"a", "\r", "b"}},
        {"a\rb\nc", "a\r\nb\r\nc", {"a", "b", "c"}},
        {"\n\r", "\r\n\r\n", {"\r", "\r", "\r"}},
    };
    for (const auto& row : rows) {
        Set(row.given);

        EXPECT_EQ(Text(), row.held);
        EXPECT_EQ(Lines(), row.lines);
    }
}

TEST_F(RichEdit, LinesAreFoundByNumberAndByPosition) {
    Set("ab\r\n\r\ncde");
    const LONG starts[] = {0, 4, 6, -1};
    for (WPARAM line = 0; line < 4; ++line) {
        EXPECT_EQ(Send(EM_LINEINDEX, line), starts[line]) << line;
    }
    const LONG lengths[] = {2, 2, 2, 2, 0, 0, 3, 3, 3, 3, 0};
    for (WPARAM position = 0; position < 11; ++position) {
        EXPECT_EQ(Send(EM_LINELENGTH, position), lengths[position]) << position;
    }

    Select(5, 7);
    EXPECT_EQ(Send(EM_LINEINDEX, static_cast<WPARAM>(-1)), 4);
}

TEST_F(RichEdit, LineIsCutToTheRoomInItsFirstWord) {
    Set("abcdef");

    EXPECT_EQ(Line(0, 4), "abcd");
    EXPECT_EQ(Line(0, 0), "");
    EXPECT_EQ(Line(1), "");
    EXPECT_EQ(Line(-1), "");
    std::string buffer("\4\0cdEF", 6);
    Send(EM_GETLINE, 0, buffer.data());
    EXPECT_EQ(buffer, "abcdEF");
}

TEST_F(RichEdit, SelectionIsBroughtIntoTheText) {
    Set("abcde");
    const struct {
        LONG from, to;
        const char* selection;
        const char* text;
    } rows[] = {{1, 3, "1-3", "bc"},  {0, -1, "0-5", "abcde"}, {2, -1, "2-5", "cde"}, {3, 1, "1-3", "bc"},
                {-4, 2, "0-2", "ab"}, {9, 12, "5-5", ""},      {2, 99, "2-5", "cde"}};
    for (const auto& row : rows) {
        Select(row.from, row.to);
        EXPECT_EQ(Selection(), row.selection);
        char text[8] = "???????";
        EXPECT_EQ(Send(EM_GETSELTEXT, 0, text), static_cast<LRESULT>(std::strlen(row.text)));
        EXPECT_STREQ(text, row.text);

        Select(4, 4);
        Send(EM_SETSEL, static_cast<WPARAM>(row.from), row.to);
        EXPECT_EQ(Selection(), row.selection);
    }
}

TEST_F(RichEdit, SelectionFitsWordsOrAnswersMinusOne) {
    Set(std::string(65536, 'x'));
    DWORD start = 7;
    DWORD end = 7;
    Select(3, 65535);

    EXPECT_EQ(Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), &end), MAKELRESULT(3, 65535));
    EXPECT_EQ(start, 3U);
    EXPECT_EQ(end, 65535U);
    Select(3, -1);
    EXPECT_EQ(Send(EM_GETSEL), -1);
}

TEST_F(RichEdit, ReplacingNeverLeavesHalfALineEnd) {
    const struct {
        const char* text;
        LONG from, to;
        const char* put;
        const char* result;
        const char* selection;
        int lines;
    } rows[] = {
        {"abcd", 1, 3, "X", "aXd", "2-2", 1},
        {"abcd", 4, 4, "\n", "abcd\r\n", "6-6", 2},
        {"ad", 1, 1, "b\r\nc\n", "ab\r\nc\r\nd", "7-7", 3},
        {"a\r\nb", 2, 3, "", "ab", "1-1", 1},
        {"a\r\nb", 1, 2, "", "ab", "1-1", 1},
        {"a\r\nb", 2, 2, "x", "ax\r\nb", "2-2", 2},
        {"a\r\n\r\n", 4, -1, "", "a\r\n", "3-3", 2},
        {"a\r\n\r\nb", 0, -1, "", "", "0-0", 1},
    };
    for (const auto& row : rows) {
        Set(row.text);
        Select(row.from, row.to);
        Replace(row.put);

        EXPECT_EQ(Text(), row.result);
        EXPECT_EQ(Selection(), row.selection) << row.result;
        EXPECT_EQ(Send(EM_GETLINECOUNT), row.lines) << row.result;
    }
}

TEST_F(RichEdit, ClearDeletesTheSelectionAlone) {
    Set("abcd");
    Select(2, 2);
    Send(WM_CLEAR);
    EXPECT_EQ(Text(), "abcd");

    Select(1, 3);
    Send(WM_CLEAR);
    EXPECT_EQ(Text(), "ad");
}

TEST_F(RichEdit, TextIsCutToTheReadersRoom) {
    Set("abcdef");
    char text[8] = "???????";

    EXPECT_EQ(GetWindowTextA(m_control, text, 4), 3);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(GetWindowTextA(m_control, text, 0), 0);
    EXPECT_STREQ(text, "abc");
}

TEST_F(RichEdit, DefaultFormatIsThatOfNewText) {
    Set("old");
    EXPECT_EQ(Change(SCF_DEFAULT, CFM_SIZE | CFM_ITALIC, CFE_ITALIC, 300), TRUE);
    EXPECT_NE(Heights(), (std::vector<LONG>{300, 300, 300}));

    Set("new");
    EXPECT_EQ(Heights(), (std::vector<LONG>{300, 300, 300}));
    EXPECT_EQ(Format(SCF_SELECTION).dwEffects & (CFE_ITALIC | CFE_BOLD), CFE_ITALIC);
    Set("");
    Replace("x");
    EXPECT_EQ(Heights(), std::vector<LONG>{300});
}

TEST_F(RichEdit, WhatDiffersIsMissingFromTheMask) {
    Set("abcdef");
    Select(2, 4);
    Change(SCF_SELECTION, CFM_BOLD, CFE_BOLD, 0);
    const DWORD whole = Format(SCF_SELECTION).dwMask;
    EXPECT_EQ(Format(SCF_SELECTION).dwEffects & CFE_BOLD, CFE_BOLD);

    Select(0, -1);
    EXPECT_EQ(Format(SCF_SELECTION).dwMask, whole & ~CFM_BOLD);
    EXPECT_EQ(Format(SCF_SELECTION).dwEffects & CFE_BOLD, 0U);
    Select(3, 5);
    EXPECT_EQ(Format(SCF_SELECTION).dwMask, whole & ~CFM_BOLD);
    EXPECT_EQ(Format(SCF_SELECTION).dwEffects & CFE_BOLD, CFE_BOLD);
    Select(4, 6);
    EXPECT_EQ(Format(SCF_SELECTION).dwMask, whole);

    Change(SCF_ALL, CFM_BOLD, CFE_BOLD, 0);
    Select(0, -1);
    EXPECT_EQ(Format(SCF_SELECTION).dwMask, whole);
}

TEST_F(RichEdit, EachPropertyChangesByItsMaskAlone) {
    CHARFORMATA format = {sizeof format, 0, 0, 240, 30, RGB(1, 2, 3), 128, 34, "Mincho"};
    const DWORD masks[] = {CFM_SIZE, CFM_OFFSET, CFM_COLOR, CFM_CHARSET, CFM_FACE};
    for (const DWORD mask : masks) {
        Set("ab");
        Select(1, 2);
        format.dwMask = mask;
        Send(EM_SETCHARFORMAT, SCF_SELECTION, &format);
        const CHARFORMATA changed = Format(SCF_SELECTION);
        EXPECT_EQ(changed.yHeight == 240, mask == CFM_SIZE);
        EXPECT_EQ(changed.yOffset == 30, mask == CFM_OFFSET);
        EXPECT_EQ(changed.crTextColor == RGB(1, 2, 3), mask == CFM_COLOR);
        EXPECT_EQ(changed.bCharSet == 128, mask == CFM_CHARSET);
        EXPECT_EQ(std::string(changed.szFaceName) == "Mincho", mask == CFM_FACE);

        Select(0, -1);
        EXPECT_EQ(Format(SCF_SELECTION).dwMask, changed.dwMask & ~mask);
    }
}

TEST_F(RichEdit, FormatOfAnEmptySelectionIsForWhatComesNext) {
    Set("abcd");
    Change(SCF_ALL, CFM_SIZE, 0, 100);

    Select(2, 2);
    Change(SCF_SELECTION, CFM_SIZE, 0, 300);
    EXPECT_EQ(Format(SCF_SELECTION).yHeight, 300);
    Replace("XY");
    Replace("Z");
    Select(1, 1);
    Change(SCF_SELECTION, CFM_SIZE, 0, 500);
    Select(1, 1);
    Replace("-");

    EXPECT_EQ(Text(), "a-bXYZcd");
    EXPECT_EQ(Heights(), (std::vector<LONG>{100, 100, 100, 300, 300, 300, 100, 100}));
}

TEST_F(RichEdit, FormatOfAnotherSizeIsRefused) {
    Set("a");
    CHARFORMATA format = {};
    format.cbSize = sizeof format - 1;
    format.dwMask = CFM_SIZE;
    format.yHeight = 999;

    EXPECT_EQ(Send(EM_SETCHARFORMAT, SCF_ALL, &format), FALSE);
    EXPECT_EQ(Send(EM_SETCHARFORMAT, SCF_ALL), FALSE);
    EXPECT_EQ(Send(EM_GETCHARFORMAT, SCF_SELECTION, &format), 0);

    EXPECT_NE(Heights(), std::vector<LONG>{999});
}

TEST_F(RichEdit, ControlsAreMadeOnlyWithoutTheFault) {
    const auto make = [this] {
        return CreateWindowExA(0, "RICHEDIT", "a\nb", WS_CHILD, 0, 0, 1, 1, m_top, nullptr, nullptr, nullptr);
    };
    platform::ArmFault("rich-edit", true, 0);

    EXPECT_EQ(make(), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    m_control = make();
    EXPECT_EQ(Text(), "a\r\nb");

    DestroyWindow(m_control);
    DestroyWindow(m_top);
    EXPECT_FALSE(UnregisterClassA("RICHEDIT", nullptr));
}

// Random edits against a plain model: a string and a height for every byte.
TEST_F(RichEdit, RandomEditsKeepTextLinesAndFormatsTogether) {
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    const auto upTo = [&random](size_t most) { return static_cast<LONG>(random() % (most + 1)); };
    const char* const pieces[] = {"", "x", "\r\n", "yz\r\n", "\r\nw\r\n"};
    std::string text;
    std::vector<LONG> heights;
    Change(SCF_DEFAULT, CFM_SIZE, 0, 1);
    for (int step = 0; step < 400; ++step) {
        auto [from, to] = std::minmax({upTo(text.size()), upTo(text.size())});
        Select(from, to);
        if (from < to && random() % 2 == 0) {
            const LONG height = 1 + upTo(2);
            Change(SCF_SELECTION, CFM_SIZE, 0, height);
            std::fill(heights.begin() + from, heights.begin() + to, height);
        } else {
            const std::string piece = pieces[upTo(4)];
            const bool empty = from == to;
            const LONG height =
                text.empty() ? 1 : heights[static_cast<size_t>(empty && from > 0 ? from - 1 : from)];
            Replace(piece);
            from -= text[static_cast<size_t>(from)] == '\n';
            to = empty ? from : to + (text[static_cast<size_t>(to)] == '\n');
            text.replace(static_cast<size_t>(from), static_cast<size_t>(to - from), piece);
            heights.erase(heights.begin() + from, heights.begin() + to);
            heights.insert(heights.begin() + from, piece.size(), height);
        }
        ASSERT_EQ(Text(), text) << "seed " << seed;
        ASSERT_EQ(Heights(), heights) << "seed " << seed;
        LONG line = 0;
        for (size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 1)) {
            ASSERT_EQ(Send(EM_LINEINDEX, static_cast<WPARAM>(++line)), static_cast<LONG>(i) + 1) << seed;
        }
        ASSERT_EQ(Send(EM_GETLINECOUNT), line + 1) << "seed " << seed;
    }
}
