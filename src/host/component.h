// The component library: files of named objects, each with a rectangle and pictures.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/buffer.h"

/// Handle of a component; 0 is none. A stale handle makes every call answer 0.
using HCOMPONENT = std::int32_t;

/// What the library tells of one object; the rectangle is in the component's own units and may be any.
struct ComponentObjectInfo {
    std::uint32_t nSize = 0;  ///< bytes of the record, set by the caller
    char szName[132] = {};    ///< up to its zero byte
    std::int32_t nX = 0;      ///< left
    std::int32_t nY = 0;      ///< top
    std::int32_t nWidth = 0;  ///< not checked: may be 0 or negative
    std::int32_t nHeight = 0; ///< the same
    std::uint8_t reserved[8] = {};
};
static_assert(sizeof(ComponentObjectInfo) == 160);
static_assert(offsetof(ComponentObjectInfo, nSize) == 0);
static_assert(offsetof(ComponentObjectInfo, szName) == 4);
static_assert(offsetof(ComponentObjectInfo, nX) == 136);
static_assert(offsetof(ComponentObjectInfo, nY) == 140);
static_assert(offsetof(ComponentObjectInfo, nWidth) == 144);
static_assert(offsetof(ComponentObjectInfo, nHeight) == 148);

/// A new empty component, to be given back by `wcDeleteComponent`; 0 on failure.
HCOMPONENT wcCreateComponent();
/// Reads the file's objects into the component, in place of what it held. The last three arguments are 0 at
/// every call. Answers 1, or 0 when the file is missing, damaged or too large; the component is as before
/// then.
int wcReadZELToComp(HCOMPONENT hComponent, const char* pszFile, int nReserved, int nReserved2,
                    int nReserved3);
/// Fills the record, whose size field has to be 160, for the object of that index (from 0). An index behind
/// the last object gives an empty name and rectangle. Answers 1, or 0 for a bad handle, a negative index, a
/// null record or one of another size.
int wcGetObjInfo(HCOMPONENT hComponent, int nIndex, ComponentObjectInfo* pInfo);
/// The object's image (24-bit) and mask (8-bit), 0 for one that it has not. The component keeps both. Answers
/// 1, or 0, and both are 0, for a bad handle or index; both pointers are needed.
int wcGetObjImg_Mask(HCOMPONENT hComponent, int nIndex, HBUF32* phImage, HBUF32* phMask);
/// Frees the component and its buffers. Answers 1, or 0 for a bad handle.
int wcDeleteComponent(HCOMPONENT hComponent);
