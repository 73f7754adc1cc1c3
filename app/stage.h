// Everything that a scenario or a test needs of the headless host, in a user's words.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/desk.h"
#include "host/tool_interfaces.h"
#include "host/undo.h"
#include "menu_hand.h"
#include "names.h"
#include "platform/clock.h"
#include "text/text_effect.h"
#include "trace/trace.h"

/// Whether Ctrl is held, in both key states, while a command's messages are dispatched.
enum class Ctrl { Up, Down };
enum class Redraw { No, Yes };
enum class KeyStates { Both, Async, Sync };
enum class Show { Now, Later };

class CEditorHost;
class CTextNode;
class CInplaceEditor;
struct EditorCalls;

/// How a picture stands on the page beyond its place.
struct PictureOptions {
    bool ellipseMask = false;
    bool keepProportions = false;
    int maskScale = 100; ///< percent
    bool hasOffset = false;
    CPoint offset; ///< document units, added to the position
};

/// How a text object looks.
struct TextOptions {
    std::string font = "Arial";
    int pixels = 16;   ///< the characters' height at full scale
    int alignment = 0; ///< 0 left, 1 centre, 2 right
    int style = 0;     ///< 1 bold, 2 italic, 4 underline
    COLORREF color = RGB(255, 255, 255);
    TextEffect effect = TextEffect::None; ///< drawn in black
    bool offPage = false;                 ///< made, but not put on the page
};

/// The outcome of loading the module: nothing is loaded when the file cannot be opened or refuses to attach.
struct ModuleState {
    bool loaded = false;
    bool resource = false; ///< whether the resource module stands beside it
    int tools = 0;         ///< how many tools the host has received
};

/// How a text is dragged in from outside.
struct DropOffer {
    UINT format = 1;  ///< a clipboard format; 1 is text
    DWORD source = 0; ///< a drop_source; 0 is the target's own window
    Ctrl ctrl = Ctrl::Up;
};

struct DropAnswer {
    int result = 0;   ///< what the target answered; 0 when nobody takes drops there
    DWORD effect = 0; ///< a drop_effect
};

/// The headless host: one desk, the module's tools, a clock that stands still, and names for nodes. One lives
/// at a time; it owns all that the module and the host leave behind and frees it in the host's order. Its
/// operations act or answer; what cannot be done answers false, 0 or null. Points are client pixels of the
/// view, rectangles of nodes document units.
class CStage {
  public:
    /// An empty page of 720 by 480 at zoom 1 and no current tool. The module is not loaded yet. Throws
    /// std::bad_alloc when there is no memory for desk, view or page.
    CStage();
    ~CStage();
    CStage(const CStage&) = delete;
    CStage& operator=(const CStage&) = delete;

    /// Loads the module that stands beside the program and takes its tools. Loaded already, it answers the
    /// state again.
    ModuleState LoadModule();
    /// Leaves the tools and unloads the module: 1, or 0 when none is loaded.
    int DetachModule();
    bool IsModuleLoaded() const { return m_hModule != nullptr; }

    /// A new page of document units; the view gets the page's size in client pixels, cut to whole ones. False
    /// when there is no memory for its base image or its view.
    bool NewPage(int nWidth, int nHeight, double dZoom = 1.0);
    void SetScroll(CPoint ptDoc);
    bool SetViewSize(int nWidth, int nHeight);
    /// False when there is no memory for it.
    bool SetBaseColor(COLORREF crBase);
    /// Null takes the base image away. False and a reason when the file is no picture.
    bool SetBaseFile(const char* pszFile, std::string& error);

    /// At the front of the page; nothing is selected, recorded or notified. Null when there is no memory for
    /// it.
    CImgNode* AddPicture(const std::string& name, COLORREF crFill, int nX, int nY, int nWidth, int nHeight,
                         const PictureOptions& options = {});
    /// The same of a PNG or JPEG file, scaled to the rectangle. Null and a reason when the file is no
    /// picture.
    CImgNode* AddPictureFile(const std::string& name, const char* pszFile, int nX, int nY, int nWidth,
                             int nHeight, const PictureOptions& options, std::string& error);
    /// An object in placeholder mode with the empty frame of its own size.
    CImgNode* AddPlaceholder(const std::string& name, int nX, int nY, int nWidth, int nHeight);
    /// A text object made by the current tool, or by the first one received when none is current; its
    /// top-left, with the effect, is at (nX, nY). Null when there is no tool or it makes none of this text.
    CImgNode* AddText(const std::string& name, const std::string& text, int nX, int nY,
                      const TextOptions& options = {});
    /// Deletes a node that is off the page; false for one that is on it, and for a text or a companion while
    /// a tool's editor is open, which may put it back. The recorded steps go first, because they may point at
    /// it.
    bool FreeNode(CImgNode* pNode);
    /// The node that the tools' hit tests skip; null for none.
    void Exclude(CImgNode* pNode);

