// The part of an axis within which aligned and distributed objects stay visible, in document units.
#pragma once

#include "ops/axis.h"
#include "ops/canvas.h"

class CVisibleSpan {
  public:
    CVisibleSpan(const CCanvas& canvas, Axis axis);

    /// How far an object whose far edge stands there moves back over the near margin; 0 when it reaches it.
    long long BackFromNear(long long nFarEdge) const {
        return nFarEdge < m_nMargin ? m_nMargin - nFarEdge : 0;
    }
    /// How far an object whose near edge stands there moves back from the view's far edge; 0 when it stays
    /// before it.
    long long BackFromFar(long long nNearEdge) const {
        return nNearEdge + m_nMargin > m_nViewFar ? m_nViewFar - nNearEdge - m_nMargin : 0;
    }

  private:
    long long m_nMargin;
    long long m_nViewFar;
};
