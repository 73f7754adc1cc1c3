#include "memory_blocks.h"
#include "window_tree.h"

#include "platform/clipboard.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
#include <utility>

namespace {

class CMemoryClipboard final : public platform::IClipboard {
  public:
    bool HasText() override { return m_text.has_value(); }
    const std::string* Text() override { return m_text ? &*m_text : nullptr; }
    void SetText(std::string text) override { m_text = std::move(text); }
    void Clear() override { m_text.reset(); }

  private:
    std::optional<std::string> m_text;
};

struct Session {
    bool open = false;
    HWND owner = nullptr;
    HGLOBAL handedOut = nullptr; ///< Owned: the block of the last GetClipboardData.
};

Session g_session;
platform::IClipboard* g_clipboard = nullptr;

// Neither is torn down, so that a text outlives all that could still ask for it.
platform::IClipboard& Clipboard() {
    static auto& ownMemory = *new CMemoryClipboard;
    return g_clipboard ? *g_clipboard : ownMemory;
}

// An opener that is gone can close it no more.
bool IsOpen() { return g_session.open && (!g_session.owner || win32::g_windows.Find(g_session.owner)); }

void TakeBack() {
    if (HGLOBAL block = std::exchange(g_session.handedOut, nullptr)) {
        GlobalFree(block);
    }
}

HANDLE NullWith(DWORD code) {
    win32::FailWith(code);
    return nullptr;
}

HGLOBAL BlockOf(const std::string& text) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (const win32::GlobalBlock* made = win32::g_globalBlocks.Find(block)) {
        std::memcpy(made->bytes, text.c_str(), text.size() + 1);
    }
    return block;
}

} // namespace

BOOL OpenClipboard(HWND owner) {
    if (owner && !win32::FindWindow(owner)) {
        return FALSE;
    }
    if (IsOpen() && g_session.owner != owner) {
        return win32::FailWith(ERROR_ACCESS_DENIED);
    }
    g_session.open = true;
    g_session.owner = owner;
    return TRUE;
}

BOOL CloseClipboard() {
    if (!IsOpen()) {
        return win32::FailWith(ERROR_CLIPBOARD_NOT_OPEN);
    }
    TakeBack();
    g_session = {};
    return TRUE;
}

BOOL EmptyClipboard() {
    if (!IsOpen()) {
        return win32::FailWith(ERROR_CLIPBOARD_NOT_OPEN);
    }
    TakeBack();
    Clipboard().Clear();
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE handle) {
    if (!IsOpen()) {
        return NullWith(ERROR_CLIPBOARD_NOT_OPEN);
    }
    const win32::GlobalBlock* block = win32::g_globalBlocks.Find(handle);
    if (format != CF_TEXT || !block || handle == g_session.handedOut) {
        return NullWith(format != CF_TEXT ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
    }
    try {
        const char* bytes = static_cast<const char*>(block->bytes);
        Clipboard().SetText(std::string(bytes, strnlen(bytes, block->size)));
    } catch (const std::bad_alloc&) {
        return NullWith(ERROR_NOT_ENOUGH_MEMORY);
    }
    TakeBack();
    GlobalFree(handle);
    return handle;
}

HANDLE GetClipboardData(UINT format) {
    if (!IsOpen()) {
        return NullWith(ERROR_CLIPBOARD_NOT_OPEN);
    }
    const std::string* text = format == CF_TEXT ? Clipboard().Text() : nullptr;
    if (!text) {
        return nullptr;
    }
    TakeBack();
    g_session.handedOut = BlockOf(*text);
    return g_session.handedOut;
}

BOOL IsClipboardFormatAvailable(UINT format) { return format == CF_TEXT && Clipboard().HasText(); }

void platform::SetClipboard(IClipboard* clipboard) { g_clipboard = clipboard; }

std::string platform::ClipboardText() {
    const std::string* text = Clipboard().Text();
    return text ? *text : std::string();
}

void platform::SetClipboardText(std::string text) {
    text.resize(std::min(text.size(), text.find('\0')));
    Clipboard().SetText(std::move(text));
}
