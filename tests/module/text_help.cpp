#include "text_help.h"

#include "buffer/buffer_host.h"
#include "editor_binding.h"
#include "editor_look.h"
#include "image/node_host.h"
#include "image/picture_node.h"
#include "platform/counts.h"
#include "platform/faults.h"
#include "undo/undo_host.h"

void PrintTo(const Living& living, std::ostream* pOut) {
    *pOut << "nodes " << living.nodes << " buffers " << living.buffers << " blocks " << living.globalBlocks
          << " gdi " << living.gdiObjects << " windows " << living.windows << " events " << living.undoEvents;
}

CTextStage::~CTextStage() { platform::ClearFaults(); }

CTextNode& CTextStage::Text(const std::string& name) { return *static_cast<CTextNode*>(Node(name)); }

CImgNode* CTextStage::Frame(const std::string& object, const CRect& rcFrame) {
    const trace::CQuietScope quiet;
    CImgNode* pObject = Node(object);
    Picture picture;
    SolidPicture(RGB(0, 255, 0), rcFrame.Width(), rcFrame.Height(), picture);
    CImgNode* pFrame = MakePictureNode(*Desk().Document(), std::move(picture), rcFrame);
    pFrame->m_nType = node_type::Frame;
    pFrame->m_pOwner = pObject;
    pObject->m_pFrameNode = pFrame;
    pObject->m_rcFrame = CRect(CPoint(0, 0), rcFrame.Size());
    pObject->m_rcPlaceHolder = pObject->m_rcFrame;
    pObject->m_rcPlaceHolder.DeflateRect(5, 5);
    Desk().Document()->InsertNodeFor(pObject, pFrame, 0);
    Desk().RefreshDocRect(rcFrame);
    return pFrame;
}

void CTextStage::RealShadow(const std::string& object) {
    const trace::CQuietScope quiet;
    COLORREF crShadow = RGB(0x20, 0x40, 0x60);
    CDesk::Query<IToolLink>(CurrentTool())->CreateNodeShadow(Node(object), 3, 4, &crShadow, 2, 30, nullptr);
    CRect rcGroup;
    Node(object)->GetBoundRectEx(&rcGroup);
    Desk().RefreshDocRect(rcGroup);
}

int CTextStage::Edit(const std::string& name) {
    Select({name});
    Ops().HookNode(Node(name));
    return EditText(name, Rect(name).TopLeft());
}

void CTextStage::WriteInEditor(const std::string& text) {
    CString strText = text.c_str();
    (Editor()->*EditorOperations()->m_fnSetText)(strText);
}

CRect CTextStage::EditorRect() {
    CRect rect(0, 0, 0, 0);
    if (CInplaceEditor* pEditor = Editor()) {
        (pEditor->*EditorOperations()->m_fnGetTextBoundRect)(rect);
    }
    return rect;
}

void CTextStage::WriteAt(CPoint point, const std::string& text) {
    DblClick(point);
    Type(text);
}

Living CTextStage::CountLiving() {
    const platform::LiveCounts counts = platform::CountLive();
    return {CNodeBookkeeping::LiveNodes(),
            buffer_host::BufferCount(),
            counts.globalBlocks,
            counts.gdiObjects,
            counts.windows,
            undo_host::EventCount()};
}

CSize PictureSize(const Lines& lines, int nPixelSize, int nStyle) {
    const CTextPicture picture({.lines = lines, .px = nPixelSize, .style = nStyle}, CPoint(0, 0));
    return picture.Area().Size() + CSize(2 * picture.Blank(), 2);
}
