// The rich-text record of the editor's text.
#include <cstring>
#include <optional>

#include "editor_binding.h"
#include "module_help.h"
#include "platform/counts.h"
#include "platform/faults.h"
#include "text/rich_text_reader.h"

namespace {

using RichText = CHandle<QXRICHEDITINFO, CHandleKiller>;

void Append(std::string& bytes, std::int32_t nWord) {
    bytes.append(reinterpret_cast<const char*>(&nWord), sizeof(nWord));
}

/// A record of one run in Arial, with nothing in the place of its text block. The metrics are those of a cell
/// as high as the run: for 16 an em of 14, which is 15.6 high, and for 22 one of 20, which is 22.3 high.
std::string OneRun(int nHeight, int nAscent, int nDescent) {
    std::string bytes;
    Append(bytes, 128);
    Append(bytes, 1);
    bytes.append(40, '\0');
    Append(bytes, nHeight);
    Append(bytes, nAscent);
    Append(bytes, nDescent);
    Append(bytes, 0);
    Append(bytes, 1);
    bytes.append(12, '\0');
    bytes.append("Arial").append(27, '\0');
    return bytes.append(12 + 80, '\0');
}

class RichTextExport : public testing::Test {
  protected:
    ~RichTextExport() override { platform::ClearFaults(); }

    void Open(const std::string& text) { ASSERT_EQ(m_stage.NewEditor({100, 100}, text), 1); }
    RichText Export(double dScale = 1.0) {
        return (m_stage.Editor()->*m_stage.EditorOperations()->m_fnGetRichText)(dScale);
    }
    /// The record with nothing in the place of its only text block.
    static std::string BytesOf(const RichText& text) {
        std::string bytes(reinterpret_cast<const char*>(text.Get()), RichTextRecordSize(text->nRuns));
        std::memset(bytes.data() + 48 + 64, 0, sizeof(RichTextBlock));
        return bytes;
    }
    /// Of all runs together; nothing for a broken record.
    static std::optional<std::string> TextOf(const RichText& text) {
        std::vector<RichTextRun> runs;
        if (!ReadRichText(text.Get(), runs)) {
            return std::nullopt;
        }
        std::string all;
        for (const RichTextRun& run : runs) {
            all += run.text;
        }
        return all;
    }

    CModuleStage m_stage;
};

TEST_F(RichTextExport, RecordIsExactToTheByte) {
    Open("ab");

    const RichText text = Export();

    ASSERT_FALSE(text.IsEmpty());
    EXPECT_EQ(BytesOf(text), OneRun(16, 13, 3));
    EXPECT_EQ(TextOf(text), "ab");
}

TEST_F(RichTextExport, LinesAreTrimmedPartedByCrLfAndTheEmptyLastOnesDropped) {
    Open("  a \n\nb c\n  \n\n");

    const RichText text = Export();

    ASSERT_FALSE(text.IsEmpty());
    EXPECT_EQ(BytesOf(text), OneRun(16, 13, 3));
    EXPECT_EQ(TextOf(text), "a\r\n\r\nb c");
}

TEST_F(RichTextExport, ScaleTruncatesTheSizeAndTheEditorsStyleStaysOut) {
    Open("ab");
    const EditorCalls& calls = *m_stage.EditorOperations();
    (m_stage.Editor()->*calls.m_fnSetFontSizeInPixel)(15);
    (m_stage.Editor()->*calls.m_fnSetFontStyle)(7);

    EXPECT_EQ(BytesOf(Export(1.5)), OneRun(22, 19, 3));
}

TEST_F(RichTextExport, BlanksAndEmptyLinesGiveAnEmptyHandle) {
    for (const char* text : {"", "   ", " \n\n  \n"}) {
        Open(text);

        EXPECT_TRUE(Export().IsEmpty()) << '"' << text << '"';
    }
}

TEST_F(RichTextExport, LastHandleFreesRecordAndText) {
    Open("ab\ncd");
    const unsigned nBlocks = platform::CountLive().globalBlocks;
    {
        RichText kept;
        {
            const RichText text = Export();
            kept = text;
        }
        EXPECT_EQ(platform::CountLive().globalBlocks, nBlocks + 2);
        EXPECT_EQ(TextOf(kept), "ab\r\ncd");
    }
    EXPECT_EQ(platform::CountLive().globalBlocks, nBlocks);
}

TEST_F(RichTextExport, WithoutAFontTheMetricsAreZeroAndTheTextIsKept) {
    Open("ab");
    platform::ArmFault("font", false, 0);

    const RichText text = Export();

    ASSERT_FALSE(text.IsEmpty());
    EXPECT_EQ(RichTextRuns(text.Get())->nAscent, 0);
    EXPECT_EQ(RichTextRuns(text.Get())->nDescent, 0);
    EXPECT_EQ(TextOf(text), "ab");
}

TEST_F(RichTextExport, FailureLeavesNothingBehindAndTheNextExportWorks) {
    Open("ab");
    const auto before = platform::CountLive();
    // First the record's block, then the run's text.
    for (unsigned nAfter : {0U, 1U}) {
        platform::ArmFault("record", true, nAfter);

        EXPECT_TRUE(Export().IsEmpty()) << nAfter;
        EXPECT_EQ(platform::CountLive().globalBlocks, before.globalBlocks);
        EXPECT_EQ(platform::CountLive().gdiObjects, before.gdiObjects);
        EXPECT_EQ(platform::CountLive().deviceContexts, before.deviceContexts);
    }
    EXPECT_EQ(TextOf(Export()), "ab");
}

} // namespace
