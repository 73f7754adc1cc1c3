// The document service, found as kind 4: the active document, the current tool, the active listener.
#pragma once

#include <windows.h>

class CListenerObject;
class CVorDoc;

struct IDocumentService {
    static constexpr GUID Id = {0x730B7788, 0x26FB, 0x45B7, {0xAB, 0xE9, 0x09, 0x48, 0xAA, 0x47, 0x9A, 0x32}};
    /// The active document, or null. Not owned.
    virtual CVorDoc* GetActiveDocument() = 0;
};

struct ICurrentToolService {
    static constexpr GUID Id = {0x750F2153, 0xF91F, 0x4B76, {0xAD, 0x81, 0xED, 0xC8, 0xA4, 0x84, 0x79, 0x7B}};
    virtual int Reserved1() = 0;
    /// The current tool, or null. Not owned.
    virtual CListenerObject* GetCurrentTool() = 0;
    /// The property object of the tool of that class, or null. Not owned.
    virtual CListenerObject* GetPropertyObject(const GUID& toolClass) = 0;
};

struct IActiveListenerService {
    static constexpr GUID Id = {0xD831576B, 0xCCCA, 0x445C, {0x85, 0x4A, 0x92, 0xFC, 0x58, 0x2D, 0xB3, 0x1A}};
    /// Makes `pListener` the current tool's listener until told otherwise.
    virtual int SetActiveListener(CListenerObject* pListener) = 0;
};
