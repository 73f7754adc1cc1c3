// Who is told after the page's objects changed.
#pragma once

#include <cstdint>

#include <windows.h>

class CImgNode;
class CListenerObject;

/// The object behind the page's objects, found as kind 27. Fifty-nine operations; the tools call four of
/// them.
struct IPageObjects {
    static constexpr GUID Id = {0xA9DD2989, 0xE14E, 0x4A7F, {0x87, 0xE4, 0x13, 0xB4, 0x69, 0x1A, 0x37, 0x9B}};
    virtual int Reserved1() = 0;
    virtual int Reserved2() = 0;
    virtual int Reserved3() = 0;
    virtual int Reserved4() = 0;
    /// Appends one value to the per-object table.
    virtual int AppendValue(std::int32_t nValue) = 0;
    /// The value kept for the object.
    virtual std::int32_t GetValue(CImgNode* pNode) = 0;
    /// Empties the per-object table.
    virtual int ClearValues() = 0;
    virtual int Reserved8() = 0;
    virtual int Reserved9() = 0;
    virtual int Reserved10() = 0;
    virtual int Reserved11() = 0;
    virtual int Reserved12() = 0;
    virtual int Reserved13() = 0;
    virtual int Reserved14() = 0;
    virtual int Reserved15() = 0;
    virtual int Reserved16() = 0;
    virtual int Reserved17() = 0;
    virtual int Reserved18() = 0;
    virtual int Reserved19() = 0;
    virtual int Reserved20() = 0;
    virtual int Reserved21() = 0;
    virtual int Reserved22() = 0;
    virtual int Reserved23() = 0;
    virtual int Reserved24() = 0;
    virtual int Reserved25() = 0;
    virtual int Reserved26() = 0;
    virtual int Reserved27() = 0;
    virtual int Reserved28() = 0;
    virtual int Reserved29() = 0;
    virtual int Reserved30() = 0;
    virtual int Reserved31() = 0;
    virtual int Reserved32() = 0;
    virtual int Reserved33() = 0;
    virtual int Reserved34() = 0;
    virtual int Reserved35() = 0;
    virtual int Reserved36() = 0;
    virtual int Reserved37() = 0;
    virtual int Reserved38() = 0;
    virtual int Reserved39() = 0;
    virtual int Reserved40() = 0;
    virtual int Reserved41() = 0;
    virtual int Reserved42() = 0;
    virtual int Reserved43() = 0;
    virtual int Reserved44() = 0;
    virtual int Reserved45() = 0;
    virtual int Reserved46() = 0;
    virtual int Reserved47() = 0;
    virtual int Reserved48() = 0;
    virtual int Reserved49() = 0;
    virtual int Reserved50() = 0;
    virtual int Reserved51() = 0;
    virtual int Reserved52() = 0;
    virtual int Reserved53() = 0;
    virtual int Reserved54() = 0;
    virtual int Reserved55() = 0;
    virtual int Reserved56() = 0;
    virtual int Reserved57() = 0;
    virtual int Reserved58() = 0;
    /// 1 when the object is to take the size of its placeholder rectangle.
    virtual int FitsToPlaceHolder(CImgNode* pNode) = 0;
};

/// Found as the global kind 51.
struct IChangeTracker {
    static constexpr GUID Id = {0x1BC52299, 0x72AD, 0x43F8, {0xAF, 0x9F, 0xDC, 0x79, 0xF6, 0x2B, 0xB0, 0x80}};
    virtual int Reserved1() = 0;
    virtual int Reserved2() = 0;
    /// Called with 1 after the objects changed.
    virtual int SetChanged(int nChanged) = 0;
};

/// The two interfaces of each global kind-38 object. The argument is the kind-27 object.
struct IChangeReceiver {
    static constexpr GUID Id = {0xD4E25EAC, 0x2D20, 0x47BF, {0xBE, 0x09, 0xEC, 0x5D, 0x0C, 0x21, 0xE5, 0xAB}};
    virtual int OnChanged(CListenerObject* pPageObjects) = 0;
};

struct IChangeReceiver2 {
    static constexpr GUID Id = {0x7933E6ED, 0xE8A4, 0x4D0D, {0x96, 0x91, 0xA8, 0xF4, 0x5D, 0x75, 0x01, 0xCB}};
    virtual int OnChanged(CListenerObject* pPageObjects, int nReserved) = 0;
};

/// The interface of each global kind-45 object.
struct IRedrawReceiver {
    static constexpr GUID Id = {0xA623160A, 0xE6E7, 0x4457, {0xB2, 0x4E, 0xAC, 0xD2, 0x47, 0xA0, 0x4A, 0x6F}};
    virtual int OnRedrawn(CListenerObject* pPageObjects) = 0;
};
