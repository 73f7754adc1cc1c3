#include "ops/base_image.h"

#include "host/services.h"
#include "ops/buffer_owner.h"
#include "ops/canvas.h"
#include "ops/refresh.h"
#include "ops/service_error.h"

namespace {

constexpr int ColorBits = 24;

std::int32_t MergeInto(CVorDoc& doc, HBUF32 hImage, HBUF32 hMask, int nPercent) {
    int nWidth = 0;
    int nHeight = 0;
    const HBUF32 hBase = doc.GetBaseImage();
    if (!buf32GetWHU(hBase, &nWidth, &nHeight, nullptr)) {
        return service_error::Failed;
    }
    CBufferOwner base(ColorBits, nWidth, nHeight);
    CBufferOwner source(ColorBits, nWidth, nHeight);
    if (!base || !source) {
        return service_error::NoBuffer;
    }
    if (!CGlobalAPI::m_fnMergeBuf(base.Get(), hBase, hImage, nPercent, hMask) ||
        !CGlobalAPI::m_fnMergeBuf(source.Get(), hBase, hImage, nPercent, hMask)) {
        return service_error::Failed;
    }
    doc.m_fnSetSrcBaseImage(source.Release());
    doc.SetBaseImage(base.Release());
    buf32Free(hBase);
    doc.SetModifiedFlag(TRUE);
    return service_error::None;
}

} // namespace

int base_image::MergeIntoBaseImage(CTool& tool, HBUF32 hImage, HBUF32 hMask, int nPercent, int nRedraw,
                                   std::int32_t* pError) {
    const CCanvas canvas(tool);
    const std::int32_t nError =
        canvas.HasDocument() ? MergeInto(canvas.Document(), hImage, hMask, nPercent) : service_error::Failed;
    if (nError == service_error::None && nRedraw == 1 && canvas) {
        CRefresh refresh;
        refresh.Add(canvas.ClientRect());
        refresh.FlushMarkRepaint(canvas, tool);
    }
    return AnswerWith(nError, pError);
}
