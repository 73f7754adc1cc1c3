#include "stage.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "dump.h"
#include "platform/code_page.h"
#include "platform/counts.h"
#include "scenario_lines.h"

namespace {

using Lines = std::vector<std::string>;

Json Looked(CStage& stage, const char* pszDump) {
    Json json;
    EXPECT_TRUE(Dump(stage, pszDump, Records::Keep, json));
    return json;
}

class EditorStage : public testing::Test {
  protected:
    EditorStage() { m_stage.LoadModule(); }

    void Open(const std::string& text) { ASSERT_EQ(m_stage.NewEditor({300, 100}, text), 1); }
    Json Focus() { return Looked(m_stage, "input")["focus"]; }
    Json Editor() { return Looked(m_stage, "editor"); }
    /// The middle of the open editor's window.
    CPoint Middle() {
        const Json rect = Editor()["rect"];
        return {(rect[0].get<int>() + rect[2].get<int>()) / 2, (rect[1].get<int>() + rect[3].get<int>()) / 2};
    }

    CStage m_stage;
};

TEST_F(EditorStage, ShownItHasTheFocusAndHiddenItLeavesItAlone) {
    Open("a");
    EXPECT_EQ(Focus(), "editor");

    ASSERT_EQ(m_stage.NewEditor({300, 100}, "a", Show::Later), 1);
    EXPECT_EQ(Focus(), "view");
    EXPECT_EQ(m_stage.EditorLines(), Lines{"a"});

    m_stage.FocusEditor();
    EXPECT_EQ(Focus(), "editor");
}

TEST_F(EditorStage, HiddenItIsNotUnderThePointer) {
    m_stage.AddPicture("A", RGB(255, 0, 0), 200, 50, 200, 100);
    m_stage.UseTool("CSelectTool");
    ASSERT_EQ(m_stage.NewEditor({300, 100}, "a wide text", Show::Later), 1);

    m_stage.Click({300, 100});

    EXPECT_EQ(m_stage.Selection(), Lines{"A"});
}

struct EndRow {
    const char* pszName;
    void (*pfnEnd)(CStage&);
    const char* pszText; ///< what the host then sees
};

TEST_F(EditorStage, EndOfInputIsToldOnceAndTakesTheEditorAway) {
    const EndRow rows[] = {
        {"escape", [](CStage& stage) { stage.Key(VK_ESCAPE); }, "ab"},
        {"no focus", [](CStage& stage) { stage.FocusNone(); }, "xab"},
        {"focus on the view", [](CStage& stage) { stage.FocusView(); }, "xab"},
        {"asked for", [](CStage& stage) { stage.EndEditor(); }, "xab"},
    };
    const unsigned nWindows = platform::CountLive().windows;
    int nEnded = 0;
    for (const EndRow& row : rows) {
        SCOPED_TRACE(row.pszName);
        Open("ab");
        m_stage.Type("x");

        row.pfnEnd(m_stage);

        EXPECT_EQ(m_stage.EndedInputs(), ++nEnded);
        EXPECT_EQ(m_stage.EndedText(), row.pszText);
        EXPECT_EQ(m_stage.Editor(), nullptr);
        EXPECT_EQ(Focus(), "view");
        EXPECT_EQ(platform::CountLive().windows, nWindows);
    }
}

TEST_F(EditorStage, HostThatTakesItAwayIsNotTold) {
    void (*const ways[])(CStage&) = {
        [](CStage& stage) { stage.DestroyEditor(); },
        [](CStage& stage) { stage.NewPage(100, 100); },
        [](CStage& stage) {
            stage.NewEditor({10, 10}, "next");
        },
        [](CStage& stage) { stage.DetachModule(); },
    };
    for (const auto& pfnTake : ways) {
        m_stage.DestroyEditor();
        Open("ab");

        pfnTake(m_stage);

        EXPECT_NE(m_stage.EditorLines(), Lines{"ab"});
        EXPECT_EQ(m_stage.EndedInputs(), 0);
    }
    EXPECT_EQ(Focus(), "view");
    EXPECT_EQ(m_stage.NewEditor({300, 100}, "a"), 0);
    EXPECT_EQ(m_stage.DestroyEditor(), 0);
}

TEST_F(EditorStage, FramesAcceleratorsNeverSeeItsKeys) {
    m_stage.AddAccelerator('B', Ctrl::Up);
    m_stage.Trace();
    Open("");

    m_stage.Key('B');
    m_stage.QueueKeyDown('B');
    m_stage.Pump();

    EXPECT_EQ(m_stage.EditorLines(), Lines{"bb"});
    m_stage.FocusView();
    m_stage.Trace();
    m_stage.Key('B');
    const std::vector<trace::Row> rows = m_stage.Trace();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].op, "Accelerator");
}

TEST_F(EditorStage, LettersGoWhereTheFocusIs) {
    Open("");
    m_stage.Type("a b\nc\td");
    EXPECT_EQ(m_stage.EditorLines(), (Lines{"a b", "c d"}));

    m_stage.NewEditor({300, 100}, "", Show::Later);
    m_stage.Type("a");
    EXPECT_EQ(m_stage.EditorLines(), Lines{""});
}

