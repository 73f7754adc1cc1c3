#include "ops/commands/services.h"

#include "ops/hit_test.h"
#include "ops/objects/duplicate.h"
#include "ops/service_error.h"
#include "shadows/shadow_build.h"

int services::DuplicateNode(CTool& tool, CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) {
    if (!pNode || !ppCopy) {
        return AnswerWith(service_error::NullArgument, pError);
    }
    *ppCopy = DuplicateObject(tool, pNode, nAdd);
    return AnswerWith(*ppCopy ? service_error::None : service_error::Failed, pError);
}

int services::IsPointOnSelection(CTool& tool, const CPoint* pPoint, std::int32_t* pnAnswer,
                                 std::int32_t* pError) {
    if (!pPoint || !pnAnswer) {
        return AnswerWith(service_error::NullArgument, pError);
    }
    *pnAnswer = IsOnSelection(tool, *pPoint) ? 1 : 0;
    return AnswerWith(service_error::None, pError);
}

int services::CreateNodeShadow(CTool& tool, CImgNode* pNode, int nOffsetX, int nOffsetY,
                               const COLORREF* pcrColor, int nSoftness, int nTransparency,
                               std::int32_t* pError) {
    const int nMade = CreateShadow(tool, pNode, nOffsetX, nOffsetY, pcrColor, nSoftness, nTransparency);
    return AnswerWith(nMade ? service_error::None : service_error::Failed, pError);
}
