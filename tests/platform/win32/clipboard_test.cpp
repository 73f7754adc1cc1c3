#include "stage.h"

#include "platform/clipboard.h"
#include "platform/counts.h"
#include "platform/faults.h"

#include <cstring>

namespace {

HGLOBAL BlockOf(const std::string& bytes) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
    GlobalUnlock(block);
    return block;
}

bool Put(const std::string& bytes) {
    const HGLOBAL block = BlockOf(bytes);
    const bool taken = SetClipboardData(CF_TEXT, block) != nullptr;
    if (!taken) {
        GlobalFree(block);
    }
    return taken;
}

/// The bytes of the clipboard's block, its zero with them; "none" without one.
std::string Get() {
    const HANDLE block = GetClipboardData(CF_TEXT);
    if (!block) {
        return "none";
    }
    const std::string bytes(static_cast<const char*>(GlobalLock(block)), GlobalSize(block));
    GlobalUnlock(block);
    return bytes;
}

class Clipboard : public WindowStage {
  public:
    Clipboard() {
        OpenClipboard(nullptr);
        EmptyClipboard();
        CloseClipboard();
    }
    ~Clipboard() override {
        platform::ClearFaults();
        platform::SetClipboard(nullptr);
    }
};

class CCountingClipboard final : public platform::IClipboard {
  public:
    bool HasText() override { return true; }
    const std::string* Text() override { return &text; }
    void SetText(std::string given) override { text = std::move(given); }
    void Clear() override { ++clears; }

    std::string text = "outside";
    int clears = 0;
};

} // namespace

TEST_F(Clipboard, TextEndsAtItsZeroOrItsBlock) {
    const struct {
        std::string block, text;
    } rows[] = {{std::string("ab\r\nc\0d", 7), "ab\r\nc"}, {"abc", "abc"}, {std::string(1, '\0'), ""}};
    for (const auto& row : rows) {
        ASSERT_TRUE(OpenClipboard(nullptr));
        EXPECT_TRUE(Put(row.block));
        EXPECT_TRUE(CloseClipboard());

        EXPECT_EQ(platform::ClipboardText(), row.text);
        EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
        OpenClipboard(nullptr);
        EXPECT_EQ(Get(), row.text + '\0');
        CloseClipboard();
    }
}

TEST_F(Clipboard, BlocksGoWithTheirUse) {
    const unsigned before = platform::CountLive().globalBlocks;
    OpenClipboard(nullptr);

    Put("one");
    EXPECT_EQ(platform::CountLive().globalBlocks, before);
    Get();
    Get();
    EXPECT_EQ(platform::CountLive().globalBlocks, before + 1);
    EmptyClipboard();
    EXPECT_EQ(platform::CountLive().globalBlocks, before);
    EXPECT_EQ(Get(), "none");
    Put("two");
    Get();
    CloseClipboard();
    EXPECT_EQ(platform::CountLive().globalBlocks, before);
    EXPECT_EQ(platform::ClipboardText(), "two");
}

TEST_F(Clipboard, ClosedItKeepsEverythingFromCallers) {
    platform::SetClipboardText("kept");

    EXPECT_FALSE(CloseClipboard());
    EXPECT_EQ(GetLastError(), ERROR_CLIPBOARD_NOT_OPEN);
    EXPECT_FALSE(EmptyClipboard());
    EXPECT_FALSE(Put("new"));
    EXPECT_EQ(Get(), "none");

    EXPECT_EQ(platform::ClipboardText(), "kept");
}

TEST_F(Clipboard, OneWindowAtATimeHasItOpen) {
    const HWND first = Top("A");
    const HWND second = Top("B");
    ASSERT_TRUE(OpenClipboard(first));
    EXPECT_TRUE(OpenClipboard(first));

    EXPECT_FALSE(OpenClipboard(second));
    EXPECT_FALSE(OpenClipboard(nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    DestroyWindow(first);
    EXPECT_FALSE(Put("x"));
    EXPECT_TRUE(OpenClipboard(second));
    EXPECT_TRUE(Put("x"));
    EXPECT_TRUE(CloseClipboard());
    EXPECT_FALSE(OpenClipboard(first));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
}

TEST_F(Clipboard, RefusedDataStayTheCallers) {
    platform::SetClipboardText("kept");
    OpenClipboard(nullptr);
    const HGLOBAL block = BlockOf("new");

    EXPECT_EQ(SetClipboardData(CF_TEXT + 1, block), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(SetClipboardData(CF_TEXT, nullptr), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    // What the clipboard handed out is its own already.
    EXPECT_EQ(SetClipboardData(CF_TEXT, GetClipboardData(CF_TEXT)), nullptr);

    EXPECT_EQ(GlobalFree(block), nullptr);
    EXPECT_EQ(Get(), std::string("kept") + '\0');
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT + 1));
    EXPECT_EQ(GetClipboardData(CF_TEXT + 1), nullptr);
    CloseClipboard();
}

TEST_F(Clipboard, ShortMemoryGivesNoBlockAndLosesNoText) {
    platform::SetClipboardText(std::string("kept\0cut", 8));
    OpenClipboard(nullptr);
    platform::ArmFault("record", true, 0);

    EXPECT_EQ(Get(), "none");
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_EQ(Get(), std::string("kept") + '\0');
    CloseClipboard();
}

TEST_F(Clipboard, ADesktopsClipboardTakesThePlace) {
    CCountingClipboard desktop;
    platform::SetClipboardText("own");
    platform::SetClipboard(&desktop);
    OpenClipboard(nullptr);

    EXPECT_EQ(Get(), std::string("outside") + '\0');
    EmptyClipboard();
    Put("new");
    CloseClipboard();

    EXPECT_EQ(desktop.clears, 1);
    EXPECT_EQ(desktop.text, "new");
    platform::SetClipboard(nullptr);
    EXPECT_EQ(platform::ClipboardText(), "own");
}
