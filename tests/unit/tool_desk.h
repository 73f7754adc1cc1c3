// A desk with one select tool whose operations without a place in a table can be called.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "buffer/buffer_host.h"
#include "desk/desk.h"
#include "image/picture_node.h"
#include "platform/faults.h"
#include "tools/select_tool.h"

/// Lets a picture be told apart in a failure message.
inline void PrintTo(const CRect& rect, std::ostream* pOut) {
    *pOut << '[' << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom << ']';
}

/// A page of 400 by 300 at zoom 1. The desk owns the tool.
class CToolDesk {
  public:
    CToolDesk() : m_pTool(new CSelectTool) {
        m_desk.CreateView(nullptr);
        m_desk.NewPage(400, 300, 1.0);
        m_desk.AddTool(m_pTool);
        m_desk.SwitchTool(m_pTool, 0);
    }
    ~CToolDesk() {
        platform::ClearFaults();
        m_desk.Close();
    }
    CToolDesk(const CToolDesk&) = delete;
    CToolDesk& operator=(const CToolDesk&) = delete;

    CSelectTool& Tool() { return *m_pTool; }
    CDesk& Desk() { return m_desk; }
    CVorDoc& Document() { return *m_desk.Document(); }
    CImgNodeList& Objects() { return *Document().GetObjList(); }
    CImgNodeList& Selection() { return *Document().GetActList(); }

    /// A solid red picture at the front of the page.
    CImgNode* Picture(int nX, int nY, int nWidth, int nHeight, bool bEllipse = false) {
        ::Picture picture;
        SolidPicture(RGB(255, 0, 0), nWidth, nHeight, picture);
        if (bEllipse) {
            AddEllipseMask(picture);
        }
        CImgNode* pNode =
            MakePictureNode(Document(), std::move(picture), CRect(nX, nY, nX + nWidth, nY + nHeight));
        Objects().AddHead(pNode);
        return pNode;
    }
    /// Gives the object a frame node of that rectangle with an opaque mask.
    CImgNode* Frame(CImgNode& object, const CRect& rect) {
        ::Picture picture;
        SolidPicture(RGB(0, 255, 0), rect.Width(), rect.Height(), picture);
        CImgNode* pFrame = MakePictureNode(Document(), std::move(picture), rect);
        pFrame->m_nType = node_type::Frame;
        pFrame->m_pOwner = &object;
        object.m_pFrameNode = pFrame;
        object.m_rcFrame = CRect(CPoint(0, 0), rect.Size());
        object.m_rcPlaceHolder = object.m_rcFrame;
        Document().InsertNodeFor(&object, pFrame, 0);
        return pFrame;
    }
    /// 1, or 0 when no shadow can be made.
    int Shadow(CImgNode* pNode, int nDx, int nDy, int nSoftness, int nTransparency = 30) {
        const COLORREF crColor = RGB(0x20, 0x40, 0x60);
        return m_pTool->m_fnCreateShadow(pNode, nDx, nDy, &crColor, nSoftness, nTransparency);
    }
    std::vector<CImgNode*> Order() {
        std::vector<CImgNode*> order;
        for (POSITION position = Objects().GetHeadPosition(); position;) {
            order.push_back(Objects().GetNext(position));
        }
        return order;
    }

  private:
    CWinApp m_app; ///< the wait cursor needs one
    CDesk m_desk;
    CSelectTool* m_pTool;
};

inline CRect BoundsOf(CImgNode* pNode) {
    CRect rect(0, 0, 0, 0);
    if (pNode) {
        pNode->GetBoundRect(&rect);
    }
    return rect;
}