    /// The host's switch to the tool of that class; an empty name leaves no tool current. False for a class
    /// that is not there.
    bool UseTool(const std::string& className, Redraw redraw = Redraw::Yes);
    /// A received tool by its class name, or null.
    CListenerObject* Tool(const std::string& className) const { return m_desk.FindTool(className); }
    CListenerObject* CurrentTool() const { return m_desk.CurrentTool(); }
    /// An interface of the current tool, or null.
    template <class Interface>
    Interface* ToolInterface() const {
        return CDesk::Query<Interface>(m_desk.CurrentTool());
    }

    void Press(CPoint point, Ctrl ctrl = Ctrl::Up);
    void Move(CPoint point, Ctrl ctrl = Ctrl::Up);
    void Release(CPoint point, Ctrl ctrl = Ctrl::Up);
    /// One WM_RBUTTONDOWN, and what the person does with the menu, if one opens.
    void RightPress(CPoint point, const MenuChoice& choice = {});
    /// The last context menu; none before the first.
    const std::optional<platform::PopupMenu>& LastMenu() const { return m_menuHand.Last(); }
    /// One WM_LBUTTONDBLCLK.
    void SecondPress(CPoint point, Ctrl ctrl = Ctrl::Up);
    void Click(CPoint point, Ctrl ctrl = Ctrl::Up);
    void DblClick(CPoint point, Ctrl ctrl = Ctrl::Up);
    /// Press, `nSteps` moves that end at `ptTo`, release.
    void Drag(CPoint ptFrom, CPoint ptTo, Ctrl ctrl = Ctrl::Up, int nSteps = 4);
    void SetPointer(CPoint point);

    /// To the window with the focus; a key-down is translated. Keys are virtual-key codes.
    void KeyDown(int nKey, Ctrl ctrl = Ctrl::Up);
    void KeyUp(int nKey, Ctrl ctrl = Ctrl::Up);
    /// `nTimes` key-downs, then the key-up.
    void Key(int nKey, int nTimes = 1, Ctrl ctrl = Ctrl::Up);
    /// One WM_CHAR to the window with the focus.
    void Char(unsigned nCode);
    void Type(const std::string& bytes);
    void Hold(int nKey, KeyStates states = KeyStates::Both);
    void LetGo(int nKey);
    void AddAccelerator(int nKey, Ctrl ctrl);
    void FocusView();
    void FocusNone();

    void QueuePress(CPoint point);
    void QueueMove(CPoint point);
    void QueueRelease(CPoint point);
    void QueueKeyDown(int nKey);
    /// Dispatches the queued messages, all of them or the first `nCount`, then paints.
    void Pump(int nCount = -1);
    /// Lets the clock run, fires the timers in order, paints.
    void Wait(unsigned nMilliseconds);

    /// A host-owned editor on the view, anchored at the point, in the former one's place; shown, it gets the
    /// focus. The host ends it when its input ends. 1, or 0 when it cannot be made.
    int NewEditor(CPoint ptAnchor, const std::string& text, Show show = Show::Now);
    /// The host's editor, else the one that a tool has opened; null for none.
    CInplaceEditor* Editor() const;
    /// Its exported operations (editor_binding.h); null while the module is not loaded.
    const EditorCalls* EditorOperations() const;
    /// The following act on, or ask, the open editor; without one they do nothing or answer nothing.
    void FocusEditor();
    /// Ends its input; the host's editor goes with that.
    void EndEditor();
    /// Takes the host's editor away unasked: 1, or 0 when it has none.
    int DestroyEditor();
    void SelectText(int nLine1, int nIndex1, int nLine2, int nIndex2);
    /// As m_fnGetText gives it: without blanks and empty lines at the ends.
    std::string EditorText() const;
    std::string SelectedText() const;
    /// The lines as they are.
    std::vector<std::string> EditorLines() const;
    /// How often the input of host-owned editors has ended, and with which text the last time.
    int EndedInputs() const;
    const std::string& EndedText() const;
    CEditorHost& EditorHost() { return *m_pEditorHost; }

    /// The current tool's text attributes, which act on its open editor, else on the selected texts: what the
    /// tool answered, 0 for a tool without them.
    int SetTextFont(const std::string& name);
    int SetTextSize(int nPoints);
    int SetTextAlignment(int nIndex);
    int SetTextStyle(int nBits);
    int SetTextColor(COLORREF crText);
    /// Opens a text object in the current tool's editor, the caret near the point: what the tool answered, 0
    /// for a tool that edits no texts.
    int EditText(const std::string& name, CPoint point);

