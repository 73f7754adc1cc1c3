#include "richedit/control.h"

#include "richedit/rich_text.h"

#include "platform/faults.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace win32 {

namespace {

struct RichEditData : ControlData {
    CRichText content;
};

LONG LongOf(ULONG_PTR parameter) { return static_cast<LONG>(parameter); }

template <typename T>
T* PointerOf(LPARAM lParam) {
    return reinterpret_cast<T*>(lParam);
}

std::string_view TextOf(LPARAM lParam) {
    const char* text = PointerOf<const char>(lParam);
    return text ? text : "";
}

bool MakeContent(HWND handle, LPARAM lParam) {
    Window* window = FindWindow(handle);
    if (!window || platform::FaultTrips("rich-edit")) {
        return FailWith(ERROR_NOT_ENOUGH_MEMORY) != FALSE;
    }
    auto data = std::make_unique<RichEditData>();
    if (const auto* create = PointerOf<const CREATESTRUCTA>(lParam)) {
        data->content.SetText(create->lpszName ? create->lpszName : "");
    }
    window->control = std::move(data);
    return true;
}

CRichText* ContentOf(HWND handle) {
    const Window* window = FindWindow(handle);
    return window && window->control ? &static_cast<RichEditData&>(*window->control).content : nullptr;
}

LRESULT GetSelection(const CRichText& content, DWORD* start, DWORD* end) {
    const CHARRANGE range = content.Selection();
    const DWORD from = static_cast<DWORD>(range.cpMin);
    const DWORD to = static_cast<DWORD>(range.cpMax);
    if (start) {
        *start = from;
    }
    if (end) {
        *end = to;
    }
    return to > std::numeric_limits<WORD>::max() ? -1 : MAKELRESULT(from, to);
}

LRESULT GetRange(const CRichText& content, CHARRANGE* out) {
    if (out) {
        *out = content.Selection();
    }
    return 0;
}

LRESULT Select(CRichText& content, LONG from, LONG to) {
    content.Select(from, to);
    return content.Selection().cpMax;
}

LRESULT SelectRange(CRichText& content, const CHARRANGE* range) {
    return range ? Select(content, range->cpMin, range->cpMax) : 0;
}

LRESULT LineIndex(const CRichText& content, LONG line) {
    return content.LineStart(line == -1 ? content.LineAt(content.Selection().cpMin) : line);
}

LRESULT LineLength(const CRichText& content, LONG position) {
    if (position < 0 || position > content.Length()) {
        return 0;
    }
    return static_cast<LRESULT>(content.Line(content.LineAt(position)).size());
}

LRESULT GetLine(const CRichText& content, LONG line, char* buffer) {
    if (!buffer || content.LineStart(line) == -1) {
        return 0;
    }
    WORD room = 0;
    std::memcpy(&room, buffer, sizeof room);
    const std::string_view held = content.Line(line);
    const std::string_view read = held.empty() ? "\r" : held;
    return static_cast<LRESULT>(read.copy(buffer, room));
}

LRESULT GetSelectedText(const CRichText& content, char* buffer) {
    if (!buffer) {
        return 0;
    }
    const std::string_view text = content.SelectedText();
    buffer[text.copy(buffer, text.size())] = '\0';
    return static_cast<LRESULT>(text.size());
}

LRESULT ClearSelection(CRichText& content) {
    const CHARRANGE range = content.Selection();
    if (range.cpMin != range.cpMax) {
        content.ReplaceSelection("");
    }
    return 0;
}

bool IsFormat(const CHARFORMATA* format) { return format && format->cbSize == sizeof(CHARFORMATA); }

LRESULT GetFormat(const CRichText& content, WPARAM where, CHARFORMATA* out) {
    if (!IsFormat(out)) {
        return 0;
    }
    *out = where & SCF_SELECTION ? content.SelectionFormat() : content.DefaultFormat();
    return out->dwMask;
}

LRESULT SetFormat(CRichText& content, WPARAM where, const CHARFORMATA* change) {
    if (!IsFormat(change)) {
        return FALSE;
    }
    if (where & SCF_ALL) {
        content.ChangeWholeFormat(*change);
    } else if (where & SCF_SELECTION) {
        content.ChangeSelectionFormat(*change);
    } else {
        content.ChangeDefaultFormat(*change);
    }
    return TRUE;
}

LRESULT Answer(CRichText& content, HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SETTEXT: return content.SetText(TextOf(lParam));
    case WM_GETTEXT: return CopyText(content.Text(), wParam, PointerOf<char>(lParam));
    case WM_GETTEXTLENGTH: return content.Length();
    case WM_CLEAR: return ClearSelection(content);
    case EM_GETSEL: return GetSelection(content, reinterpret_cast<DWORD*>(wParam), PointerOf<DWORD>(lParam));
    case EM_SETSEL: return Select(content, LongOf(wParam), static_cast<LONG>(lParam));
    case EM_EXGETSEL: return GetRange(content, PointerOf<CHARRANGE>(lParam));
    case EM_EXSETSEL: return SelectRange(content, PointerOf<const CHARRANGE>(lParam));
    case EM_GETSELTEXT: return GetSelectedText(content, PointerOf<char>(lParam));
    case EM_REPLACESEL: return content.ReplaceSelection(TextOf(lParam));
    case EM_HIDESELECTION: return 0;
    case EM_GETLINECOUNT: return content.LineCount();
    case EM_LINEINDEX: return LineIndex(content, LongOf(wParam));
    case EM_LINELENGTH: return LineLength(content, LongOf(wParam));
    case EM_GETLINE: return GetLine(content, LongOf(wParam), PointerOf<char>(lParam));
    case EM_GETCHARFORMAT: return GetFormat(content, wParam, PointerOf<CHARFORMATA>(lParam));
    case EM_SETCHARFORMAT: return SetFormat(content, wParam, PointerOf<const CHARFORMATA>(lParam));
    default: return DefWindowProcA(handle, message, wParam, lParam);
    }
}

LRESULT CALLBACK RichEditProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        if (message == WM_NCCREATE) {
            return MakeContent(handle, lParam);
        }
        CRichText* content = ContentOf(handle);
        return content ? Answer(*content, handle, message, wParam, lParam)
                       : DefWindowProcA(handle, message, wParam, lParam);
    } catch (const std::bad_alloc&) {
        return FailWith(ERROR_NOT_ENOUGH_MEMORY);
    }
}

} // namespace

std::unique_ptr<WindowClass> MakeRichEditClass() {
    auto made = std::make_unique<WindowClass>();
    made->name = "RICHEDIT";
    made->record = {};
    made->record.style = CS_DBLCLKS;
    made->record.lpfnWndProc = &RichEditProcedure;
    made->record.lpszClassName = made->name.c_str();
    return made;
}

} // namespace win32
