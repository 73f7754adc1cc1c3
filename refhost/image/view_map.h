// How document units become client pixels and back.
#pragma once

#include <windows.h>

/// A zoom (pixels per document unit, above 0) and the document point at the client's top-left. Results are
/// rounded to nearest, halves away from zero, and held within 32 bits; rectangles go by their corners.
struct ViewMap {
    double dZoom;
    POINT ptScroll;

    POINT ToClient(const POINT& ptDoc) const;
    POINT ToDoc(const POINT& ptClient) const;
    RECT RectToClient(const RECT& rcDoc) const;
    RECT RectToDoc(const RECT& rcClient) const;
};