    /// A text from outside moves over the window at the point; it leaves the window it was over before.
    DropAnswer Hover(const std::string& text, CPoint point, const DropOffer& offer = {});
    /// The same, and then it is let go there.
    DropAnswer Drop(const std::string& text, CPoint point, const DropOffer& offer = {});
    void LeaveDrop();
    /// Drag, begun on the selected text: 1 when that became a drag of the text, with its effect.
    DropAnswer DragText(CPoint ptFrom, CPoint ptTo, Ctrl ctrl = Ctrl::Up);

    /// The clipboard's text; none while it holds nothing. NUL ends a text.
    std::optional<std::string> Clipboard() const;
    void SetClipboard(const std::string& text);

    /// Selects through the current tool, without undo or panels. False without a current tool.
    bool Select(const std::vector<std::string>& names);
    BOOL Undo();
    BOOL Redo();

    /// Adds one more global receiver of kind 38 or 45; false without memory.
    bool BusAdd(int nKind, bool bSearches) { return m_desk.AddReceiver(nKind, bSearches); }

    /// Makes a node that a tool has handed out the document's, which frees what nobody else does. Nothing for
    /// null.
    void Adopt(CImgNode* pNode);

    CDesk& Desk() { return m_desk; }
    const CDesk& Desk() const { return m_desk; }
    CNames& Names() { return m_names; }
    /// A live node by its name, or null.
    CImgNode* Node(const std::string& name) { return m_names.Find(name); }
    /// The node's bounds without companions; empty for a name that is nobody's.
    CRect Rect(const std::string& name);
    /// The page's nodes, front to back.
    std::vector<std::string> PageNames();
    std::vector<std::string> Selection();
    /// Class names of the recorded events, newest first.
    std::vector<std::string> UndoClasses() const;
    std::vector<std::string> RedoClasses() const;
    /// What the module called on the host since the last taking. `Calls` are the rows of the bus objects, and
    /// have their own last taking.
    std::vector<trace::Row> Trace();
    std::vector<trace::Row> Calls();
    /// The same rows, left where they are.
    const std::vector<trace::Row>& PeekTrace();
    const std::vector<trace::Row>& PeekCalls();
    /// The view's pixel as a person sees it; CLR_INVALID outside.
    COLORREF Pixel(int nX, int nY);
    /// Brings the window up to date; after it the surface holds what a person sees.
    void Paint();
    /// How often a wait cursor was shown.
    int WaitCursors();

  private:
    /// Puts a clock in force.
    class [[nodiscard]] CClockScope {
      public:
        explicit CClockScope(platform::IClock& clock) { platform::SetClock(&clock); }
        ~CClockScope() { platform::SetClock(nullptr); }
        CClockScope(const CClockScope&) = delete;
        CClockScope& operator=(const CClockScope&) = delete;
    };
    struct Accelerator {
        int nKey;
        Ctrl ctrl;
    };

    CImgNode* PlaceNode(const std::string& name, CImgNode* pNode);
    /// Makes the page's texts the host's own; one for which there is no memory goes.
    void TakeTextsOver();
    CTextNode* MakeText(const std::string& text, const TextOptions& options);
    /// Ends the host's editor, then a tool's own by its own road.
    void LeaveEditors();
    HWND TargetOf(CPoint& point) const;
    HWND DropWindowAt(CPoint& point);
    DropAnswer OfferText(const std::string& text, CPoint point, const DropOffer& offer, int nPhase);
    /// The road of a framework's pump: the window and those above it see a message first, then the frame's
    /// accelerators, then its procedure.
    void Deliver(MSG msg);
    void Dispatch(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam);
    void DispatchAll(UINT nMessage);
    void DeliverQueuedClick();
    void SendMouse(UINT nMessage, CPoint point);
    void PostMouse(UINT nMessage, CPoint point);
    void SendKeyDown(int nKey);
    void SendKeyUp(int nKey);
    bool FireAccelerator(int nKey);
    void SetButton(bool bDown);
    void GatherTrace();

    CWinApp m_app; ///< the wait cursor needs one
    platform::CVirtualClock m_clock;
    CClockScope m_inForce{m_clock};
    HMODULE m_hModule = nullptr;
    CDesk m_desk;
    CNames m_names;
    std::unique_ptr<CEditorHost> m_pEditorHost;
    CMenuHand m_menuHand;
    HWND m_hHovered = nullptr; ///< the window that a text from outside is over
    std::vector<Accelerator> m_accelerators;
    std::vector<trace::Row> m_traceRows;
    std::vector<trace::Row> m_callRows;
    int m_nWaits = 0;
    bool m_bLeftButton = false;
};
