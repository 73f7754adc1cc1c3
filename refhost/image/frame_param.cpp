#include "host/frame_param.h"

#include <new>

#include "platform/faults.h"

void* CFrameParam::operator new(std::size_t nSize) noexcept {
    return platform::FaultTrips("frame-param") ? nullptr : ::operator new(nSize, std::nothrow);
}

void CFrameParam::operator delete(void* pParam) noexcept { ::operator delete(pParam); }

int CFrameParam::SetSource(void* /*pImage*/, void* /*pMask*/, tagRECT* pRect, int /*nReserved*/) {
    if (!pRect || platform::FaultTrips("frame-source")) {
        return 0;
    }
    m_rcFit = *pRect;
    return 1;
}

void CFrameParam::GetSourceFitRect(tagRECT* pRect) const {
    if (pRect) {
        *pRect = m_rcFit;
    }
}
