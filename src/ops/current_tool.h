// Which tool the host has made current.
#pragma once

#include "host/document_service.h"
#include "ops/bus.h"

/// As the document service tells it, or null.
inline CListenerObject* CurrentTool(CListenerObject& seeker) {
    ICurrentToolService* pService = bus::FindService<ICurrentToolService>(seeker, kind::Document);
    return pService ? pService->GetCurrentTool() : nullptr;
}

inline bool IsCurrentTool(CListenerObject& tool) { return CurrentTool(tool) == &tool; }
