// The root of the tool classes: it answers the bus's questions.
#pragma once

#include "host/tool.h"

class CToolListener : public CTool {
  public:
    int IsKindOf(const GUID& category, int nKind, int* pResult, int* pExtra) override;
    int QueryInterface(const GUID& iid, void** ppInterface, int* pExtra) override;
    /// 1 for the state (category, 37) when this is the current tool, else 0.
    int QueryState(const GUID& category, int nState) override;

    int SetExcludedNode(CImgNode* pNode) override;
    CImgNode* GetExcludedNode() override;
    int DuplicateNode(CImgNode* pNode, CImgNode** ppCopy, int nAdd, std::int32_t* pError) override;
    int IsPointOnSelection(CPoint* pPoint, std::int32_t* pnAnswer, std::int32_t* pError) override;
    int DuplicateNodeScaled(CImgNode* pNode, CImgNode** ppCopy, double dScale, std::int32_t* pError) override;
    int CreateNodeShadow(CImgNode* pNode, int nOffsetX, int nOffsetY, COLORREF* pcrColor, int nSoftness,
                         int nTransparency, std::int32_t* pError) override;
    int BlendBaseImage(int nPercent, std::int32_t* pError) override;

  private:
    CImgNode* m_pExcludedNode = nullptr; ///< skipped by hit tests; not owned
};
