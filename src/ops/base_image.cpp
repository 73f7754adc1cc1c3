// Merging a picture into the page's base image.
#include "host/services.h"
#include "ops/buffer_owner.h"
#include "ops/refresh.h"
#include "tools/tool_core.h"

namespace {

constexpr int ColorBits = 24;
constexpr std::int32_t ErrorNone = 0;
constexpr std::int32_t ErrorNoBuffer = 2;
constexpr std::int32_t ErrorFailed = 3;

std::int32_t MergeInto(CVorDoc& doc, HBUF32 hImage, HBUF32 hMask, int nPercent) {
    int nWidth = 0;
    int nHeight = 0;
    const HBUF32 hBase = doc.GetBaseImage();
    if (!buf32GetWHU(hBase, &nWidth, &nHeight, nullptr)) {
        return ErrorFailed;
    }
    CBufferOwner base(ColorBits, nWidth, nHeight);
    CBufferOwner source(ColorBits, nWidth, nHeight);
    if (!base || !source) {
        return ErrorNoBuffer;
    }
    if (!CGlobalAPI::m_fnMergeBuf(base.Get(), hBase, hImage, nPercent, hMask) ||
        !CGlobalAPI::m_fnMergeBuf(source.Get(), hBase, hImage, nPercent, hMask)) {
        return ErrorFailed;
    }
    doc.m_fnSetSrcBaseImage(source.Release());
    doc.SetBaseImage(base.Release());
    buf32Free(hBase);
    doc.SetModifiedFlag(TRUE);
    return ErrorNone;
}

} // namespace

int CToolCore::MergeIntoBaseImage(HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                                  std::int32_t* pError) {
    CCanvas canvas(*this);
    const std::int32_t nError =
        canvas.HasDocument() ? MergeInto(canvas.Document(), hImage, hMask, nPercent) : ErrorFailed;
    if (pError) {
        *pError = nError;
    }
    if (nError == ErrorNone && nRedraw == 1 && canvas) {
        CRefresh refresh;
        refresh.Add(canvas.ClientRect());
        refresh.FlushMarkRepaint(canvas.View(), *this);
    }
    return nError == ErrorNone ? 1 : 0;
}
