#include "text/editor/default_font.h"

#include "host/services.h"

CString DefaultFontName() {
    constexpr int FaceNameSize = 256;
    char szName[FaceNameSize] = "";
    return gfnGetDefaultFontNameFromQuorProd(szName, FaceNameSize) != 0 ? CString(szName) : CString("Arial");
}
