// Building, removing and rebuilding the soft-edged shadow of an object. Offsets and softness are document
// units, transparency is 0 (opaque) to 100.
#pragma once

#include "host/tool.h"

/// Gives the object a shadow, directly behind it, or linked alone while the object is off the page. A shadow
/// that it has goes first. 1 (also for null), or 0 when it cannot be made; the object has no shadow then.
/// Without a document nothing happens.
int CreateShadow(CTool& tool, CImgNode* pNode, int nOffsetX, int nOffsetY, const COLORREF* pcrColor,
                 int nSoftness, int nTransparency);
/// The same with stored settings, offsets and softness truncated.
int CreateShadow(CTool& tool, CImgNode* pNode, const CShadowParam& param);
/// Takes the object's shadow off and frees it; the settings stay. Answers 1.
int RemoveShadow(CTool& tool, CImgNode* pNode);
/// Builds the object's shadow again from its settings; one that was off the page stays off it. 1, or 0
/// without a document.
int RegenerateShadow(CTool& tool, CImgNode* pNode);
/// The same, and shows it when `nRedraw` is 1. 1, or 0 for an object without a shadow.
int RefreshNodeShadow(CTool& tool, CImgNode* pNode, int nRedraw);

/// Where a shadow without offset stands (document units): the object's position, or the smaller x and the
/// smaller y of object and frame.
CPoint ShadowBase(const CImgNode& object);

/// The soft mask of a hard one, owned by the caller, or 0; a softness of -1 makes none. The block comes back
/// at the shadow's position (also in `ptShadow`), the base point moved by the offset, in every case.
HBUF32 MakeSoftMask(HBUF32 hMask, int nSoftness, CTxParam& block, CSize offset, CPoint ptBase,
                    CPoint& ptShadow);

/// The settings as a shadow is built from them: whole offsets and softness.
CShadowParam TruncatedParam(CShadowParam param);
