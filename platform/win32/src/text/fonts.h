#pragma once

// Fonts as drawing objects.

#include "font_instance.h"
#include "gdi/objects.h"

namespace win32 {

struct Font : GdiObject {
    static constexpr GdiType Type = GdiType::Font;
    Font() : GdiObject(Type) {}

    LOGFONTA description{};
    std::shared_ptr<CFontInstance> instance; // Null until it is needed.
};

/// Gives the font an instance under the system code page of now.
void Realize(Font& font);

inline CFontInstance& InstanceOf(Font& font) {
    if (!font.instance || font.instance->Page().number != g_systemCodePage) {
        Realize(font);
    }
    return *font.instance;
}
/// Null when memory is short.
std::unique_ptr<Font> MakeStockFont();

} // namespace win32