TEST_F(EditorStage, MouseOverItIsItsOwnInItsOwnPixels) {
    m_stage.AddPicture("A", RGB(255, 0, 0), 200, 50, 200, 100);
    m_stage.UseTool("CSelectTool");
    Open("abcd");
    const CPoint ptMiddle = Middle();

    m_stage.Press(ptMiddle);
    EXPECT_EQ(Looked(m_stage, "input")["capture"], "editor");
    m_stage.Move({700, ptMiddle.y});
    m_stage.Release({700, ptMiddle.y});

    EXPECT_EQ(Editor()["index"], 1);
    EXPECT_EQ(m_stage.SelectedText(), "cd");
    EXPECT_EQ(m_stage.Selection(), Lines{});
}

TEST_F(EditorStage, HoverThatGoesOnToTheViewLeaves) {
    Open("abcd");

    const DropAnswer over = m_stage.Hover("x", Middle());
    EXPECT_EQ(over.effect, 2U);
    EXPECT_EQ(Editor()["index"], 1);
    const DropAnswer beside = m_stage.Hover("x", {10, 10});

    EXPECT_EQ(beside.result, 0);
    EXPECT_EQ(beside.effect, 0U);
    EXPECT_EQ(Editor()["index"], -1);
}

TEST_F(EditorStage, DragBeginsOnlyOnTheSelection) {
    Open("abcd");
    const CPoint ptMiddle = Middle();

    EXPECT_EQ(m_stage.DragText(ptMiddle, {ptMiddle.x + 100, ptMiddle.y}).result, 0);
    m_stage.SelectText(0, -1, 0, 3);
    const DropAnswer answer = m_stage.DragText(ptMiddle, {10, 10});

    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.effect, 0U);
    EXPECT_EQ(m_stage.EditorLines(), Lines{"abcd"});
}

TEST(EditorSurroundings, AreFreshOnEachStage) {
    {
        CStage stage;
        stage.SetClipboard("kept");
        platform::SetCodePage(932);
        EXPECT_EQ(stage.Clipboard(), "kept");
        EXPECT_TRUE(::IsDBCSLeadByte(0x82));
    }
    CStage stage;

    EXPECT_EQ(stage.Clipboard(), std::nullopt);
    EXPECT_FALSE(::IsDBCSLeadByte(0x82));
}

TEST(EditorDump, TellsTextByTheCodePage) {
    const Outcome outcome = RunLines("codepage 932\neditor new 300 100 \"\\x82\\xA0\\x82!\"\n"
                                     "editor m_fnGetText\nclipboard \"\\x82\\xA0\\r\\n\"\ndump clipboard\n");

    EXPECT_EQ(outcome.out, "editor new 300 100 \"\\x82\\xA0\\x82!\" -> 1\n"
                           "editor m_fnGetText -> none text=\"\xE3\x81\x82\\\\x82!\"\n"
                           "clipboard \"\xE3\x81\x82\\r\\n\"\n")
        << outcome.err;
}

/// A file in the folder for passing things, gone at the end.
/// Of a name of its own, because tests run side by side.
struct PassingFile {
    explicit PassingFile(const char* pszName)
        : name(testing::TempDir() + std::to_string(getpid()) + '-' + pszName) {}
    ~PassingFile() { std::filesystem::remove(name); }

    std::string name;
};

TEST(EditorExport, WritesTheRecordAndNothingForNothing) {
    const PassingFile text("pradix-text.bin");
    const PassingFile blank("pradix-blank.bin");

    const Outcome outcome =
        RunLines("editor new 300 100 \"ab\"\nexport richtext \"" + text.name +
                 "\"\neditor new 300 100 \"  \\n \"\nexport richtext \"" + blank.name + "\" scale 2\n");

    ASSERT_EQ(outcome.status, 0) << outcome.err;
    // A record of one run, then "ab" and its zero.
    EXPECT_EQ(std::filesystem::file_size(text.name), 76U + 128U + 3U);
    EXPECT_EQ(std::filesystem::file_size(blank.name), 0U);
}

TEST(EditorExport, PicturesHaveTheTextsSize) {
    const PassingFile mask("pradix-mask.png");
    const PassingFile image("pradix-image.png");

    const Outcome outcome = RunLines("editor new 300 100 \"ab\"\neditor m_fnSetFontColor #FF8000\n"
                                     "export mask \"" +
                                     mask.name + "\"\nexport image \"" + image.name +
                                     "\"\neditor destroy\npicture A \"" + image.name +
                                     "\" 0 0 40 40\n"
                                     "expect pixel 20 20 == #FF8000\nbase \"" +
                                     mask.name + "\"\n");

    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST(EditorExport, FailsWhenThereIsNoPictureToHave) {
    const PassingFile mask("pradix-mask.png");

    const Outcome outcome =
        RunLines("editor new 300 100 \"ab\"\nfault buffer\nexport mask \"" + mask.name + "\"\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_FALSE(std::filesystem::exists(mask.name));
}

} // namespace
