#include "stage.h"

#include "bus/masks.h"
#include "editor_host.h"
#include "image/node_host.h"
#include "image/picture_file.h"
#include "image/picture_node.h"
#include "image/view_host.h"
#include "platform/code_page.h"
#include "platform/display.h"
#include "platform/faults.h"
#include "platform/input.h"
#include "platform/surface.h"
#include "services/services_host.h"

namespace {

constexpr char ModuleName[] = "PradixTools.dll";
constexpr char ResourceName[] = "PradixRC.dll";
constexpr char EntryName[] = "g_fnLoadAndLinkToolCat";
constexpr int StartWidth = 720;
constexpr int StartHeight = 480;
constexpr int StartDpi = 96;
constexpr UINT StartCodePage = 1252;
constexpr char StartFont[] = "Arial";
constexpr COLORREF PlaceholderFill = RGB(0x80, 0x80, 0x80);

void EmptyTheClipboard() {
    if (::OpenClipboard(nullptr)) {
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}

/// What one stage sets in the process and the next must not find.
void ResetSurroundings() {
    platform::ClearFaults();
    platform::ResetInput();
    platform::SetPointer({0, 0});
    platform::SetDisplayDpi(StartDpi);
    platform::SetCodePage(StartCodePage);
    SetDefaultFontName(StartFont);
    EmptyTheClipboard();
    bus::ClearMasks();
    trace::TurnOn(false);
    trace::Take();
}

void ApplyOptions(CImgNode& node, const PictureOptions& options) {
    node.m_nKeepProportions = options.keepProportions ? 1 : 0;
    node.m_tx.nMaskScale = options.maskScale;
    if (options.hasOffset) {
        node.m_tx.nOffsetFlag = 1;
        node.m_tx.nOffsetX = options.offset.x;
        node.m_tx.nOffsetY = options.offset.y;
    }
    CNodeBookkeeping::PlaceChanged(node);
}

/// The frame of a placeholder has the object's size and clear pixels.
CImgNode* MakeEmptyFrame(CVorDoc& doc, const CRect& rect) {
    HBUF32 hImage = 0;
    HBUF32 hMask = 0;
    buf32Alloc(&hImage, 24, rect.Width(), rect.Height(), 1, nullptr);
    buf32Alloc(&hMask, 8, rect.Width(), rect.Height(), 1, nullptr);
    CBufferPtr image(hImage);
    CBufferPtr mask(hMask);
    CImgNode* pFrame = image && mask ? new CImgNode(&doc) : nullptr;
    if (!pFrame) {
        return nullptr;
    }
    pFrame->SetImage(image.Release(), mask.Release(), rect.left, rect.top, 0);
    pFrame->m_nType = node_type::Frame;
    return pFrame;
}

/// A placeholder's frame is its own: both rectangles are the object's.
void JoinPlaceholder(CImgNode& object, CImgNode& frame, const CRect& rect) {
    frame.m_pOwner = &object;
    object.m_pFrameNode = &frame;
    object.m_nPlaceHolderMode = 1;
    object.m_nFrameFollows = 1;
    object.m_rcFrame = rect;
    object.m_rcPlaceHolder = rect;
}

} // namespace

CStage::CStage()
    : m_names(m_desk), m_pEditorHost(std::make_unique<CEditorHost>(m_desk)), m_menuHand([this](CPoint point) {
          QueuePress(point);
          QueueRelease(point);
      }) {
    ResetSurroundings();
    if (!m_desk.CreateView(nullptr) || !NewPage(StartWidth, StartHeight)) {
        throw std::bad_alloc();
    }
    ::SetClassLongA(m_desk.View()->m_hWnd, GCL_HCURSOR,
                    static_cast<LONG>(reinterpret_cast<LONG_PTR>(::LoadCursorA(nullptr, IDC_ARROW))));
    ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
    FocusView();
    Paint();
    trace::TurnOn(true);
}

CStage::~CStage() {
    LeaveEditors();
    ResetSurroundings();
    m_pEditorHost.reset();
    m_desk.Close();
    if (m_hModule) {
        ::FreeLibrary(m_hModule);
    }
    platform::ResetInput();
}

ModuleState CStage::LoadModule() {
    if (!m_hModule) {
        m_hModule = ::LoadLibraryA(ModuleName);
        FARPROC pfnEntry = m_hModule ? ::GetProcAddress(m_hModule, EntryName) : nullptr;
        if (m_hModule) {
            m_pEditorHost->OnModuleLoaded(m_hModule);
        }
        if (pfnEntry) {
            reinterpret_cast<LoadAndLinkToolCat>(reinterpret_cast<void*>(pfnEntry))(&m_desk);
        }
    }
    return {m_hModule != nullptr, ::GetModuleHandleA(ResourceName) != nullptr,
            static_cast<int>(m_desk.Tools().size())};
}

int CStage::DetachModule() {
    if (!m_hModule) {
        return 0;
    }
    trace::CQuietScope quiet;
    LeaveEditors();
    m_pEditorHost->OnModuleGoes();
    m_desk.SwitchTool(nullptr, 0);
    GetUndoMgr()->Clear();
    m_desk.DropTools();
    TakeTextsOver();
    ::FreeLibrary(m_hModule);
    m_hModule = nullptr;
    return 1;
}

bool CStage::NewPage(int nWidth, int nHeight, double dZoom) {
    LeaveEditors(); // While the page still stands.
    m_names.Clear();
    return m_desk.NewPage(nWidth, nHeight, dZoom);
}

void CStage::SetScroll(CPoint ptDoc) { CViewHost::SetScroll(*m_desk.View(), ptDoc); }

bool CStage::SetViewSize(int nWidth, int nHeight) {
    return CViewHost::SetClientSize(*m_desk.View(), nWidth, nHeight);
}

bool CStage::SetBaseColor(COLORREF crBase) {
    Picture picture;
    const CVorDoc& doc = *m_desk.Document();
    if (!SolidPicture(crBase, doc.PageWidth(), doc.PageHeight(), picture)) {
        return false;
    }
    m_desk.SetBaseImage(picture.image.Release());
    return true;
}

bool CStage::SetBaseFile(const char* pszFile, std::string& error) {
    Picture picture;
    if (pszFile && !LoadPicture(pszFile, picture, error)) {
        return false;
    }
    m_desk.SetBaseImage(picture.image.Release());
    return true;
}

CImgNode* CStage::AddPicture(const std::string& name, COLORREF crFill, int nX, int nY, int nWidth,
                             int nHeight, const PictureOptions& options) {
    trace::CQuietScope quiet;
    Picture picture;
    if (!SolidPicture(crFill, nWidth, nHeight, picture) ||
        (options.ellipseMask && !AddEllipseMask(picture))) {
        return nullptr;
    }
    const CRect rect(CPoint(nX, nY), CSize(nWidth, nHeight));
    CImgNode* pNode = MakePictureNode(*m_desk.Document(), std::move(picture), rect);
    if (pNode) {
        ApplyOptions(*pNode, options);
    }
    return PlaceNode(name, pNode);
}

CImgNode* CStage::AddPictureFile(const std::string& name, const char* pszFile, int nX, int nY, int nWidth,
                                 int nHeight, const PictureOptions& options, std::string& error) {
    trace::CQuietScope quiet;
    Picture picture;
    if (!LoadPicture(pszFile, picture, error)) {
        return nullptr;
    }
    const CRect rect(CPoint(nX, nY), CSize(nWidth, nHeight));
    const bool bMasked = !options.ellipseMask || AddEllipseMask(picture);
    CImgNode* pNode = bMasked ? MakePictureNode(*m_desk.Document(), std::move(picture), rect) : nullptr;
    if (!pNode) {
        error = "the picture cannot be placed";
        return nullptr;
    }
    ApplyOptions(*pNode, options);
    return PlaceNode(name, pNode);
}

CImgNode* CStage::AddPlaceholder(const std::string& name, int nX, int nY, int nWidth, int nHeight) {
    trace::CQuietScope quiet;
    CVorDoc& doc = *m_desk.Document();
    const CRect rect(CPoint(nX, nY), CSize(nWidth, nHeight));
    CImgNode* pObject = AddPicture(name, PlaceholderFill, nX, nY, nWidth, nHeight);
    CImgNode* pFrame = pObject ? MakeEmptyFrame(doc, rect) : nullptr;
    if (!pFrame) {
        delete pObject;
        return nullptr;
    }
    JoinPlaceholder(*pObject, *pFrame, rect);
    doc.InsertNodeFor(pObject, pFrame, 0);
    m_desk.RefreshDocRect(rect);
    return pObject;
}

CImgNode* CStage::PlaceNode(const std::string& name, CImgNode* pNode) {
    if (!pNode || !m_desk.Document()->GetObjList()->AddHead(pNode)) {
        delete pNode;
        return nullptr;
    }
    m_names.Give(name, pNode);
    CRect rcBound;
    pNode->GetBoundRect(&rcBound);
    m_desk.RefreshDocRect(rcBound);
    return pNode;
}

bool CStage::FreeNode(CImgNode* pNode) {
    const bool bText = pNode->m_nType == node_type::Text || pNode->m_pOwner;
    if (CNodeBookkeeping::IsOnPage(*pNode) || (bText && m_pEditorHost->ToolEditor())) {
        return false;
    }
    if (m_desk.ExcludedNode() == pNode) {
        Exclude(nullptr);
    }
    GetUndoMgr()->Clear();
    delete pNode;
    return true;
}

void CStage::Exclude(CImgNode* pNode) { m_desk.SetExcludedNode(pNode); }

bool CStage::UseTool(const std::string& className, Redraw redraw) {
    CListenerObject* pTool = m_desk.FindTool(className);
    if (!className.empty() && !pTool) {
        return false;
    }
    m_desk.SwitchTool(pTool, redraw == Redraw::Yes ? 1 : 0);
    return true;
}

bool CStage::Select(const std::vector<std::string>& names) {
    IToolObjectOps* pOps = ToolInterface<IToolObjectOps>();
    if (!pOps) {
        return false;
    }
    CNodeRefList nodes;
    for (const std::string& name : names) {
        if (CImgNode* pNode = Node(name)) {
            nodes.AddTail(pNode);
        }
    }
    trace::CQuietScope quiet;
    pOps->ClearSelection();
    CViewHost::RecomposeAll(*m_desk.View());
    pOps->AddToSelection(nodes);
    pOps->ShowSelectionMarks(1);
    Paint();
    return true;
}

BOOL CStage::Undo() { return GetUndoMgr()->Undo(); }

BOOL CStage::Redo() { return GetUndoMgr()->Redo(); }

CRect CStage::Rect(const std::string& name) {
    CRect rect;
    if (CImgNode* pNode = Node(name)) {
        pNode->GetBoundRect(&rect);
    }
    return rect;
}

namespace {

std::vector<std::string> NamesIn(const CImgNodeList& list, CNames& names) {
    std::vector<std::string> found;
    for (POSITION pos = list.GetHeadPosition(); pos;) {
        found.push_back(names.Of(list.GetNext(pos)));
    }
    return found;
}

std::vector<std::string> ClassesOf(CUndoEvent* (CUndoMgr::*pfnGet)(int) const) {
    std::vector<std::string> classes;
    const CUndoMgr* pManager = GetUndoMgr();
    for (int n = 0; CUndoEvent* pEvent = (pManager->*pfnGet)(n); n++) {
        classes.push_back(pEvent->GetRuntimeClass()->m_lpszClassName);
    }
    return classes;
}

bool IsBusRow(const trace::Row& row) { return !row.iface.empty(); }

} // namespace

std::vector<std::string> CStage::PageNames() {
    m_names.NameNewNodes();
    return NamesIn(*m_desk.Document()->GetObjList(), m_names);
}

std::vector<std::string> CStage::Selection() {
    m_names.NameNewNodes();
    return NamesIn(*m_desk.Document()->GetActList(), m_names);
}

std::vector<std::string> CStage::UndoClasses() const { return ClassesOf(&CUndoMgr::GetUndoEvent); }

std::vector<std::string> CStage::RedoClasses() const { return ClassesOf(&CUndoMgr::GetRedoEvent); }

void CStage::GatherTrace() {
    for (trace::Row& row : trace::Take()) {
        m_nWaits += row.on == "cursor" && row.op == "BeginWaitCursor" ? 1 : 0;
        if (IsBusRow(row)) {
            m_callRows.push_back(row);
        }
        m_traceRows.push_back(std::move(row));
    }
}

std::vector<trace::Row> CStage::Trace() {
    GatherTrace();
    return std::exchange(m_traceRows, {});
}

std::vector<trace::Row> CStage::Calls() {
    GatherTrace();
    return std::exchange(m_callRows, {});
}

const std::vector<trace::Row>& CStage::PeekTrace() {
    GatherTrace();
    return m_traceRows;
}

const std::vector<trace::Row>& CStage::PeekCalls() {
    GatherTrace();
    return m_callRows;
}

int CStage::WaitCursors() {
    GatherTrace();
    return m_nWaits;
}

COLORREF CStage::Pixel(int nX, int nY) {
    Paint();
    platform::Surface surface;
    if (!platform::LockSurface(m_desk.View()->m_hWnd, &surface) || nX < 0 || nY < 0 || nX >= surface.width ||
        nY >= surface.height) {
        return CLR_INVALID;
    }
    const DWORD dwPixel = surface.pixels[static_cast<std::ptrdiff_t>(nY) * surface.stride + nX];
    return RGB((dwPixel >> 16) & 0xFF, (dwPixel >> 8) & 0xFF, dwPixel & 0xFF);
}
