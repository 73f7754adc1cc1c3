#include "font_match.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>

namespace win32 {

constexpr const char* Settings = R"(<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>
<dir>/usr/share/fonts/truetype/liberation</dir>
<dir>/usr/share/fonts/truetype/liberation2</dir>
<dir>/usr/share/fonts/opentype/ipafont-gothic</dir>
<dir>/usr/share/fonts/truetype/dejavu</dir>
<cachedir>/var/cache/fontconfig</cachedir>
<alias binding="same"><family>Arial</family><accept><family>Liberation Sans</family></accept></alias>
<alias binding="same"><family>Helvetica</family><accept><family>Liberation Sans</family></accept></alias>
<alias binding="same"><family>Arial Narrow</family><accept><family>Liberation Sans Narrow</family></accept></alias>
<alias binding="same"><family>Times New Roman</family><accept><family>Liberation Serif</family></accept></alias>
<alias binding="same"><family>Times</family><accept><family>Liberation Serif</family></accept></alias>
<alias binding="same"><family>Courier New</family><accept><family>Liberation Mono</family></accept></alias>
<alias binding="same"><family>Courier</family><accept><family>Liberation Mono</family></accept></alias>
<alias binding="same"><family>MS Gothic</family><accept><family>IPAGothic</family></accept></alias>
<alias binding="same"><family>ＭＳ ゴシック</family><accept><family>IPAGothic</family></accept></alias>
<alias binding="same"><family>MS PGothic</family><accept><family>IPAPGothic</family></accept></alias>
<alias binding="same"><family>ＭＳ Ｐゴシック</family><accept><family>IPAPGothic</family></accept></alias>
<match target="pattern"><edit name="family" mode="append_last"><string>Liberation Sans</string>
<string>IPAGothic</string></edit></match>
</fontconfig>)";

struct FontconfigDeleter {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
template <typename T>
using FontconfigPtr = std::unique_ptr<T, FontconfigDeleter>;

namespace {

FcConfig* MakeConfig() {
    FontconfigPtr<FcConfig> config(FcConfigCreate());
    const auto* settings = reinterpret_cast<const FcChar8*>(Settings);
    const bool built = config && FcConfigParseAndLoadFromMemory(config.get(), settings, FcFalse) &&
                       FcConfigBuildFonts(config.get());
    return built ? config.release() : nullptr;
}

FcConfig* Config() {
    static FcConfig* const config = MakeConfig();
    return config;
}

FontconfigPtr<FcPattern> PatternOf(const FaceRequest& request) {
    FontconfigPtr<FcPattern> pattern(FcPatternCreate());
    if (!request.family.empty()) {
        FcPatternAddString(pattern.get(), FC_FAMILY,
                           reinterpret_cast<const FcChar8*>(request.family.c_str()));
    }
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, request.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_NORMAL);
    FcPatternAddInteger(pattern.get(), FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    // Else they would come from the environment.
    FcPatternAddString(pattern.get(), FC_LANG, reinterpret_cast<const FcChar8*>("en"));
    FcPatternAddString(pattern.get(), FC_NAMELANG, reinterpret_cast<const FcChar8*>("en"));
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(Config(), pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

std::string Text(const FcPattern* font, const char* object) {
    FcChar8* text = nullptr;
    return FcPatternGetString(font, object, 0, &text) == FcResultMatch ? reinterpret_cast<char*>(text) : "";
}

int Number(const FcPattern* font, const char* object) {
    int number = 0;
    FcPatternGetInteger(font, object, 0, &number);
    return number;
}

FontFile Describe(const FcPattern* font) {
    return {Text(font, FC_FILE), Number(font, FC_INDEX), Text(font, FC_FAMILY),
            Number(font, FC_WEIGHT) >= FC_WEIGHT_DEMIBOLD, Number(font, FC_SLANT) != FC_SLANT_ROMAN};
}

bool IsForOthers(const FontFile& font) { return !font.family.starts_with("DejaVu"); }

} // namespace

std::vector<FontFile> MatchFonts(const FaceRequest& request) {
    std::vector<FontFile> fonts;
    if (!Config()) {
        return fonts;
    }
    FcResult result = FcResultNoMatch;
    const FontconfigPtr<FcFontSet> sorted(
        FcFontSort(Config(), PatternOf(request).get(), FcTrue, nullptr, &result));
    for (int i = 0; sorted && i < sorted->nfont; ++i) {
        const FontFile font = Describe(sorted->fonts[i]);
        // The first serves by its name alone; to lend a missing character is for the packages always there.
        if (fonts.empty() || IsForOthers(font)) {
            fonts.push_back(font);
        }
    }
    return fonts;
}

} // namespace win32
