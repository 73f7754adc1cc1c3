#include "fonts.h"

#include "platform/faults.h"

#include <algorithm>
#include <new>

namespace win32 {

constexpr LONG BoldFrom = 551;
// Fonts come and go with each change of a text; so many instances outlive theirs.
constexpr size_t KeptInstances = 16;

namespace {

FontKey KeyOf(const LOGFONTA& font) {
    return {{font.lfFaceName, strnlen(font.lfFaceName, LF_FACESIZE)},
            font.lfHeight,
            font.lfWeight >= BoldFrom,
            font.lfItalic != 0,
            font.lfQuality != NONANTIALIASED_QUALITY,
            GetACP()};
}

// The last used stands first.
std::shared_ptr<CFontInstance> FindInstance(const FontKey& key) {
    static auto& kept = *new std::vector<std::shared_ptr<CFontInstance>>;
    const auto found =
        std::find_if(kept.begin(), kept.end(), [&](const auto& instance) { return instance->Key() == key; });
    if (found != kept.end()) {
        std::rotate(kept.begin(), found, found + 1);
        return kept.front();
    }
    kept.insert(kept.begin(), std::make_shared<CFontInstance>(key));
    kept.resize(std::min(kept.size(), KeptInstances));
    return kept.front();
}

} // namespace

void Realize(Font& font) { font.instance = FindInstance(KeyOf(font.description)); }

namespace {

std::unique_ptr<Font> MakeFont(const LOGFONTA& description) {
    std::unique_ptr<Font> font(new (std::nothrow) Font);
    if (font) {
        font->description = description;
        font->description.lfFaceName[LF_FACESIZE - 1] = 0;
    }
    return font;
}

} // namespace

std::unique_ptr<Font> MakeStockFont() {
    LOGFONTA description = {};
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    return MakeFont(description);
}

} // namespace win32

using namespace win32;

HFONT CreateFontIndirectA(const LOGFONTA* description) {
    if (!description || platform::FaultTrips("font")) {
        FailWith(description ? ERROR_NOT_ENOUGH_MEMORY : ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return static_cast<HFONT>(EnterObject(MakeFont(*description)));
}

HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                  DWORD quality, DWORD pitchAndFamily, LPCSTR face) {
    const auto byte = [](DWORD value) { return static_cast<BYTE>(value); };
    LOGFONTA description = {height,
                            width,
                            escapement,
                            orientation,
                            weight,
                            byte(italic),
                            byte(underline),
                            byte(strikeOut),
                            byte(charSet),
                            byte(outPrecision),
                            byte(clipPrecision),
                            byte(quality),
                            byte(pitchAndFamily),
                            {}};
    if (face) {
        std::copy_n(face, strnlen(face, LF_FACESIZE - 1), description.lfFaceName);
    }
    return CreateFontIndirectA(&description);
}
