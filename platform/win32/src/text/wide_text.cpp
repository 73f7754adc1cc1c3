#include "code_page.h"
#include "handles.h"

#include <iconv.h>
#include <string>
#include <string_view>

namespace win32 {

constexpr WCHAR Replacement = 0xFFFD;

// Takes what is put into it while there is room, and counts it; with a size of 0 it only counts.
template <typename Unit>
class CBoundedOutput {
  public:
    CBoundedOutput(Unit* out, int size) : m_out(out), m_size(size) {}

    void Put(Unit unit) {
        if (m_count < m_size) {
            m_out[m_count] = unit;
        }
        ++m_count;
    }
    int Result() const {
        return m_size == 0 || m_count <= m_size ? m_count : FailWith(ERROR_INSUFFICIENT_BUFFER);
    }

  private:
    Unit* m_out;
    int m_size;
    int m_count = 0;
};

/// From UTF-16 to one code page.
class CConverter {
  public:
    explicit CConverter(UINT codePage)
        : m_converter(iconv_open(ConverterName(codePage).data(), "UTF-16LE")) {}
    ~CConverter() {
        if (IsOpen()) {
            iconv_close(m_converter);
        }
    }
    CConverter(const CConverter&) = delete;
    CConverter& operator=(const CConverter&) = delete;

    /// The bytes of the character, at most 4; empty when the code page does not have it.
    std::string_view BytesOf(WCHAR wide) {
        char* in = reinterpret_cast<char*>(&wide);
        size_t left = sizeof wide;
        char* out = m_bytes.data();
        size_t room = m_bytes.size();
        const bool converted =
            IsOpen() && iconv(m_converter, &in, &left, &out, &room) != static_cast<size_t>(-1);
        if (!converted && IsOpen()) {
            iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
        }
        return {m_bytes.data(), converted ? m_bytes.size() - room : 0};
    }

  private:
    bool IsOpen() const { return m_converter != reinterpret_cast<iconv_t>(-1); }

    iconv_t m_converter;
    std::array<char, 4> m_bytes{};
};

// The given count, or a zero-terminated text's with its zero; 0 when the arguments are not to be used.
template <typename Unit>
int CountOf(const Unit* text, int count, const void* out, int size) {
    if (!text || count < -1 || count == 0 || size < 0 || (size > 0 && !out)) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    return count > 0 ? count : static_cast<int>(std::char_traits<Unit>::length(text)) + 1;
}

} // namespace win32

using namespace win32;

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int count, LPWSTR wide, int size) {
    const CodePage* page = FindCodePage(codePage);
    count = CountOf(text, count, wide, size);
    if (!page || count == 0) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    CBoundedOutput<WCHAR> out(wide, size);
    for (int at = 0; at < count;) {
        const Character next = FirstCharacter(*page, text + at, count - at);
        if (next.code == NoCharacter && (flags & MB_ERR_INVALID_CHARS) != 0) {
            return FailWith(ERROR_NO_UNICODE_TRANSLATION);
        }
        out.Put(next.code == NoCharacter ? Replacement : next.code);
        at += next.length;
    }
    return out.Result();
}

int WideCharToMultiByte(UINT codePage, DWORD, LPCWSTR wide, int count, LPSTR text, int size,
                        LPCSTR defaultChar, LPBOOL usedDefault) {
    const CodePage* page = FindCodePage(codePage);
    count = CountOf(wide, count, text, size);
    if (!page || count == 0) {
        return FailWith(ERROR_INVALID_PARAMETER);
    }
    CConverter converter(page->number);
    CBoundedOutput<char> out(text, size);
    BOOL replaced = FALSE;
    for (int at = 0; at < count; ++at) {
        std::string_view bytes = converter.BytesOf(wide[at]);
        if (bytes.empty()) {
            bytes = defaultChar ? defaultChar : "?";
            replaced = TRUE;
        }
        for (const char byte : bytes) {
            out.Put(byte);
        }
    }
    if (usedDefault) {
        *usedDefault = replaced;
    }
    return out.Result();
}
