// The host's object clipboard, kind 12 of the edit category. Points are client pixels of the view.
#pragma once

#include <afxwin.h>

struct IObjectClipboard {
    static constexpr GUID Id = {0x7F38389B, 0xEC02, 0x4594, {0x92, 0xA6, 0x4D, 0xA8, 0x54, 0x50, 0xB2, 0x26}};
    /// 1 when a copy is possible.
    virtual int CanCopy(CPoint point) = 0;
    virtual int Copy(CPoint point) = 0;
    /// 1 when a paste is possible.
    virtual int CanPaste(CPoint point) = 0;
    virtual int Paste(CPoint point, int nFlag) = 0;
};
